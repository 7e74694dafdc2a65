// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/ProgramVersion.h"

#include <QRegularExpression>

namespace velmora
{

std::optional<ProgramVersion> ProgramVersion::parse(const QString &text)
{
    // At most nine digits, so that each number fits.
    static const QRegularExpression pattern(
        QStringLiteral("\\A([0-9]{1,9})\\.([0-9]{1,9})\\.([0-9]{1,9})\\z"));
    const QRegularExpressionMatch match = pattern.match(text.trimmed());
    if (!match.hasMatch())
        return std::nullopt;
    ProgramVersion version;
    for (size_t i = 0; i < version.m_numbers.size(); ++i)
        version.m_numbers[i] = match.captured(static_cast<int>(i) + 1).toInt();
    return version;
}

QString ProgramVersion::toString() const
{
    return QStringLiteral("%1.%2.%3").arg(m_numbers[0]).arg(m_numbers[1]).arg(m_numbers[2]);
}

} // namespace velmora
