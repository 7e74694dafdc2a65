// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace velmora
{

/// One entry of the desktop's Secret Service. Each call waits for the service, with the event loop
/// running; a user who must unlock the key ring first is given a minute. GUI thread.
class DesktopKeyRing
{
public:
    enum class Answer {
        Found,
        Missing,     ///< The service works and has no such entry.
        Refused,     ///< The key ring is locked and stays so.
        Unavailable, ///< There is no service.
    };

    Answer read(QByteArray &value);
    bool write(const QByteArray &value);
};

} // namespace velmora
