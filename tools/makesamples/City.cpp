// SPDX-License-Identifier: GPL-3.0-or-later
#include "Canvas.h"
#include "Scenes.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace velmora::samples
{

namespace
{

constexpr double kQuay = 0.66; // In units of the picture's height.

void paintSky(Canvas &canvas)
{
    const double unit = canvas.height();
    canvas.shade([&](int x, int y, const Light &) {
        static const Ramp ramp{0x0a1230, 0x141f4c, 0x2a2f68, 0x554482,
                               0x96587e, 0xd97f68, 0xf7b070};
        const double u = x / unit;
        const double v = y / unit;
        Light color = ramp.at(std::pow(v / kQuay, 0.95)) * 0.85;
        color += light(0xff9a50) * (0.35 * std::exp(-std::hypot(u - 0.45, (v - kQuay) * 1.8) * 3));
        const double warp = fractalNoise(u * 1.2, v * 3, 3, 8);
        const double cloud = fractalNoise(u * 1.1 + warp * 0.5, v * 6 + warp, 6, 5);
        const Light lit = mix(light(0x2b2c58), light(0xff9a6a), smoothStep(0.1, 0.62, v));
        color = mix(color, lit * 0.8, 0.7 * smoothStep(0.05, 0.45, cloud));
        const double moon = std::hypot(u - 1.22, v - 0.15);
        color += light(0xdfe6ff) * (0.16 * std::exp(-moon * 9) + 0.35 * std::exp(-moon * 40));
        const double disc = smoothStep(0.026, 0.024, moon);
        const double seas = 0.95 + 0.75 * fractalNoise(u * 42, v * 42, 4, 3);
        return mix(color, light(0xf4ead6) * (0.80 * seas), disc);
    });
    Random random(12);
    for (int i = 0; i < 260; ++i) {
        const int x = static_cast<int>(random.unit() * (canvas.width() - 1));
        const int y = static_cast<int>(random.unit() * 0.3 * unit);
        canvas.at(x, y) += light(0xdde6ff) * (0.05 + 0.6 * std::pow(random.unit(), 6));
    }
}

struct Tower {
    int left;
    int right;
    int top;
};

/// The dark body with a sheen of the evening sky on it, and its lit windows.
void paintTower(Canvas &canvas, const Tower &tower, const Light &body, double haze, double lights,
                Random &random)
{
    const int quay = static_cast<int>(kQuay * canvas.height());
    const int cell = random.unit() < 0.5 ? 6 : 7;
    const int floorHeight = random.unit() < 0.5 ? 7 : 9;
    const bool ribbons = random.unit() < 0.3;
    const uint32_t seed = static_cast<uint32_t>(random.unit() * 100000);
    const double occupied = random.range(0.3, 0.62);
    const Light tint =
        mix(light(0xffc878), light(0xcfe0ff), random.unit() < 0.25 ? 0.9 : random.unit() * 0.2);
    for (int y = std::max(0, tower.top); y < quay; ++y) {
        for (int x = std::max(0, tower.left); x < std::min(canvas.width(), tower.right); ++x) {
            const int column = (x - tower.left - 2) / cell;
            const int level = (y - tower.top - 5) / floorHeight;
            const double across = static_cast<double>(x - tower.left) / (tower.right - tower.left);
            const double v = static_cast<double>(y) / canvas.height();
            Light color = body * (1.3 - 0.7 * across);
            color = mix(color, light(0xb86a78) * 0.55, haze * smoothStep(0.25, kQuay, v));
            const bool pane = (x - tower.left - 2) % cell < cell - 2 &&
                              (y - tower.top - 5) % floorHeight < floorHeight - 4 &&
                              x > tower.left + 2 && x < tower.right - 3 && y > tower.top + 5;
            if (pane) {
                const double draw = hashNoise(ribbons ? column / 5 : column, level, seed);
                const double brightness =
                    0.35 + 0.9 * std::pow(hashNoise(column, level, seed + 1), 2);
                color = draw < occupied
                            ? mix(tint, light(0xff9f50), 0.6 * hashNoise(column, level, seed + 2)) *
                                  (brightness * lights)
                            : color * 1.06 + light(0x5a6aa0) * 0.006;
            }
            canvas.at(x, y) = color;
        }
    }
    const int middle = (tower.left + tower.right) / 2;
    if (random.unit() < 0.4 && middle > 2 && middle < canvas.width() - 3) {
        const int mast = 20 + static_cast<int>(random.unit() * 45);
        for (int y = std::max(0, tower.top - mast); y < tower.top; ++y)
            canvas.at(middle, y) = body;
        if (tower.top - mast > 2) {
            for (int dx = -1; dx <= 1; ++dx)
                canvas.at(middle + dx, tower.top - mast) = light(0xff4030) * 2.5;
        }
    }
}

void paintSkyline(Canvas &canvas)
{
    static const Light bodies[] = {light(0x4a3c66), light(0x262a50), light(0x10142c)};
    static const double lights[] = {0.34, 0.75, 1.35};
    const double unit = canvas.height();
    Random random(58);
    for (int row = 0; row < 3; ++row) {
        double x = -20;
        while (x < canvas.width()) {
            const double wide = unit * random.range(0.035, 0.085);
            const double centre = std::exp(-std::pow((x / unit - 0.62) / 0.42, 2));
            const double tall =
                (0.07 + 0.05 * (2 - row) + (0.33 - 0.06 * row) * centre * random.range(0.35, 1.0) +
                 random.range(0, 0.06)) *
                unit;
            const Tower tower{static_cast<int>(x), static_cast<int>(x + wide),
                              static_cast<int>(kQuay * unit - tall)};
            paintTower(canvas, tower, bodies[row], 0.55 - 0.25 * row, lights[row], random);
            if (tall > 0.24 * unit) { // High towers step back towards their tops.
                const int inset = static_cast<int>(wide * 0.2);
                paintTower(canvas,
                           {tower.left + inset, tower.right - inset,
                            tower.top - static_cast<int>(0.05 * unit)},
                           bodies[row], 0.55 - 0.25 * row, lights[row], random);
                paintTower(canvas, tower, bodies[row], 0.55 - 0.25 * row, lights[row], random);
            }
            x += wide + unit * random.range(-0.004, 0.014 + 0.02 * row);
        }
    }
}

/// A suspension bridge that crosses the right half of the picture.
void paintBridge(Canvas &canvas)
{
    const double unit = canvas.height();
    QImage layer(canvas.width(), canvas.height(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter painter(&layer);
    painter.setRenderHint(QPainter::Antialiasing);
    const double deck = (kQuay - 0.035) * unit;
    const double towers[] = {0.98 * unit, 1.40 * unit};
    const double high = (kQuay - 0.235) * unit;
    const QColor steel(26, 22, 44);
    painter.setPen(Qt::NoPen);
    painter.setBrush(steel);
    painter.drawRect(QRectF(0.74 * unit, deck, unit, 0.011 * unit));
    for (const double tower : towers) {
        painter.drawRect(QRectF(tower - 0.012 * unit, high, 0.006 * unit, kQuay * unit - high));
        painter.drawRect(QRectF(tower + 0.006 * unit, high, 0.006 * unit, kQuay * unit - high));
        for (int i = 0; i < 4; ++i)
            painter.drawRect(QRectF(tower - 0.012 * unit, high + (0.004 + 0.045 * i) * unit,
                                    0.024 * unit, 0.005 * unit));
    }
    auto cable = [&](double x) {
        const double half = (towers[1] - towers[0]) / 2;
        const double place = std::fmod(x - towers[0] + 8 * half, 2 * half) / half - 1;
        return deck - 0.012 * unit - (deck - high - 0.012 * unit) * place * place;
    };
    QPainterPath path(QPointF(0.77 * unit, cable(0.77 * unit)));
    for (double x = 0.77 * unit; x < canvas.width() + 10; x += 3)
        path.lineTo(x, cable(x));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(steel, 0.0038 * unit));
    painter.drawPath(path);
    painter.setPen(QPen(steel, 1.1));
    for (double x = 0.78 * unit; x < canvas.width(); x += 0.014 * unit)
        painter.drawLine(QPointF(x, cable(x)), QPointF(x, deck));
    painter.end();
    canvas.compose(layer);
    for (double x = 0.775 * unit; x < canvas.width() - 2; x += 0.028 * unit) {
        for (int dy = 0; dy < 3; ++dy) {
            for (int dx = 0; dx < 2; ++dx) {
                canvas.at(static_cast<int>(x) + dx, static_cast<int>(cable(x)) - 2 + dy) =
                    light(0xffe2b0) * 2.4;
                canvas.at(static_cast<int>(x) + dx, static_cast<int>(deck) + dy) =
                    light(0xffb860) * 2.0;
            }
        }
    }
}

void paintQuayLamps(Canvas &canvas)
{
    const int quay = static_cast<int>(kQuay * canvas.height());
    Random random(6);
    for (int x = 8; x < canvas.width() - 4; x += 16 + static_cast<int>(random.unit() * 18)) {
        const Light color = random.unit() < 0.12
                                ? light(0xff5a4a)
                                : mix(light(0xffb458), light(0xfff0d8), random.unit());
        for (int dy = 0; dy < 4; ++dy) {
            for (int dx = 0; dx < 3; ++dx)
                canvas.at(x + dx, quay - 9 + dy) = color * 2.6;
        }
    }
}

void paintRiver(Canvas &canvas)
{
    const double unit = canvas.height();
    const int quay = static_cast<int>(kQuay * unit);
    const Canvas above = canvas;
    canvas.shade([&](int x, int y, const Light &old) {
        if (y < quay)
            return old;
        if (y < quay + 3)
            return light(0x0c0d1c);
        const double down = (y - quay) / unit;
        const double away = 1 / (down + 0.035);
        const double u = x / unit - 0.75;
        Light sum;
        double total = 0;
        constexpr int samples = 18;
        for (int i = 0; i < samples; ++i) {
            const double wave = fractalNoise(u * away * 1.1 + 0.03 * i, away * 3.1, 3, 14);
            const double spread = (hashNoise(x, y * samples + i, 9) - 0.5) * (0.05 + 0.9 * down);
            const double sourceY = quay - (y - quay) * 1.05 -
                                   (wave * 0.30 * std::sqrt(down) + spread * 0.75) * unit * 0.7;
            const double sourceX = x + wave * 0.05 * std::sqrt(down) * unit;
            const double weight = 1;
            const int row = static_cast<int>(sourceY);
            sum += above.at(std::clamp(static_cast<int>(sourceX), 0, canvas.width() - 1),
                            std::clamp(row >= quay ? 2 * quay - row - 1 : row, 0, quay - 1)) *
                   weight;
            total += weight;
        }
        const double ripple = fractalNoise(u * away * 1.6, away * 4.2, 4, 44);
        return sum * (1 / total) * (0.80 + 0.5 * ripple - 0.25 * down) +
               light(0x0b1330) * (0.3 + 0.3 * ripple);
    });
}

} // namespace

QImage paintCity(const QSize &size)
{
    Canvas canvas(size.width(), size.height());
    paintSky(canvas);
    paintSkyline(canvas);
    paintBridge(canvas);
    paintQuayLamps(canvas);
    paintRiver(canvas);
    canvas.bloom(0.55, 10, 0.55);
    canvas.bloom(0.9, 40, 0.25);
    return canvas.develop(1.12, 0.25, 0.02);
}

} // namespace velmora::samples
