// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/WindowShadow.h"

#include "chrome/Theme.h"

#include <QPainter>

namespace velmora
{

void WindowShadow::paint(QPainter &painter, const QRect &frame)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    // Rounded layers of little opacity, one pixel apart, add up to a quadratic fall-off.
    constexpr int kLayers = Extent - Offset;
    for (int layer = kLayers; layer > 0; --layer) {
        QColor colour(Theme::Text);
        colour.setAlphaF(0.055 * (kLayers - layer + 1) / kLayers);
        painter.setBrush(colour);
        const QRectF area =
            QRectF(frame).translated(0, Offset).adjusted(-layer, -layer, layer, layer);
        painter.drawRoundedRect(area, Theme::Radius + layer, Theme::Radius + layer);
    }
    painter.restore();
}

} // namespace velmora
