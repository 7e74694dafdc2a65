// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/wire/PlainMessage.h"

namespace velmora
{

namespace
{

constexpr int kLongest = 300;

// Format characters turn the direction of text or hide parts of it.
bool isHidden(QChar c)
{
    return c.category() == QChar::Other_Control || c.category() == QChar::Other_Format ||
           c.isNonCharacter();
}

} // namespace

QString plainMessage(const QString &text)
{
    QString plain;
    for (const QChar c : text.left(20 * kLongest))
        plain.append(c.isSpace() || !isHidden(c) ? c : QLatin1Char(' '));
    plain = plain.simplified();
    if (plain.size() <= kLongest)
        return plain;
    plain.truncate(plain.at(kLongest - 2).isHighSurrogate() ? kLongest - 2 : kLongest - 1);
    return plain + QChar(0x2026);
}

} // namespace velmora
