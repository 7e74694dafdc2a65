// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/QPopupButton.h"

namespace velmora
{

/// The values that menus of the editor and the settings offer, in menu order, with their texts in
/// the interface language.
namespace ValueLists
{

QString secondsText(int seconds); ///< "3 sec"

QPopupButton::Values slideTimes();        ///< int, s
QPopupButton::Values transitionLengths(); ///< int, s
QPopupButton::Values fades();             ///< int, s; 0: no fade
QPopupButton::Values offsets();           ///< int, s
QPopupButton::Values resolutions();       ///< QSize, px
QPopupButton::Values transitions();       ///< int, a TransitionType
QPopupButton::Values formats();           ///< QString, extension without a dot; text with it

/// "%1:%2:%3": hours unpadded, minutes and seconds with two digits, from @p milliseconds.
QString durationText(qint64 milliseconds);

} // namespace ValueLists

} // namespace velmora
