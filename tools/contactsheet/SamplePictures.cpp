// SPDX-License-Identifier: GPL-3.0-or-later
#include "contactsheet/SamplePictures.h"

#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <cmath>

namespace velmora
{

namespace
{

/// The pictures are drawn on a field of 160 x 90 units and cover every frame.
QImage canvasFor(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::black);
    return image;
}

void prepare(QPainter &painter, const QSize &size)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size.width() / 160.0, size.height() / 90.0);
    painter.setPen(Qt::NoPen);
}

QLinearGradient upright(const QColor &top, const QColor &bottom, double from = 0, double to = 90)
{
    QLinearGradient gradient(0, from, 0, to);
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, bottom);
    return gradient;
}

/// A ridge of hills whose crest is a sum of two waves about @p height.
QPainterPath ridge(double height, double amplitude, double phase)
{
    QPainterPath path(QPointF(0, 90));
    for (int x = 0; x <= 160; x += 2) {
        const double wave = std::sin(x / 17.0 + phase) + 0.6 * std::sin(x / 7.3 + 2 * phase);
        path.lineTo(x, height - amplitude * wave);
    }
    path.lineTo(160, 90);
    return path;
}

void drawTitle(QPainter &painter, const QRectF &place, const QString &text, const QColor &color)
{
    QFont font(QStringLiteral("Open Sans"));
    font.setPixelSize(11);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(color);
    painter.drawText(place, Qt::AlignCenter, text);
    painter.setPen(Qt::NoPen);
}

void drawTree(QPainter &painter, double x, double ground, double height)
{
    painter.setBrush(QColor(92, 64, 40));
    painter.drawRect(QRectF(x - 0.6, ground - height * 0.3, 1.2, height * 0.3));
    painter.setBrush(QColor(22, 110, 60));
    for (int i = 0; i < 3; ++i) {
        const double top = ground - height * (1 - 0.22 * i);
        const double half = height * (0.16 + 0.07 * i);
        painter.drawPolygon(QPolygonF({QPointF(x, top), QPointF(x - half, top + height * 0.36),
                                       QPointF(x + half, top + height * 0.36)}));
    }
}

} // namespace

QImage paintDayPicture(const QSize &size)
{
    QImage image = canvasFor(size);
    QPainter painter(&image);
    prepare(painter, size);
    painter.fillRect(QRectF(0, 0, 160, 90), upright(QColor(48, 136, 226), QColor(255, 226, 170)));
    QRadialGradient sun(122, 24, 26);
    sun.setColorAt(0, QColor(255, 252, 220));
    sun.setColorAt(0.35, QColor(255, 232, 130));
    sun.setColorAt(1, QColor(255, 232, 130, 0));
    painter.setBrush(sun);
    painter.drawEllipse(QPointF(122, 24), 26, 26);
    painter.setBrush(QColor(255, 255, 255, 210));
    for (const QPointF &cloud : {QPointF(30, 18), QPointF(76, 11), QPointF(142, 45)}) {
        painter.drawEllipse(cloud, 11, 3.4);
        painter.drawEllipse(cloud + QPointF(-3, -2.5), 5, 4);
        painter.drawEllipse(cloud + QPointF(4, -2), 4, 3);
    }
    painter.fillPath(ridge(52, 6, 0.4), upright(QColor(120, 150, 190), QColor(90, 130, 150)));
    painter.fillPath(ridge(62, 4, 2.1), upright(QColor(80, 160, 90), QColor(40, 120, 60), 50));
    painter.fillPath(ridge(74, 3, 4.0), upright(QColor(150, 200, 70), QColor(60, 140, 50), 65));
    for (int i = 0; i < 9; ++i)
        drawTree(painter, 10 + 17.5 * i, 80 + 4 * (i % 2), 14 + 5 * (i % 3));
    drawTitle(painter, QRectF(0, 20, 160, 20), QStringLiteral("Summer hills"), Qt::white);
    return image;
}

QImage paintNightPicture(const QSize &size)
{
    QImage image = canvasFor(size);
    QPainter painter(&image);
    prepare(painter, size);
    painter.fillRect(QRectF(0, 0, 160, 90), upright(QColor(30, 10, 60), QColor(240, 80, 110)));
    painter.setBrush(QColor(255, 244, 220));
    painter.drawEllipse(QPointF(34, 26), 13, 13);
    painter.setBrush(QColor(235, 214, 190));
    painter.drawEllipse(QPointF(30, 23), 3, 3);
    painter.drawEllipse(QPointF(38, 31), 2, 2);
    painter.setBrush(QColor(255, 255, 255, 200));
    for (int i = 0; i < 60; ++i) {
        const double radius = 0.2 + 0.15 * (i % 3);
        painter.drawEllipse(QPointF((i * 37) % 160, (i * 23) % 45), radius, radius);
    }
    for (int i = 0; i < 14; ++i) {
        const double height = 20 + (i * 29) % 34;
        const QRectF house(i * 12 - 3, 80 - height, 10.5, height);
        painter.fillRect(house, upright(QColor(40, 20, 70), QColor(90, 30, 90), 80 - height, 80));
        painter.setBrush(QColor(255, 205, 90));
        for (double y = house.top() + 2; y < 76; y += 4) {
            for (int column = 0; column < 3; ++column) {
                if ((i * 7 + static_cast<int>(y) + column * 5) % 3 != 0)
                    painter.drawRect(QRectF(house.left() + 1.5 + column * 3, y, 1.6, 2.2));
            }
        }
    }
    painter.fillRect(QRectF(0, 80, 160, 10), upright(QColor(90, 40, 110), QColor(20, 10, 40), 80));
    drawTitle(painter, QRectF(52, 8, 108, 18), QStringLiteral("City lights"),
              QColor(255, 220, 120));
    return image;
}

} // namespace velmora
