// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/StandardOutput.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace velmora
{

namespace
{

bool waitUntilWritable(int timeout)
{
    pollfd output{STDOUT_FILENO, POLLOUT, 0};
    QElapsedTimer elapsed;
    elapsed.start();
    for (;;) {
        const int left = static_cast<int>(std::max<qint64>(0, timeout - elapsed.elapsed()));
        const int ready = ::poll(&output, 1, left);
        if (ready >= 0 || errno != EINTR)
            return ready > 0 && (output.revents & POLLOUT) != 0;
    }
}

} // namespace

void StandardOutput::ensureOpen()
{
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        // open() takes the lowest free number, which is this one.
        if (::fcntl(stream, F_GETFD) < 0 && errno == EBADF && ::open("/dev/null", O_RDWR) < 0)
            return;
    }
}

bool StandardOutput::write(const QByteArray &data, int timeout)
{
    // Child processes are not affected: QProcess gives them the default action back.
    static const auto ignored = ::signal(SIGPIPE, SIG_IGN);
    Q_UNUSED(ignored)
    const char *position = data.constData();
    const char *const end = position + data.size();
    while (position < end) {
        if (!waitUntilWritable(timeout))
            return false;
        // A pipe that is writable takes this much without blocking.
        const auto piece = static_cast<size_t>(std::min<qint64>(PIPE_BUF, end - position));
        const ssize_t written = ::write(STDOUT_FILENO, position, piece);
        if (written < 0 && errno != EINTR && errno != EAGAIN)
            return false;
        position += std::max<ssize_t>(0, written);
    }
    return true;
}

} // namespace velmora
