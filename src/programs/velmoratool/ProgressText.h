// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

/// How far a render has come, in words. Pure functions.
namespace ProgressText
{

struct State {
    qint64 frame;
    qint64 count;
    qint64 elapsed;   ///< ms
    qint64 remaining; ///< ms; -1: unknown.
};

/// "m:ss" or "h:mm:ss".
QString clock(qint64 milliseconds);
/// 0 to 10; 10 only when all is done.
int tenth(qint64 frame, qint64 count);
/// A bar with percentage and times of exactly @p columns characters, without the bar where that is
/// too narrow.
QString bar(const State &state, int columns);
/// The same as a sentence.
QString line(const State &state);

} // namespace ProgressText

} // namespace velmora
