// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/TaskbarProgress.h"

#include "platform/null/NullTaskbarProgress.h"
#include "platform/windows/ComResult.h"

#include <QPointer>
#include <QWindow>

#include <shobjidl.h>

#include <algorithm>

namespace velmora
{

namespace
{

/// The button of the Windows task bar.
class TaskbarButton : public TaskbarProgress
{
public:
    explicit TaskbarButton(ITaskbarList3 *list) : m_list(list) {}
    TaskbarButton(const TaskbarButton &) = delete;
    TaskbarButton &operator=(const TaskbarButton &) = delete;

    ~TaskbarButton() override
    {
        setVisible(false);
        m_list->Release();
    }

    void setWindow(QWindow *window) override
    {
        m_window = window;
        update();
    }

    void setVisible(bool visible) override
    {
        m_visible = visible;
        update();
    }

    void setPaused(bool paused) override
    {
        m_paused = paused;
        update();
    }

    void setValue(int percent) override
    {
        m_percent = std::clamp(percent, 0, 100);
        update();
    }

private:
    void update()
    {
        if (!m_window || !m_window->handle())
            return;
        const auto handle = reinterpret_cast<HWND>(m_window->winId());
        if (!m_visible) {
            m_list->SetProgressState(handle, TBPF_NOPROGRESS);
            return;
        }
        m_list->SetProgressValue(handle, static_cast<ULONGLONG>(m_percent), 100);
        m_list->SetProgressState(handle, m_paused ? TBPF_PAUSED : TBPF_NORMAL);
    }

    ITaskbarList3 *m_list;
    QPointer<QWindow> m_window;
    bool m_visible = false;
    bool m_paused = false;
    int m_percent = 0;
};

} // namespace

std::unique_ptr<TaskbarProgress> createTaskbarProgress()
{
    ITaskbarList3 *list = nullptr;
    HRESULT result = CoCreateInstance(CLSID_TaskbarList, nullptr, CLSCTX_INPROC_SERVER,
                                      IID_ITaskbarList3, reinterpret_cast<void **>(&list));
    if (SUCCEEDED(result)) {
        result = list->HrInit();
        if (SUCCEEDED(result))
            return std::make_unique<TaskbarButton>(list);
        list->Release();
    }
    stepSucceeded(result, "ITaskbarList3");
    return std::make_unique<NullTaskbarProgress>();
}

} // namespace velmora
