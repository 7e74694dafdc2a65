// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

/// The transcoder program: VELMORA_TRANSCODER if set, else the one beside this program. Absolute
/// path; empty when there is none.
QString locateTranscoder();

} // namespace velmora
