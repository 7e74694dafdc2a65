// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmora
{

/// Lets QImageReader read TIFF where Qt has no plugin of its own for it: on Windows through the
/// Windows Imaging Component. Call it once at start; where Qt reads TIFF already it does nothing.
void installImageFormats();

} // namespace velmora
