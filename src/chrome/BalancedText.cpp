// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/BalancedText.h"

#include <QFontMetrics>
#include <QString>

namespace velmora
{

QRect BalancedText::part(const QFontMetrics &metrics, const QRect &area, const QString &text)
{
    const auto wrapped = [&](int width) {
        return metrics.boundingRect(QRect(0, 0, width, area.height()),
                                    Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, text);
    };
    const int height = wrapped(area.width()).height();
    int tooNarrow = 0;
    int width = area.width();
    while (width - tooNarrow > 1) {
        const int middle = (tooNarrow + width) / 2;
        // A word that is longer than the line sticks out instead of making it another one.
        const QRect shape = wrapped(middle);
        const bool fits = shape.height() <= height && shape.width() <= middle;
        (fits ? width : tooNarrow) = middle;
    }
    return {area.left() + (area.width() - width) / 2, area.top(), width, area.height()};
}

} // namespace velmora
