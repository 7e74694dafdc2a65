// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/burning/DiscFileName.h"

#include <QCoreApplication>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int kMaximumLength = 103; ///< Characters that Windows reads from such discs.
constexpr int kMaximumBytes = 240;

} // namespace

QString discFileNameError(const QString &name)
{
    const QString plain = name.trimmed();
    if (plain.isEmpty() || plain == QLatin1String(".") || plain == QLatin1String(".."))
        return QCoreApplication::translate("DiscFileName", "Enter a file name.");
    if (plain.size() > kMaximumLength || plain.toUtf8().size() > kMaximumBytes)
        return QCoreApplication::translate("DiscFileName", "The file name is too long for a disc.");
    const bool odd = std::any_of(plain.begin(), plain.end(), [](QChar c) {
        return c.unicode() < 0x20 || QStringLiteral("/\\:*?\"<>|").contains(c);
    });
    if (odd)
        return QCoreApplication::translate(
            "DiscFileName", "The file name must not contain any of / \\ : * ? \" < > |");
    return {};
}

} // namespace velmora
