// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmora
{

/// Whether the desktop blends windows with what lies below them, so that a window may have
/// translucent parts. GUI thread, after the QGuiApplication was made; asks the window system anew
/// at every call.
bool isDesktopComposited();

} // namespace velmora
