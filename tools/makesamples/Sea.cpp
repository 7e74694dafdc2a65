// SPDX-License-Identifier: GPL-3.0-or-later
#include "Canvas.h"
#include "Scenes.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace velmora::samples
{

namespace
{

constexpr double kHorizon = 0.56; // In units of the picture's height.
constexpr double kSunU = 0.60;
constexpr double kSunElevation = 0.055;

/// The sky where a ray with this sideways and upward slope meets it.
Light sky(double side, double up, bool sharp)
{
    static const Ramp ramp{0xffd58a, 0xff9e5c, 0xe8705e, 0xa8527a, 0x5b4a86, 0x2c3a72, 0x1a2a58};
    const double distance = std::hypot(side, (up - kSunElevation) * 1.15);
    Light color = ramp.at(std::pow(clamp01(up / 0.62), 0.8));
    color += light(0xff9040) * (0.8 * std::exp(-distance * 5));
    color += light(0xffd890) * (1.8 * std::exp(-distance * 28));
    color += light(0xfff2c8) * (sharp ? 5 * smoothStep(0.042, 0.038, distance)
                                      : 6 * std::exp(-distance * distance * 900));

    // Clouds on a high level layer, which runs away towards the horizon.
    const double far = 1 / (up + 0.07);
    const double warp = fractalNoise(side * far * 0.5, far * 0.55, 3, 21);
    const double cloud =
        fractalNoise(side * far * 0.75 + warp, far * 0.9 + warp * 0.7, sharp ? 7 : 3, 33);
    const double cover = smoothStep(0.0, 0.36, cloud + 0.04) * smoothStep(0.0, 0.07, up);
    const Ramp cloudRamp{0xffe0a0, 0xff9a60, 0xe0605a, 0x8a4068, 0x4c3560};
    const Light lit = cloudRamp.at(distance * 1.7) * (1.25 - 0.9 * smoothStep(0.15, 0.5, cloud));
    return mix(color, lit, cover * 0.88);
}

/// How the water is tilted at a place, in both directions.
void waveSlope(double across, double away, double &slopeX, double &slopeZ)
{
    slopeX = slopeZ = 0;
    double scale = 0.35;
    double strength = 0.055;
    for (uint32_t octave = 0; octave < 7; ++octave) {
        // Waves finer than what is seen at this distance only make the picture flicker.
        const double visible = smoothStep(1.6, 0.25, scale * away * 0.012);
        const double step = 0.05;
        const double x = across * scale * 1.0;
        const double z = away * scale * 1.5;
        const double here = gradientNoise(x, z, 60 + octave);
        slopeX += visible * strength * (gradientNoise(x + step, z, 60 + octave) - here) / step;
        slopeZ +=
            visible * strength * 1.5 * (gradientNoise(x, z + step, 60 + octave) - here) / step;
        scale *= 1.9;
        strength *= 0.82;
    }
}

Light water(double u, double v)
{
    const double down = v - kHorizon + 0.0006;
    const double away = 1 / down;
    double slopeX = 0;
    double slopeZ = 0;
    waveSlope((u - kSunU) * away, away, slopeX, slopeZ);
    // A tilted facet mirrors a ray that rises as steeply as this one falls, plus twice the tilt.
    const double side = (u - kSunU) + 2 * slopeX * 0.45;
    const double up = std::abs(down * 0.9 + 2 * slopeZ * 0.22);
    const double grazing = std::pow(1 - clamp01(down * 1.1 + slopeZ * 0.9), 3.2);
    const Light deep = mix(light(0x0c2f4a), light(0x1c5468), clamp01(0.5 + slopeZ * 4));
    return mix(deep, sky(side, up, false), clamp01(0.10 + 0.82 * grazing));
}

/// A small sailing boat, dark against the light.
void paintBoat(Canvas &canvas)
{
    QImage layer(canvas.width(), canvas.height(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter painter(&layer);
    painter.setRenderHint(QPainter::Antialiasing);
    const double unit = canvas.height();
    painter.translate(1.06 * unit, (kHorizon + 0.012) * unit);
    painter.scale(unit / 1000, unit / 1000);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(30, 20, 34));
    QPainterPath hull(QPointF(-44, -8));
    hull.quadTo(0, -3, 48, -10);
    hull.quadTo(38, 8, 22, 8);
    hull.lineTo(-30, 8);
    hull.quadTo(-41, 4, -44, -8);
    painter.drawPath(hull);
    painter.drawRect(QRectF(-1.2, -112, 2.4, 106));
    painter.setBrush(QColor(70, 38, 50));
    QPainterPath mainSail(QPointF(2, -108));
    mainSail.quadTo(30, -60, 40, -16);
    mainSail.lineTo(2, -14);
    painter.drawPath(mainSail);
    painter.setBrush(QColor(104, 54, 56));
    QPainterPath jib(QPointF(-2, -98));
    jib.quadTo(-14, -50, -36, -14);
    jib.lineTo(-2, -18);
    painter.drawPath(jib);
    painter.setOpacity(0.45);
    painter.setBrush(QColor(30, 20, 34));
    for (int i = 0; i < 9; ++i)
        painter.drawRoundedRect(QRectF(-34 + 3 * (i % 3), 9 + i * 6, 62 - 5 * i, 2.6), 1.3, 1.3);
    painter.end();
    canvas.compose(layer);
}

} // namespace

QImage paintSea(const QSize &size)
{
    // The glitter needs more samples than pixels.
    Canvas canvas(size.width(), size.height());
    const double unit = size.height();
    canvas.shade([&](int x, int y, const Light &) {
        Light sum;
        for (int sample = 0; sample < 4; ++sample) {
            const double u = (x + 0.25 + 0.5 * (sample & 1)) / unit;
            const double v = (y + 0.25 + 0.5 * (sample >> 1)) / unit;
            sum += v < kHorizon ? sky(u - kSunU, kHorizon - v, true) : water(u, v);
        }
        return sum * 0.25;
    });
    canvas.shade([&](int x, int y, const Light &old) {
        const double u = x / unit;
        const double haze = std::exp(-std::abs(y / unit - kHorizon) * 55) * 0.5;
        return mix(old, light(0xffb070) * (0.75 + 0.5 * std::exp(-std::abs(u - kSunU) * 3)), haze);
    });
    paintBoat(canvas);
    canvas.bloom(0.95, 22, 0.45);
    return canvas.develop(1.0, 0.28, 0.02);
}

} // namespace velmora::samples
