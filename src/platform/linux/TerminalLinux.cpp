// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Terminal.h"

#include <QByteArray>

#include <sys/ioctl.h>
#include <unistd.h>

namespace velmora
{

int Terminal::columns()
{
    constexpr int usual = 80;
    if (::isatty(STDOUT_FILENO) != 1 || qgetenv("TERM") == QByteArrayLiteral("dumb"))
        return 0;
    winsize size{};
    const bool known = ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? size.ws_col : usual;
}

} // namespace velmora
