// SPDX-License-Identifier: GPL-3.0-or-later
#include "Canvas.h"
#include "Scenes.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <vector>

namespace velmora::samples
{

namespace
{

constexpr double kLightX = 0.95; // All places in units of the picture's height.
constexpr double kSeabed = 0.74;

/// The web of light that waves cast, 0 to about 1.
double caustics(double x, double y, uint32_t seed)
{
    const double warpX = fractalNoise(x * 0.7, y * 0.7, 3, seed) * 1.3;
    const double warpY = fractalNoise(x * 0.7 + 9, y * 0.7, 3, seed + 1) * 1.3;
    const double a = 1 - std::abs(gradientNoise(x + warpX, y + warpY, seed + 2));
    const double b = 1 - std::abs(gradientNoise(x * 1.3 - warpY, y * 1.3 + warpX, seed + 3));
    return 0.65 * std::pow(a, 7) + 0.5 * std::pow(b, 9);
}

Light openWater(double u, double v)
{
    static const Ramp ramp{0x7fe9ea, 0x36bccb, 0x1590b4, 0x0b6a99, 0x084d7c, 0x073a62};
    const double distance = std::hypot((u - kLightX) * 0.8, v + 0.15);
    Light color = ramp.at(distance * 0.85 - 0.06 + 0.03 * fractalNoise(u * 2, v * 2, 3, 2));
    color += light(0xe8fff4) * (0.9 * std::exp(-distance * 5.5));
    const double angle = std::atan2(u - kLightX, v + 0.32);
    const double beams =
        0.5 + 0.5 * fractalNoise(angle * 9, 0.3, 4, 41) + 0.25 * gradientNoise(angle * 38, 1.3, 47);
    const double fade =
        std::exp(-v * 1.9) * smoothStep(-0.05, 0.12, v) * std::exp(-std::abs(angle) * 1.1);
    color += light(0xb8fff0) * (0.75 * std::pow(clamp01(beams), 2.6) * fade);
    if (v < 0.16) { // The surface from below.
        const double away = 1 / (0.19 - v);
        const double web = caustics((u - kLightX) * away * 0.9, away * 1.2, 60);
        color += light(0xeaffff) *
                 (1.5 * web * smoothStep(0.16, 0.02, v) * std::exp(-std::abs(u - kLightX) * 1.1));
    }
    return color;
}

void paintSeabed(Canvas &canvas)
{
    const double unit = canvas.height();
    canvas.shade([&](int x, int y, const Light &behind) {
        const double u = x / unit;
        const double v = y / unit;
        const double top = kSeabed + 0.02 * gradientNoise(u * 1.3, 3, 8);
        if (v < top - 0.02)
            return behind;
        const double down = v - top + 0.03;
        const double away = 1 / std::max(0.004, down);
        const double x3 = (u - 0.75) * away;
        const double web = caustics(x3 * 1.1, away * 1.7, 12);
        const double ripple = std::cos(away * 9 + 2.5 * gradientNoise(x3 * 0.6, away * 0.8, 4)) *
                              std::exp(-away * 0.045);
        const double grain = fractalNoise(x3 * 9, away * 12, 4, 6);
        const Light sand =
            mix(light(0x8fb89a), light(0xe8e4b8), clamp01(0.45 + 0.3 * grain + 0.12 * ripple));
        const double near = std::exp(-std::abs(u - kLightX) * 0.8);
        const Light lit = sand * (light(0x8fdfe0) * (0.38 + 0.28 * near) +
                                  light(0xf4fff0) * (1.0 * web * (0.4 + 0.8 * near)));
        const double haze = std::exp(-down * 9.5);
        return mix(behind, mix(lit, openWater(u, kSeabed), haze),
                   smoothStep(top - 0.02, top + 0.01, v));
    });
}

/// A round coral head, lit from above. Places and sizes in units of the picture's height.
struct Coral {
    double u;
    double v;
    double radius;
    double haze;
    Light color;
    uint32_t seed;
};

/// Heaps of corals at both sides, the farther the smaller and bluer.
std::vector<Coral> plantCorals()
{
    static const Light colors[] = {light(0xc46a58), light(0xd89a5a), light(0x9a5a86),
                                   light(0x6f9a6a), light(0xc9b070), light(0x5f8fa8),
                                   light(0xb84a5e)};
    Random random(404);
    std::vector<Coral> corals;
    for (int i = 0; i < 330; ++i) {
        const double close = i / 329.0;
        const bool left = random.unit() < 0.58;
        const double away = std::min(0.42, std::abs(random.normal()) * (0.16 + 0.08 * close));
        const double u = left ? away - 0.04 : 1.54 - away * 0.8;
        const double heap = std::exp(-away / (left ? 0.20 : 0.15)) * (left ? 0.34 : 0.24);
        const double ground = mix(kSeabed + 0.02, 1.05, close);
        const double v = ground - heap * random.unit() * (0.55 + 0.25 * close);
        const double radius = mix(0.016, 0.062, close) * random.range(0.45, 1.15);
        const Light color = colors[static_cast<int>(random.unit() * 6.99)];
        corals.push_back({u, v, radius, mix(0.72, 0.08, std::sqrt(close)), color,
                          500U + static_cast<uint32_t>(i)});
    }
    return corals;
}

void paintCoral(Canvas &canvas, const Coral &coral)
{
    const double unit = canvas.height();
    const bool grooved = coral.seed % 3 == 0;
    const bool knobbed = coral.seed % 3 == 1;
    const int left = std::max(0, static_cast<int>((coral.u - coral.radius * 1.3) * unit));
    const int right =
        std::min(canvas.width() - 1, static_cast<int>((coral.u + coral.radius * 1.3) * unit));
    const int top = std::max(0, static_cast<int>((coral.v - coral.radius * 1.3) * unit));
    const int bottom =
        std::min(canvas.height() - 1, static_cast<int>((coral.v + coral.radius * 1.3) * unit));
    for (int y = top; y <= bottom; ++y) {
        for (int x = left; x <= right; ++x) {
            const double dx = (x / unit - coral.u) / coral.radius;
            const double dy = (y / unit - coral.v) / coral.radius;
            const double rough = 0.34 * fractalNoise(dx * 1.7, dy * 1.7, 5, coral.seed);
            const double distance = std::hypot(dx, dy * 1.12) + rough;
            const double edge = clamp01((1 - distance) * coral.radius * unit * 0.7);
            if (edge <= 0)
                continue;
            const double bulge = std::sqrt(std::max(0.0, 1 - distance * distance));
            double relief = 0;
            double tilt = 0;
            if (grooved) { // The winding furrows of a brain coral.
                const double bend = 2.2 * fractalNoise(dx * 2.2, dy * 2.2, 3, coral.seed);
                relief = 0.30 * std::sin(9 * (dx + bend)) * std::cos(5 * (dy - bend));
            } else if (knobbed) {
                const double here = std::abs(gradientNoise(dx * 6, dy * 6, coral.seed));
                relief = 0.8 * here - 0.2;
                tilt =
                    2.2 * (std::abs(gradientNoise(dx * 6 + 0.1, dy * 6 + 0.25, coral.seed)) - here);
            } else {
                relief = 0.5 * fractalNoise(dx * 4, dy * 9, 5, coral.seed);
            }
            const double fromAbove = clamp01(0.30 - 0.62 * dy + 0.25 * bulge - 0.14 * dx + tilt);
            const double web = caustics(x / unit * 8, y / unit * 10, 77) * fromAbove;
            const Light albedo = coral.color * (0.85 + relief);
            const Light lit = albedo * (light(0x8fd8e0) * (0.10 + 1.15 * fromAbove) +
                                        light(0xf0fff0) * (1.1 * web));
            const Light veil = openWater(x / unit, 0.52);
            canvas.at(x, y) = mix(canvas.at(x, y), mix(lit, veil, coral.haze), edge);
        }
    }
}

/// Ribbons of kelp that sway in the current.
void paintKelp(Canvas &canvas)
{
    const double unit = canvas.height();
    QImage layer(canvas.width(), canvas.height(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter painter(&layer);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    Random random(3);
    for (int i = 0; i < 16; ++i) {
        const bool left = i < 10;
        const double root = left ? random.range(-0.02, 0.30) : random.range(1.33, 1.52);
        const double tall = random.range(0.22, left ? 0.62 : 0.44) *
                            (left ? 1.1 - root * 2 : 0.55 + (root - 1.33) * 2.4);
        const double phase = random.range(0, 6);
        QPainterPath ribbon;
        QVector<QPointF> back;
        for (int step = 0; step <= 40; ++step) {
            const double t = step / 40.0;
            const double sway = 0.035 * t * std::sin(t * 5 + phase) + 0.05 * t * t;
            const double width =
                0.0075 * std::pow(1 - t, 0.6) * (0.75 + 0.35 * std::sin(t * 34 + phase)) + 0.0004;
            const QPointF centre((root + sway) * unit, (0.99 - tall * t) * unit);
            step == 0 ? ribbon.moveTo(centre - QPointF(width * unit, 0))
                      : ribbon.lineTo(centre - QPointF(width * unit, 0));
            back.prepend(centre + QPointF(width * unit, 0));
        }
        for (const QPointF &point : back)
            ribbon.lineTo(point);
        QLinearGradient color(0, 0.99 * unit, 0, (0.99 - tall) * unit);
        color.setColorAt(0, QColor(16, 58, 62));
        color.setColorAt(0.6, QColor(44, 116, 84));
        color.setColorAt(1, QColor(124, 186, 112));
        painter.setBrush(color);
        painter.drawPath(ribbon);
    }
    painter.end();
    canvas.compose(layer, 0.85);
}

QPainterPath fishPath()
{
    QPainterPath path(QPointF(1, 0));
    path.cubicTo(0.6, -0.42, -0.2, -0.40, -0.62, -0.07);
    path.lineTo(-1.02, -0.34);
    path.quadTo(-0.88, 0, -1.02, 0.34);
    path.lineTo(-0.62, 0.07);
    path.cubicTo(-0.2, 0.36, 0.6, 0.40, 1, 0);
    return path;
}

void paintFish(QPainter &painter, const QPointF &place, double length, double tilt,
               const QColor &back, const QColor &belly, bool striped)
{
    painter.save();
    painter.translate(place);
    painter.rotate(tilt);
    painter.scale(length, length);
    QLinearGradient body(0, -0.35, 0, 0.35);
    body.setColorAt(0, back);
    body.setColorAt(0.55, belly);
    body.setColorAt(1, belly.darker(150));
    painter.setPen(Qt::NoPen);
    painter.setBrush(back.darker(120));
    QPainterPath fin(QPointF(0.45, -0.27));
    fin.quadTo(0.0, -0.62, -0.4, -0.2);
    painter.drawPath(fin);
    QPainterPath lower(QPointF(0.2, 0.27));
    lower.quadTo(-0.1, 0.52, -0.3, 0.2);
    painter.drawPath(lower);
    painter.setBrush(body);
    painter.drawPath(fishPath());
    if (striped) {
        painter.setClipPath(fishPath());
        painter.setBrush(QColor(250, 250, 240));
        painter.drawEllipse(QPointF(0.36, 0), 0.09, 0.5);
        painter.drawEllipse(QPointF(-0.14, 0), 0.08, 0.5);
    }
    painter.setBrush(QColor(12, 20, 30));
    painter.drawEllipse(QPointF(0.68, -0.08), 0.055, 0.055);
    painter.restore();
}

void paintLife(Canvas &canvas)
{
    const double unit = canvas.height();
    QImage layer(canvas.width(), canvas.height(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter painter(&layer);
    painter.setRenderHint(QPainter::Antialiasing);
    Random random(21);
    for (int i = 0; i < 130; ++i) { // A shoal, the farther fish paler.
        const double depth = 1 - i / 130.0;
        const double turn = random.range(0, 2 * M_PI);
        const double out = std::sqrt(random.unit());
        const QPointF place((0.98 + 0.34 * out * std::cos(turn) + 0.06 * random.normal()) * unit,
                            (0.40 + 0.115 * out * std::sin(turn) + 0.02 * random.normal()) * unit);
        QColor back = QColor(24, 84, 124);
        QColor belly = QColor(190, 226, 232);
        back.setAlphaF(0.95 - 0.65 * depth);
        belly.setAlphaF(0.95 - 0.65 * depth);
        paintFish(painter, place, unit * (0.008 + 0.010 * (1 - depth)), -172 + random.normal() * 7,
                  back, belly, false);
    }
    const QPointF clowns[] = {{0.42, 0.60}, {0.54, 0.66}, {0.35, 0.70}, {0.60, 0.57}};
    for (const QPointF &clown : clowns)
        paintFish(painter, clown * unit, unit * random.range(0.021, 0.032), random.range(-14, 10),
                  QColor(236, 110, 34), QColor(255, 168, 66), true);
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < 46; ++i) {
        const double rise = random.unit();
        const QPointF place((1.16 + 0.03 * std::sin(rise * 9) + 0.012 * random.normal()) * unit,
                            (0.93 - 0.8 * rise) * unit);
        const double r = unit * random.range(0.0015, 0.0065) * (0.5 + rise);
        QRadialGradient bubble(place - QPointF(r, r) * 0.3, r * 1.3);
        bubble.setColorAt(0, QColor(255, 255, 255, 190));
        bubble.setColorAt(0.3, QColor(200, 250, 255, 40));
        bubble.setColorAt(0.8, QColor(220, 255, 255, 150));
        bubble.setColorAt(1, QColor(220, 255, 255, 0));
        painter.setBrush(bubble);
        painter.drawEllipse(place, r, r);
    }
    painter.end();
    canvas.compose(layer);
}

} // namespace

QImage paintReef(const QSize &size)
{
    Canvas canvas(size.width(), size.height());
    const double unit = size.height();
    canvas.shade([&](int x, int y, const Light &) { return openWater(x / unit, y / unit); });
    paintSeabed(canvas);
    const std::vector<Coral> corals = plantCorals();
    for (std::size_t i = 0; i < corals.size(); ++i) {
        if (i == corals.size() / 2)
            paintKelp(canvas);
        paintCoral(canvas, corals[i]);
    }
    paintLife(canvas);
    canvas.bloom(0.75, 24, 0.35);
    return canvas.develop(1.05, 0.3, 0.02);
}

} // namespace velmora::samples
