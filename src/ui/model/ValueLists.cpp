// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/model/ValueLists.h"

#include "app/AppSettings.h"
#include "project/slides/TransitionType.h"

#include <QCoreApplication>
#include <QSize>

#include <algorithm>
#include <initializer_list>

namespace velmora
{

namespace ValueLists
{

namespace
{

QPopupButton::Values seconds(std::initializer_list<int> list)
{
    QPopupButton::Values values;
    for (const int value : list)
        values.append({secondsText(value), value});
    return values;
}

} // namespace

QString secondsText(int value)
{
    return QCoreApplication::translate("ValueLists", "%1 sec").arg(value);
}

QPopupButton::Values slideTimes()
{
    return seconds({1, 2, 3, 4, 5, 7, 10, 15, 20});
}

QPopupButton::Values transitionLengths()
{
    return seconds({1, 2, 3});
}

QPopupButton::Values fades()
{
    return seconds({0, 1, 2, 3, 4, 5});
}

QPopupButton::Values offsets()
{
    return seconds({-10, -7, -5, -4, -3, -2, -1, 0, 1, 2, 3, 4, 5, 7, 10});
}

QPopupButton::Values resolutions()
{
    QPopupButton::Values values;
    for (const QSize &size : offeredResolutions())
        values.append({resolutionToText(size), size});
    return values;
}

QPopupButton::Values transitions()
{
    QPopupButton::Values values;
    for (const TransitionType type : transitionMenuOrder()) {
        const int number = static_cast<int>(type);
        values.append({translatedTransitionName(number), number});
    }
    return values;
}

QPopupButton::Values formats()
{
    QPopupButton::Values values;
    for (const char *name : {"mp4", "avi", "mov", "webm"}) {
        const QString extension = QLatin1String(name);
        values.append({QLatin1Char('.') + extension, extension});
    }
    return values;
}

QString durationText(qint64 milliseconds)
{
    constexpr qint64 kSecond = 1000;
    const qint64 all = std::max<qint64>(0, milliseconds) / kSecond;
    return QStringLiteral("%1:%2:%3")
        .arg(all / 3600)
        .arg(all / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(all % 60, 2, 10, QLatin1Char('0'));
}

} // namespace ValueLists

} // namespace velmora
