// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/TaskbarShare.h"

#include "platform/TaskbarProgress.h"

namespace velmora
{

void TaskbarShare::begin(Work work)
{
    m_states[work] = State();
    m_states[work].running = true;
    show();
}

void TaskbarShare::setValue(Work work, int percent)
{
    m_states[work].percent = percent;
    show();
}

void TaskbarShare::setPaused(Work work, bool paused)
{
    m_states[work].paused = paused;
    show();
}

void TaskbarShare::end(Work work)
{
    m_states[work] = State();
    show();
}

void TaskbarShare::show()
{
    const State &state = m_states[Video].running ? m_states[Video] : m_states[Upload];
    if (state.running) {
        m_taskbar.setValue(state.percent);
        m_taskbar.setPaused(state.paused);
    }
    m_taskbar.setVisible(state.running);
}

} // namespace velmora
