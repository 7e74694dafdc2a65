// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Noise.h"

#include <QImage>
#include <QtConcurrent>

#include <numeric>
#include <vector>

namespace velmora::samples
{

/// A colour in linear light; may exceed 1 where the light is strong.
struct Light {
    double r = 0;
    double g = 0;
    double b = 0;

    Light operator+(const Light &o) const { return {r + o.r, g + o.g, b + o.b}; }
    Light operator*(const Light &o) const { return {r * o.r, g * o.g, b * o.b}; }
    Light operator*(double f) const { return {r * f, g * f, b * f}; }
    Light &operator+=(const Light &o) { return *this = *this + o; }
};

/// The light of a display colour such as 0xFFE0B0.
Light light(unsigned displayColor);
Light mix(const Light &a, const Light &b, double t);

/// A colour ramp through evenly spaced colours.
class Ramp
{
public:
    Ramp(std::initializer_list<unsigned> displayColors);
    Light at(double position) const; ///< Clamped to 0 to 1.

private:
    std::vector<Light> m_colors;
};

/// A picture in linear light, developed into a display picture at the end.
class Canvas
{
public:
    Canvas(int width, int height);

    int width() const { return m_width; }
    int height() const { return m_height; }
    Light &at(int x, int y) { return m_pixels[index(x, y)]; }
    const Light &at(int x, int y) const { return m_pixels[index(x, y)]; }

    /// Sets every pixel to function(x, y, old value), rows in parallel.
    template <typename Function> void shade(Function function)
    {
        std::vector<int> rows(static_cast<std::size_t>(m_height));
        std::iota(rows.begin(), rows.end(), 0);
        QtConcurrent::blockingMap(rows, [&](int y) {
            for (int x = 0; x < m_width; ++x)
                at(x, y) = function(x, y, at(x, y));
        });
    }

    /// Lays a painted picture over the canvas.
    void compose(const QImage &layer, double opacity = 1);
    /// Spreads the light above @p threshold around bright places.
    void bloom(double threshold, int radius, double strength);
    /// Blurs the whole canvas.
    void blur(int radius);

    /// The display picture: soft shoulder, vignette and a fine grain.
    QImage develop(double exposure, double vignette, double grain) const;

private:
    std::size_t index(int x, int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) +
               static_cast<std::size_t>(x);
    }

    int m_width;
    int m_height;
    std::vector<Light> m_pixels;
};

} // namespace velmora::samples
