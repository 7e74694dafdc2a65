// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace velmora
{

/// The words of @p text, which single blanks separate.
inline QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '));
}

} // namespace velmora
