// SPDX-License-Identifier: GPL-3.0-or-later
#include "Canvas.h"
#include "Scenes.h"
#include "Trees.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace velmora::samples
{

namespace
{

constexpr double kShore = 0.70; // In units of the picture's height.

void paintStars(Canvas &canvas)
{
    Random random(4);
    const int lowest = static_cast<int>(kShore * canvas.height());
    for (int i = 0; i < 1500; ++i) {
        const int x = static_cast<int>(random.unit() * (canvas.width() - 2));
        const int y = static_cast<int>(random.unit() * lowest);
        const double brightness = 0.06 + 1.3 * std::pow(random.unit(), 9);
        const Light color = mix(light(0xbfd4ff), light(0xffe8d0), random.unit()) * brightness;
        canvas.at(x, y) += color;
        if (brightness > 0.5) {
            canvas.at(x + 1, y) += color * 0.5;
            canvas.at(x, y + 1) += color * 0.5;
        }
    }
}

/// One streak of light that rises from the lower edge of a curtain.
void addStreak(Canvas &canvas, double x, double foot, double tall, double strength)
{
    const double unit = canvas.height();
    // All streaks point to one place high above.
    const double lean = (x - 0.8 * unit) / (1.6 * unit);
    const int top = std::max(0, static_cast<int>(foot - tall));
    const int bottom = std::min(canvas.height() - 1, static_cast<int>(foot + 0.05 * unit));
    static const Ramp ramp{0xa8ffb4, 0x3dff8e, 0x2ae89a, 0x3aa8c0, 0x8a62d8, 0xc04ec0};
    for (int y = top; y <= bottom; ++y) {
        const double rise = (foot - y) / tall;
        const double profile =
            rise < 0 ? std::exp(rise * tall / (0.011 * unit)) : std::exp(-rise * 3.1) * (1 - rise);
        if (profile <= 0.002)
            continue;
        const double place = x + lean * (foot - y) * 0.55;
        const int left = static_cast<int>(std::floor(place));
        if (left < 0 || left + 1 >= canvas.width())
            continue;
        const Light color = ramp.at(rise * 1.15) * (profile * strength);
        const double part = place - left;
        canvas.at(left, y) += color * (1 - part);
        canvas.at(left + 1, y) += color * part;
    }
}

/// A curtain that folds back on itself, made of very many streaks.
void addCurtain(Canvas &canvas, double height, double tall, double strength, uint32_t seed)
{
    const double unit = canvas.height();
    constexpr int streaks = 14000;
    for (int i = 0; i < streaks; ++i) {
        const double t = static_cast<double>(i) / streaks;
        // The curtain's ground line winds back and forth; what lies farther back stands lower.
        const double fold =
            0.20 * gradientNoise(t * 5.5, 0.3, seed) + 0.07 * gradientNoise(t * 14, 0.7, seed + 1);
        const double back = 0.085 * gradientNoise(t * 5.5 + 0.5, 1.3, seed + 2) +
                            0.035 * gradientNoise(t * 14 + 0.4, 1.7, seed + 3) +
                            0.11 * gradientNoise(t * 2.2, 1.5, seed + 7);
        const double x = (-0.25 + 2.0 * t + fold) * unit;
        const double foot = (height + back) * unit;
        const double ray = 0.50 + 0.75 * fractalNoise(t * 150, 3.5, 4, seed + 4) +
                           0.25 * gradientNoise(t * 17, 4.5, seed + 5);
        const double patch =
            std::pow(clamp01(0.55 + 0.75 * gradientNoise(t * 4.3, 6.5, seed + 8)), 1.5);
        const double span =
            tall * unit * (0.8 + 0.45 * gradientNoise(t * 70, 5.5, seed + 6)) * (0.6 + 0.6 * patch);
        const double ends = smoothStep(0, 0.12, t) * smoothStep(1, 0.85, t) * (0.12 + 1.1 * patch);
        addStreak(canvas, x, foot, span, strength * std::max(0.03, ray) * ends);
    }
}

void paintForest(Canvas &canvas)
{
    QImage layer(canvas.width(), canvas.height(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter painter(&layer);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double unit = canvas.height();
    Random random(91);
    for (int row = 0; row < 3; ++row) {
        static const QColor colors[] = {QColor(14, 40, 48), QColor(9, 26, 33), QColor(4, 13, 18)};
        const double tall = 0.075 + 0.045 * row;
        for (double x = -30; x < canvas.width() + 30;
             x += unit * random.range(0.006, 0.022 + 0.006 * row)) {
            // The nearer rows stand at the sides and leave the middle open.
            const double open = std::exp(-std::pow((x / unit - 0.82) / 0.42, 2)) * row * 0.38;
            const double growth =
                (0.8 + 0.5 * fractalNoise(x / unit * 2.4, row, 3, 5)) * (1 - open) +
                random.range(-0.15, 0.2);
            if (growth < 0.12)
                continue;
            painter.setBrush(colors[row].lighter(static_cast<int>(random.range(80, 120))));
            painter.drawPath(sprucePath(QPointF(x, (kShore + 0.004 + 0.003 * row) * unit),
                                        tall * unit * growth, random));
        }
        painter.setBrush(colors[row]);
        painter.drawRect(QRectF(0, kShore * unit, canvas.width(), (0.004 + 0.003 * row) * unit));
    }
    painter.end();
    canvas.compose(layer);
}

/// The lake mirrors what stands above the shore, stretched and stirred by small waves.
void paintLake(Canvas &canvas)
{
    const double unit = canvas.height();
    const int shore = static_cast<int>((kShore + 0.01) * unit);
    const Canvas above = canvas;
    canvas.shade([&](int x, int y, const Light &old) {
        if (y <= shore)
            return old;
        const double down = (y - shore) / unit;
        const double away = 1 / (down + 0.02);
        const double wave = fractalNoise((x / unit - 0.8) * away * 0.7, away * 2.6, 4, 8);
        Light sum;
        constexpr int samples = 9;
        for (int i = 0; i < samples; ++i) {
            const double spread = (i - samples / 2) * (0.002 + 0.035 * down);
            const double sourceY =
                shore - (y - shore) * 1.25 + (spread + wave * 0.055 * std::sqrt(down)) * unit;
            const double sourceX = x + wave * 6 * down * unit * 0.02;
            sum += above.at(std::clamp(static_cast<int>(sourceX), 0, canvas.width() - 1),
                            std::clamp(static_cast<int>(sourceY), 0, shore - 1));
        }
        const Light mirrored = sum * (1.0 / samples) * (0.78 - 0.25 * down);
        return mirrored + light(0x07202c) * (0.35 + 0.25 * wave);
    });
}

} // namespace

QImage paintAurora(const QSize &size)
{
    Canvas canvas(size.width(), size.height());
    const double unit = size.height();
    canvas.shade([&](int x, int y, const Light &) {
        static const Ramp ramp{0x040818, 0x071230, 0x0b2144, 0x123a56, 0x1f5a66};
        const double veil = fractalNoise(x / unit * 1.3, y / unit * 1.6, 4, 2);
        return ramp.at(y / unit / kShore) * (1 + 0.25 * veil);
    });
    paintStars(canvas);
    Canvas glow(size.width(), size.height());
    addCurtain(glow, 0.49, 0.52, 0.075, 10);
    addCurtain(glow, 0.35, 0.44, 0.050, 23);
    addCurtain(glow, 0.585, 0.26, 0.034, 37);
    Canvas soft = glow;
    soft.blur(16);
    glow.blur(1);
    canvas.shade([&](int x, int y, const Light &old) {
        return old + glow.at(x, y) * 0.85 + soft.at(x, y) * 0.55;
    });
    paintForest(canvas);
    paintLake(canvas);
    canvas.bloom(0.55, 18, 0.3);
    return canvas.develop(1.15, 0.3, 0.022);
}

} // namespace velmora::samples
