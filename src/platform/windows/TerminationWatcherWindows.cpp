// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/TerminationWatcher.h"

#include <QMutex>
#include <QMutexLocker>
#include <QObject>

#include <windows.h>

namespace velmora
{

namespace
{

class ConsoleWatcher : public TerminationWatcher
{
public:
    explicit ConsoleWatcher(std::function<void()> onRequest) : m_onRequest(std::move(onRequest))
    {
        QMutexLocker locker(&s_mutex);
        s_current = this;
        ::SetConsoleCtrlHandler(onControl, TRUE);
    }

    ~ConsoleWatcher() override
    {
        QMutexLocker locker(&s_mutex);
        ::SetConsoleCtrlHandler(onControl, FALSE);
        s_current = nullptr;
    }

private:
    // The system calls this on a thread of its own.
    static BOOL WINAPI onControl(DWORD)
    {
        QMutexLocker locker(&s_mutex);
        if (!s_current)
            return FALSE;
        QMetaObject::invokeMethod(&s_current->m_context, s_current->m_onRequest,
                                  Qt::QueuedConnection);
        return TRUE;
    }

    static inline QMutex s_mutex;
    static inline ConsoleWatcher *s_current = nullptr;
    std::function<void()> m_onRequest;
    QObject m_context;
};

} // namespace

std::unique_ptr<TerminationWatcher> createTerminationWatcher(std::function<void()> onRequest)
{
    return std::make_unique<ConsoleWatcher>(std::move(onRequest));
}

} // namespace velmora
