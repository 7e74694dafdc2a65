// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <wrl/client.h>

namespace velmora
{

/// Owns a reference to a COM object.
using Microsoft::WRL::ComPtr;

} // namespace velmora
