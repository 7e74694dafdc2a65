// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace velmora
{

/// What the blanks of @p text separate.
inline QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace velmora
