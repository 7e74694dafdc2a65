// SPDX-License-Identifier: GPL-3.0-or-later
#include "Canvas.h"

#include <algorithm>
#include <cmath>

namespace velmora::samples
{

namespace
{

double toLinear(double display)
{
    return display <= 0.04045 ? display / 12.92 : std::pow((display + 0.055) / 1.055, 2.4);
}

double toDisplay(double linear)
{
    return linear <= 0.0031308 ? linear * 12.92 : 1.055 * std::pow(linear, 1 / 2.4) - 0.055;
}

/// Straight up to 0.7, then bending towards 1, so that bright skies keep their colour.
double shoulder(double value)
{
    constexpr double knee = 0.7;
    if (value <= knee)
        return std::max(0.0, value);
    return knee + (1 - knee) * (1 - std::exp(-(value - knee) / (1 - knee)));
}

/// One pass of a running mean along rows or columns.
void boxPass(std::vector<Light> &pixels, int lines, int length, int lineStep, int step, int radius)
{
    std::vector<Light> source(static_cast<std::size_t>(length));
    const double weight = 1.0 / (2 * radius + 1);
    for (int line = 0; line < lines; ++line) {
        auto pixel = [&](int i) -> Light & {
            return pixels[static_cast<std::size_t>(line) * static_cast<std::size_t>(lineStep) +
                          static_cast<std::size_t>(i) * static_cast<std::size_t>(step)];
        };
        for (int i = 0; i < length; ++i)
            source[static_cast<std::size_t>(i)] = pixel(i);
        auto clamped = [&](int i) {
            return source[static_cast<std::size_t>(std::clamp(i, 0, length - 1))];
        };
        Light sum;
        for (int i = -radius; i <= radius; ++i)
            sum += clamped(i);
        for (int i = 0; i < length; ++i) {
            pixel(i) = sum * weight;
            sum += clamped(i + radius + 1);
            sum += clamped(i - radius) * -1;
        }
    }
}

} // namespace

Light light(unsigned displayColor)
{
    return {toLinear(((displayColor >> 16) & 255) / 255.0),
            toLinear(((displayColor >> 8) & 255) / 255.0), toLinear((displayColor & 255) / 255.0)};
}

Light mix(const Light &a, const Light &b, double t)
{
    return a * (1 - t) + b * t;
}

Ramp::Ramp(std::initializer_list<unsigned> displayColors)
{
    for (const unsigned color : displayColors)
        m_colors.push_back(light(color));
}

Light Ramp::at(double position) const
{
    const double place = clamp01(position) * static_cast<double>(m_colors.size() - 1);
    const auto first = std::min(static_cast<std::size_t>(place), m_colors.size() - 2);
    return mix(m_colors[first], m_colors[first + 1], place - static_cast<double>(first));
}

Canvas::Canvas(int width, int height)
    : m_width(width), m_height(height),
      m_pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height))
{
}

void Canvas::compose(const QImage &layer, double opacity)
{
    const QImage picture = layer.convertToFormat(QImage::Format_ARGB32);
    shade([&](int x, int y, const Light &below) {
        const QRgb pixel = reinterpret_cast<const QRgb *>(picture.constScanLine(y))[x];
        const double alpha = qAlpha(pixel) / 255.0 * opacity;
        return alpha > 0 ? mix(below, light(pixel & 0xFFFFFFU), alpha) : below;
    });
}

void Canvas::bloom(double threshold, int radius, double strength)
{
    Canvas glow(m_width, m_height);
    glow.shade([&](int x, int y, const Light &) {
        const Light &source = at(x, y);
        const double brightness = std::max({source.r, source.g, source.b});
        return brightness > threshold ? source * ((brightness - threshold) / brightness) : Light();
    });
    glow.blur(radius);
    shade([&](int x, int y, const Light &old) { return old + glow.at(x, y) * strength; });
}

void Canvas::blur(int radius)
{
    for (int pass = 0; pass < 3; ++pass) {
        boxPass(m_pixels, m_height, m_width, m_width, 1, radius);
        boxPass(m_pixels, m_width, m_height, 1, m_width, radius);
    }
}

QImage Canvas::develop(double exposure, double vignette, double grain) const
{
    QImage picture(m_width, m_height, QImage::Format_RGB32);
    for (int y = 0; y < m_height; ++y) {
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < m_width; ++x) {
            const double dx = 2.0 * x / m_width - 1;
            const double dy = 2.0 * y / m_height - 1;
            const double factor =
                exposure * (1 - vignette * std::pow((dx * dx + dy * dy) / 2, 1.3));
            const double speckle =
                grain * (hashNoise(x, y, 77) + hashNoise(x, y, 78) + hashNoise(x, y, 79) - 1.5);
            auto channel = [&](double value) {
                const double display = toDisplay(shoulder(value * factor)) + speckle;
                return static_cast<int>(std::lround(255 * clamp01(display)));
            };
            const Light &source = at(x, y);
            line[x] = qRgb(channel(source.r), channel(source.g), channel(source.b));
        }
    }
    return picture;
}

} // namespace velmora::samples
