// SPDX-License-Identifier: GPL-3.0-or-later
#include "programs/velmoratool/ProgressText.h"

#include <QCoreApplication>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int kNarrowestBar = 8; // characters

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(velmora::ProgressText)
};

qint64 percent(const ProgressText::State &state)
{
    return state.count > 0 ? state.frame * 100 / state.count : 0;
}

QString times(const ProgressText::State &state)
{
    if (state.remaining < 0)
        return Texts::tr("%1 elapsed").arg(ProgressText::clock(state.elapsed));
    return Texts::tr("%1 elapsed, %2 left")
        .arg(ProgressText::clock(state.elapsed), ProgressText::clock(state.remaining));
}

} // namespace

QString ProgressText::clock(qint64 milliseconds)
{
    const qint64 seconds = std::max<qint64>(0, milliseconds) / 1000;
    const QLatin1Char zero('0');
    const qint64 hours = seconds / 3600;
    const QString rest = QStringLiteral("%1:%2")
                             .arg(seconds / 60 % 60, hours > 0 ? 2 : 1, 10, zero)
                             .arg(seconds % 60, 2, 10, zero);
    return hours > 0 ? QStringLiteral("%1:%2").arg(hours).arg(rest) : rest;
}

int ProgressText::tenth(qint64 frame, qint64 count)
{
    return count > 0 ? static_cast<int>(frame * 10 / count) : 0;
}

QString ProgressText::bar(const State &state, int columns)
{
    const QString text = QStringLiteral(" %1 %  %2").arg(percent(state), 3).arg(times(state));
    const int width = columns - text.size() - 2;
    if (width < kNarrowestBar)
        return text.leftJustified(columns, QLatin1Char(' '), true);
    const int done = static_cast<int>(percent(state) * width / 100);
    return QLatin1Char('[') + QString(done, QLatin1Char('#')) +
           QString(width - done, QLatin1Char('.')) + QLatin1Char(']') + text;
}

QString ProgressText::line(const State &state)
{
    return Texts::tr("%1 %, %2").arg(QString::number(percent(state)), times(state));
}

} // namespace velmora
