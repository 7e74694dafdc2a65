// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <Qt>

class QWidget;

namespace velmora
{

/// Hands the drag of a window that the left button began to the window system. Where the button
/// went up before the window manager took over, which never learns of it, the drag ends all the
/// same. GUI thread.
namespace SystemDrag
{

/// False where the window system does not take over, because it cannot or because the button is up
/// already though the events until then are still to come.
bool move(QWidget &window);
bool resize(QWidget &window, Qt::Edges edges);

} // namespace SystemDrag

} // namespace velmora
