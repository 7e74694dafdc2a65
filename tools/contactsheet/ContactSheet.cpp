// SPDX-License-Identifier: GPL-3.0-or-later
#include "contactsheet/ContactSheet.h"

#include "generator/transitions/Transition.h"

#include <QPainter>

namespace velmora
{

namespace
{

constexpr int kGap = 4;
constexpr int kLabel = 24;
constexpr int kMargin = 12;

} // namespace

QImage ContactSheet::paint() const
{
    const int rows = (effects.size() + columns - 1) / columns;
    const QSize block(percents.size() * (tile.width() + kGap) + kMargin,
                      tile.height() + kLabel + kMargin);
    QImage sheet(block.width() * columns + kMargin, block.height() * rows + kMargin,
                 QImage::Format_RGB32);
    sheet.fill(QColor(38, 40, 46));
    QPainter painter(&sheet);
    QFont font(QStringLiteral("Open Sans"));
    font.setPixelSize(15);
    painter.setFont(font);
    painter.setPen(QColor(235, 235, 235));
    QImage frame;
    for (int i = 0; i < effects.size(); ++i) {
        const QPoint corner(kMargin + i % columns * block.width(),
                            kMargin + i / columns * block.height());
        painter.drawText(QRect(corner, QSize(block.width(), kLabel)),
                         Qt::AlignLeft | Qt::AlignVCenter,
                         transitionName(static_cast<int>(effects[i])));
        for (int moment = 0; moment < percents.size(); ++moment) {
            renderTransitionFrame(effects[i], from, to, {percents[moment], 100}, frame);
            painter.drawImage(corner + QPoint(moment * (tile.width() + kGap), kLabel),
                              frame.scaled(tile, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        }
    }
    return sheet;
}

} // namespace velmora
