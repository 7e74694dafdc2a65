// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

class QWindow;

namespace velmora
{

/// The progress that the desktop's task bar shows on the button of a window. Hidden, running and at
/// 0 at first. GUI thread; every call is cheap and none fails where there is no such task bar.
class TaskbarProgress
{
public:
    virtual ~TaskbarProgress() = default;
    /// Binds the progress to a window that is shown already and outlives it; null lets go.
    virtual void setWindow(QWindow *window) = 0;
    virtual void setVisible(bool visible) = 0;
    virtual void setPaused(bool paused) = 0;
    virtual void setValue(int percent) = 0; ///< 0 to 100; other values are clamped.
};

/// The task bar of this desktop, or an object that shows nothing.
std::unique_ptr<TaskbarProgress> createTaskbarProgress();

} // namespace velmora
