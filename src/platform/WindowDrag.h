// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWindow;

namespace velmora
{

/// What the window system knows of a drag that moves or resizes a window. GUI thread.
namespace WindowDrag
{

/// Whether the left button is held at this moment, whatever events wait to be handled.
bool isButtonHeld();
/// Ends the drag of @p window that the window manager may be carrying on without the button.
void end(QWindow &window);

} // namespace WindowDrag

} // namespace velmora
