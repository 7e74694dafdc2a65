// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/transitions/Transition.h"

#include <QImage>

#include <cmath>
#include <cstdlib>

namespace velmora::testing
{

/// A picture in which no two neighbours are equal and every place is known by its colour; the
/// blue channel tells the pictures apart ("warm" has little, "cold" has much of it).
inline QImage gradientPicture(const QSize &size, int blue)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y,
                           qRgb(20 + 200 * x / size.width() + x % 2 * 15,
                                20 + 200 * y / size.height() + y % 2 * 15, blue));
        }
    }
    return image;
}
inline QImage warmPicture(const QSize &size)
{
    return gradientPicture(size, 30);
}
inline QImage coldPicture(const QSize &size)
{
    return gradientPicture(size, 220);
}

/// The mean difference of two pictures of one size, in levels of 0 to 255 per channel.
inline double meanDifference(const QImage &a, const QImage &b)
{
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) +
                   std::abs(qBlue(p) - qBlue(q));
        }
    }
    return sum / (3.0 * a.width() * a.height());
}

inline QImage render(TransitionType type, const QImage &from, const QImage &to, int frame,
                     int count)
{
    QImage target;
    renderTransitionFrame(type, from, to, {frame, count}, target);
    return target;
}

} // namespace velmora::testing
