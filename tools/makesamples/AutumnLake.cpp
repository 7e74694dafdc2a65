// SPDX-License-Identifier: GPL-3.0-or-later
#include "Canvas.h"
#include "Scenes.h"
#include "Trees.h"

#include <QPainter>
#include <QVector>

#include <algorithm>
#include <cmath>

namespace velmora::samples
{

namespace
{

constexpr double kShore = 0.57; // In units of the picture's height.

Light sky(double u, double v)
{
    static const Ramp ramp{0x6f9cc8, 0x9dbbd6, 0xcdd5da, 0xf2e2cc, 0xffe9c4};
    Light color = ramp.at(v / 0.5);
    color += light(0xffdca0) * (0.5 * std::exp(-std::hypot(u - 0.35, v - 0.34) * 3));
    const double warp = fractalNoise(u * 1.3, v * 3, 4, 3);
    const double cloud = fractalNoise(u * 1.2 + warp * 0.6, v * 6 + warp, 6, 9);
    return mix(color, light(0xfff4e6), 0.75 * smoothStep(0.05, 0.45, cloud));
}

void paintHills(Canvas &canvas)
{
    const double unit = canvas.height();
    static const Ramp colors{0xb9bdc9, 0xa7a0a4, 0xa98868, 0x9a7040};
    for (int hill = 0; hill < 4; ++hill) {
        const uint32_t seed = 20 + static_cast<uint32_t>(hill) * 5;
        canvas.shade([&](int x, int y, const Light &behind) {
            const double u = x / unit;
            const double v = y / unit;
            const double slope = hill % 2 ? smoothStep(-0.2, 1.5, u) : smoothStep(1.6, 0.1, u);
            const double top = kShore - 0.03 - (0.24 - 0.045 * hill) * (0.35 + 0.75 * slope) +
                               0.22 * fractalNoise(u * (1.6 + 0.5 * hill), hill * 5.1, 7, seed);
            const double edge = clamp01((v - top) * unit + 0.5);
            if (edge <= 0)
                return behind;
            const double wood = fractalNoise(u * 30, v * 44, 5, seed + 1);
            const double kind = fractalNoise(u * 6, v * 9, 4, seed + 2);
            const Light tint = mix(light(0xc98a3a), light(0x56703a), clamp01(0.5 + 1.4 * kind));
            const Light color = mix(colors.at(hill / 3.0), tint, 0.12 + 0.16 * hill) *
                                (1 + 0.9 * wood * (0.2 + 0.25 * hill));
            const double fog =
                smoothStep(0.0, 0.16, v - top + 0.06 * fractalNoise(u * 2, v * 7, 4, seed + 3)) *
                (0.75 - 0.08 * hill);
            return mix(behind, mix(color, light(0xf7e6d0), fog), edge);
        });
    }
}

/// A broad-leaved tree: trunk and a crown of leaf clusters, lit from the left.
void paintCrown(QPainter &painter, const QPointF &foot, double tall, const QColor &leaf,
                double haze, Random &random)
{
    const QColor fog(238, 222, 200);
    auto blend = [&](const QColor &color) {
        return QColor(static_cast<int>(mix(color.red(), fog.red(), haze)),
                      static_cast<int>(mix(color.green(), fog.green(), haze)),
                      static_cast<int>(mix(color.blue(), fog.blue(), haze)));
    };
    painter.setPen(
        QPen(blend(QColor(46, 34, 30)), std::max(1.0, tall * 0.035), Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(foot, foot - QPointF(random.range(-0.03, 0.03) * tall, tall * 0.7));
    painter.setPen(Qt::NoPen);
    struct Cluster {
        QPointF place;
        double radius;
        double lit;
    };
    QVector<Cluster> clusters;
    const double wide = random.range(0.30, 0.46);
    for (int lobe = 0; lobe < 17; ++lobe) {
        const double turn = random.range(0, 2 * M_PI);
        const QPointF centre(wide * 0.75 * std::cos(turn) * std::sqrt(random.unit()),
                             -0.56 + 0.38 * std::sin(turn) * std::sqrt(random.unit()));
        const double size = random.range(0.06, 0.125);
        const int leaves = std::clamp(static_cast<int>(tall * 0.8), 20, 150);
        for (int i = 0; i < leaves; ++i) {
            const double around = random.range(0, 2 * M_PI);
            const double out = std::sqrt(random.unit()) * size;
            const QPointF offset(out * std::cos(around), out * std::sin(around) * 0.85);
            const double lit = 0.38 - 1.9 * offset.x() - 2.6 * offset.y() - 0.5 * centre.x() -
                               0.7 * (centre.y() + 0.6) + random.normal() * 0.17;
            clusters.push_back(
                {foot + (centre + offset) * tall, tall * random.range(0.006, 0.014) + 0.6, lit});
        }
    }
    std::stable_sort(clusters.begin(), clusters.end(),
                     [](const Cluster &a, const Cluster &b) { return a.lit < b.lit; });
    for (const Cluster &cluster : clusters) {
        const int percent = static_cast<int>(mix(34, 132, clamp01(cluster.lit)));
        QColor color = percent < 100 ? leaf.darker(10000 / percent) : leaf.lighter(percent);
        if (cluster.lit > 0.75)
            color = QColor(std::min(255, color.red() + 25), std::min(255, color.green() + 22),
                           color.blue());
        painter.setBrush(blend(color));
        painter.drawEllipse(cluster.place, cluster.radius, cluster.radius * 0.85);
    }
}

void paintWood(Canvas &canvas)
{
    const double unit = canvas.height();
    static const QColor leaves[] = {QColor(196, 88, 32), QColor(214, 140, 40), QColor(222, 172, 62),
                                    QColor(150, 52, 38), QColor(128, 128, 56), QColor(186, 110, 42),
                                    QColor(204, 152, 54)};
    Random random(33);
    for (int row = 0; row < 3; ++row) {
        QImage layer(canvas.width(), canvas.height(), QImage::Format_ARGB32_Premultiplied);
        layer.fill(Qt::transparent);
        QPainter painter(&layer);
        painter.setRenderHint(QPainter::Antialiasing);
        const double haze = 0.52 - 0.24 * row;
        for (double x = -40; x < canvas.width() + 40;
             x += unit * random.range(0.012, 0.036 + 0.01 * row)) {
            const double open = 0.55 * row * 0.5 * std::exp(-std::pow((x / unit - 0.62) / 0.30, 2));
            const double tall =
                unit * (0.10 + 0.045 * row) * (1 - open) *
                (0.85 + 0.5 * fractalNoise(x / unit * 2.2, row, 3, 4) + random.range(-0.15, 0.2));
            const QPointF foot(x, (kShore + 0.002 * row) * unit);
            if (random.unit() < 0.24) {
                const QColor green(40, 62, 44);
                painter.setPen(Qt::NoPen);
                painter.setBrush(QColor(static_cast<int>(mix(green.red(), 238, haze * 0.9)),
                                        static_cast<int>(mix(green.green(), 222, haze * 0.9)),
                                        static_cast<int>(mix(green.blue(), 200, haze * 0.9))));
                painter.drawPath(sprucePath(foot, tall * 1.25, random));
            } else {
                paintCrown(painter, foot, tall * 1.15,
                           leaves[static_cast<int>(random.unit() * 6.99)], haze, random);
                const QPointF bush =
                    foot + QPointF(random.range(-0.03, 0.03) * unit, unit * 0.004); // Undergrowth
                paintCrown(painter, bush, unit * random.range(0.03, 0.07),
                           leaves[3 + static_cast<int>(random.unit() * 3.99)], haze * 0.9, random);
            }
        }
        painter.end();
        canvas.compose(layer);
        canvas.shade([&](int x, int y, const Light &old) {
            const double u = x / unit;
            const double v = y / unit;
            const double drift =
                0.5 + 0.5 * fractalNoise(u * 2.0, v * 8, 5, 70 + static_cast<uint32_t>(row));
            const double fog = smoothStep(kShore - 0.07, kShore, v) * (0.55 - 0.13 * row) * drift;
            return mix(old, light(0xf9ead6), v > kShore + 0.004 ? 0 : fog);
        });
    }
}

void paintBank(Canvas &canvas)
{
    const double unit = canvas.height();
    canvas.shade([&](int x, int y, const Light &old) {
        const double u = x / unit;
        const double v = y / unit;
        const double top = kShore - 0.004 + 0.006 * fractalNoise(u * 12, 1, 4, 90);
        const double edge = clamp01((v - top) * unit + 0.5) * (v < kShore + 0.012 ? 1 : 0);
        const double blades = 0.6 + 0.8 * fractalNoise(u * 60, v * 90, 4, 91);
        return mix(
            old,
            mix(light(0x8a6a36), light(0x5a5a30), clamp01(0.5 + fractalNoise(u * 8, v, 3, 92))) *
                blades,
            edge);
    });
}

void paintLake(Canvas &canvas)
{
    const double unit = canvas.height();
    const int shore = static_cast<int>((kShore + 0.010) * unit);
    const Canvas above = canvas;
    canvas.shade([&](int x, int y, const Light &old) {
        if (y <= shore)
            return old;
        const double down = (y - shore) / unit;
        const double away = 1 / (down + 0.03);
        const double u = x / unit - 0.75;
        const double calm = smoothStep(-0.1, 0.25, fractalNoise(u * 1.5, away * 0.3, 3, 40));
        const double wave = fractalNoise(u * away * 0.8, away * 3.4, 4, 41) * (0.25 + 0.75 * calm);
        Light sum;
        constexpr int samples = 7;
        for (int i = 0; i < samples; ++i) {
            const double spread = (i - samples / 2) * (0.0008 + 0.006 * down);
            const double sourceY =
                shore - (y - shore) * 1.12 + (spread + wave * 0.075 * std::sqrt(down)) * unit;
            const int row = std::clamp(static_cast<int>(sourceY), 0, shore - 1);
            const int column = std::clamp(
                static_cast<int>(x + wave * 0.02 * std::sqrt(down) * unit), 0, canvas.width() - 1);
            sum += above.at(column, row);
        }
        const Light mirrored = sum * (1.0 / samples) * (0.86 - 0.35 * down);
        return mix(mirrored, light(0x1f3a46), 0.12 + 0.45 * down) +
               light(0xffeed0) * std::max(0.0, wave * 0.10);
    });
    // Fallen leaves drift in the foreground.
    QImage layer(canvas.width(), canvas.height(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter painter(&layer);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    Random random(8);
    for (int i = 0; i < 260; ++i) {
        const double close = std::pow(random.unit(), 0.7);
        const double x = random.range(0, 1.5);
        if (fractalNoise(x * 3, close * 3, 3, 6) < 0.02)
            continue;
        const double y = mix(kShore + 0.1, 1.0, close);
        const double r = unit * (0.0012 + 0.0048 * close) * random.range(0.7, 1.2);
        painter.setBrush(QColor::fromHsv(static_cast<int>(random.range(14, 46)), 210,
                                         static_cast<int>(random.range(150, 245))));
        painter.drawEllipse(QPointF(x, y) * unit, r * 1.5, r * 0.6);
    }
    painter.end();
    canvas.compose(layer, 0.92);
}

} // namespace

QImage paintAutumnLake(const QSize &size)
{
    Canvas canvas(size.width(), size.height());
    const double unit = size.height();
    canvas.shade([&](int x, int y, const Light &) { return sky(x / unit, y / unit); });
    paintHills(canvas);
    paintWood(canvas);
    paintBank(canvas);
    paintLake(canvas);
    canvas.bloom(0.85, 26, 0.3);
    return canvas.develop(1.0, 0.22, 0.018);
}

} // namespace velmora::samples
