// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/TerminationWatcher.h"

#include "platform/PlatformLog.h"

#include <QSocketNotifier>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace velmora
{

namespace
{

constexpr std::array<int, 3> kSignals{SIGTERM, SIGINT, SIGHUP};

// Written by the signal handler, which can reach nothing but globals.
std::array<int, 2> g_pipe{-1, -1};
std::atomic_bool g_requested{false};
static_assert(std::atomic_bool::is_always_lock_free);

void onSignal(int)
{
    const int savedError = errno;
    g_requested = true;
    const char byte = 0;
    const ssize_t written = ::write(g_pipe[1], &byte, 1);
    static_cast<void>(written); // a full pipe already holds a request
    errno = savedError;
}

class SignalWatcher : public TerminationWatcher
{
public:
    explicit SignalWatcher(std::function<void()> onRequest) : m_onRequest(std::move(onRequest))
    {
        if (::pipe2(g_pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
            qCWarning(lcPlatform) << "No pipe for termination requests";
            return;
        }
        m_notifier = std::make_unique<QSocketNotifier>(g_pipe[0], QSocketNotifier::Read);
        QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                         [this] { takeRequest(); });
        g_requested = false;
        struct sigaction action = {};
        action.sa_handler = onSignal;
        action.sa_flags = SA_RESTART;
        for (size_t i = 0; i < kSignals.size(); ++i)
            ::sigaction(kSignals[i], &action, &m_before[i]);
    }

    ~SignalWatcher() override
    {
        if (!m_notifier)
            return;
        for (size_t i = 0; i < kSignals.size(); ++i)
            ::sigaction(kSignals[i], &m_before[i], nullptr);
        g_requested = false;
        m_notifier.reset();
        ::close(g_pipe[0]);
        ::close(g_pipe[1]);
        g_pipe = {-1, -1};
    }

private:
    void takeRequest()
    {
        char byte = 0;
        if (::read(g_pipe[0], &byte, 1) == 1)
            m_onRequest();
    }

    std::function<void()> m_onRequest;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::array<struct sigaction, kSignals.size()> m_before = {};
};

} // namespace

std::unique_ptr<TerminationWatcher> createTerminationWatcher(std::function<void()> onRequest)
{
    return std::make_unique<SignalWatcher>(std::move(onRequest));
}

bool isTerminationRequested()
{
    return g_requested;
}

} // namespace velmora
