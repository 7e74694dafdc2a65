// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/windows/ImapiFactory.h"

namespace velmora
{

/// The description of an event interface of the burning service; null, with a log line that has
/// @p name, when the system does not have it.
ComPtr<ITypeInfo> eventType(ImapiFactory &factory, REFIID events, const char *name);

} // namespace velmora
