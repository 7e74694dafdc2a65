// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SessionId.h"

namespace velmora
{

QString sessionIdToName(const QString &sessionId)
{
    constexpr int kMaximumLength = 64;
    QString name = sessionId.left(kMaximumLength);
    for (QChar &c : name) {
        const bool ascii = c.unicode() < 128;
        if (!(ascii && c.isLetterOrNumber()) && c != QLatin1Char('-'))
            c = QLatin1Char('_');
    }
    return name.isEmpty() ? QStringLiteral("_") : name;
}

} // namespace velmora
