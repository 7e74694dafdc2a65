// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/caption/SelectedColorButtonEffect.h"

#include "chrome/Theme.h"

#include <QPainter>

namespace velmora
{

SelectedColorButtonEffect::SelectedColorButtonEffect(QObject *parent) : QGraphicsEffect(parent) {}

void SelectedColorButtonEffect::draw(QPainter *painter)
{
    constexpr double kTick = 16; // px
    drawSource(painter);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    const QRectF area = sourceBoundingRect();
    painter->setPen(QPen(QColor(Theme::OnPrimary), 2));
    painter->drawRoundedRect(area.adjusted(3, 3, -3, -3), 2, 2);
    painter->setPen(QPen(QColor(Theme::Primary), 2));
    painter->drawRoundedRect(area.adjusted(1, 1, -1, -1), 3, 3);

    QRectF tick(0, 0, kTick, kTick);
    tick.moveCenter(area.center());
    painter->setPen(Qt::NoPen);
    painter->setBrush(QColor(Theme::Primary));
    painter->drawEllipse(tick);
    painter->setPen(
        QPen(QColor(Theme::OnPrimary), 1.75, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF corners[] = {tick.center() + QPointF(-3.5, 0.5), tick.center() + QPointF(-1, 3),
                               tick.center() + QPointF(3.5, -2.5)};
    painter->drawPolyline(corners, 3);
    painter->restore();
}

} // namespace velmora
