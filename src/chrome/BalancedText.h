// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

class QFontMetrics;
class QString;

namespace velmora
{

/// Centred text of several lines that are about equally long, so that no word, or a single letter
/// of a script without spaces, is left alone on the last one.
namespace BalancedText
{

/// The narrowest part in the middle of @p area (px) in which @p text takes no more lines than in
/// all of it. Wrap and centre the text there.
QRect part(const QFontMetrics &metrics, const QRect &area, const QString &text);

} // namespace BalancedText

} // namespace velmora
