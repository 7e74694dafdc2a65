// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/TerminationWatcher.h"

#include <QObject>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>

#include <windows.h>

namespace velmora
{

namespace
{

/// How long a request that ends the process is held up; after 5 s the system waits no longer.
constexpr std::chrono::milliseconds kLongestEnd(4500);

/// Whether the system ends the process as soon as all handlers have returned.
bool endsProcess(DWORD event)
{
    return event == CTRL_CLOSE_EVENT || event == CTRL_LOGOFF_EVENT || event == CTRL_SHUTDOWN_EVENT;
}

class ConsoleWatcher : public TerminationWatcher
{
public:
    explicit ConsoleWatcher(std::function<void()> onRequest) : m_onRequest(std::move(onRequest))
    {
        {
            const std::lock_guard<std::mutex> locker(s_mutex);
            s_current = this;
            s_requested = false;
        }
        ::SetConsoleCtrlHandler(onControl, TRUE);
    }

    ~ConsoleWatcher() override
    {
        {
            const std::lock_guard<std::mutex> locker(s_mutex);
            s_current = nullptr;
            s_requested = false;
            s_gone.notify_all();
        }
        // Not under the mutex: the call may wait for a handler that wants it.
        ::SetConsoleCtrlHandler(onControl, FALSE);
    }

    static bool isRequested() { return s_requested; }

private:
    // The system calls this on a thread of its own.
    static BOOL WINAPI onControl(DWORD event)
    {
        std::unique_lock<std::mutex> locker(s_mutex);
        ConsoleWatcher *const watcher = s_current;
        if (!watcher)
            return FALSE;
        s_requested = true;
        QMetaObject::invokeMethod(&watcher->m_context, watcher->m_onRequest, Qt::QueuedConnection);
        // Cleaning up takes its time, and then the watcher goes.
        if (endsProcess(event))
            s_gone.wait_for(locker, kLongestEnd, [watcher] { return s_current != watcher; });
        return TRUE;
    }

    static inline std::mutex s_mutex;
    static inline std::condition_variable s_gone;
    static inline ConsoleWatcher *s_current = nullptr;
    static inline std::atomic_bool s_requested{false};
    std::function<void()> m_onRequest;
    QObject m_context;
};

} // namespace

std::unique_ptr<TerminationWatcher> createTerminationWatcher(std::function<void()> onRequest)
{
    return std::make_unique<ConsoleWatcher>(std::move(onRequest));
}

bool isTerminationRequested()
{
    return ConsoleWatcher::isRequested();
}

} // namespace velmora
