// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/CardMotion.h"

#include <QtMath>

#include <cmath>

namespace velmora
{

QTransform turnedPlacement(const QSize &picture, const QPointF &centre, double scale,
                           double degrees)
{
    QTransform placement;
    placement.translate(centre.x(), centre.y());
    placement.rotate(degrees);
    placement.scale(scale, scale);
    placement.translate(-picture.width() / 2.0, -picture.height() / 2.0);
    return placement;
}

QTransform swungPlacement(const QSize &picture, const QPointF &centre, double degrees)
{
    const double sine = std::sin(qDegreesToRadians(degrees));
    const double cosine = std::cos(qDegreesToRadians(degrees));
    // The viewer's distance in widths of the picture: near enough to see the perspective.
    const double distance = 1.5 * picture.width();
    const double nearest = 1 - picture.width() / 2.0 * std::abs(sine) / distance;
    const QTransform swing(nearest * cosine, 0, sine / distance, 0, nearest, 0, 0, 0, 1);
    return QTransform::fromTranslate(-picture.width() / 2.0, -picture.height() / 2.0) * swing *
           QTransform::fromTranslate(centre.x(), centre.y());
}

} // namespace velmora
