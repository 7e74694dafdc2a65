// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

namespace velmora
{

class TaskbarProgress;

/// Shares the one progress of the window's button on the task bar between the video that is being
/// made and an upload: while both run it shows the video. GUI thread.
class TaskbarShare
{
public:
    enum Work { Video, Upload };

    /// @p taskbar must outlive the object.
    explicit TaskbarShare(TaskbarProgress &taskbar) : m_taskbar(taskbar) {}

    void begin(Work work);
    void setValue(Work work, int percent);
    void setPaused(Work work, bool paused);
    void end(Work work);

private:
    struct State {
        bool running = false;
        bool paused = false;
        int percent = 0;
    };

    void show();

    TaskbarProgress &m_taskbar;
    std::array<State, 2> m_states;
};

} // namespace velmora
