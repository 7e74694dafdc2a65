// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

/// The longest beginning of @p text that has at most @p size of what @p measure counts, with whole
/// characters.
template <typename Measure> QString shortened(QString text, int size, Measure measure)
{
    while (!text.isEmpty() && measure(text) > size)
        text.chop(text.size() > 1 && text.at(text.size() - 1).isLowSurrogate() ? 2 : 1);
    return text;
}

} // namespace velmora
