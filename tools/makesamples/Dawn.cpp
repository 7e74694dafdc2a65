// SPDX-License-Identifier: GPL-3.0-or-later
#include "Canvas.h"
#include "Scenes.h"
#include "Trees.h"

#include <QPainter>

#include <cmath>

namespace velmora::samples
{

namespace
{

constexpr double kSunX = 0.98; // All places in units of the picture's height.
constexpr double kSunY = 0.40;
constexpr int kRidges = 7;

Light sky(double u, double v)
{
    static const Ramp ramp{0x2f5390, 0x5b82b8, 0xa3aec8, 0xe8bfa8, 0xffd49a, 0xffe2b0};
    const double distance = std::hypot(u - kSunX, (v - kSunY) * 1.25);
    Light color = ramp.at(v / 0.5);
    color += light(0xffb060) * (0.55 * std::exp(-distance * 4.5));
    color += light(0xffe0a0) * (1.6 * std::exp(-distance * 26));

    const double warp = fractalNoise(u * 1.4, v * 3, 3, 5);
    const double cloud = fractalNoise(u * 1.5 + warp * 0.6, v * 7.5 + warp * 0.9, 6, 11);
    const double cover = smoothStep(0.02, 0.42, cloud) * smoothStep(0.52, 0.2, v);
    const Light lit = mix(light(0xb79ab8), light(0xffd0a0), std::exp(-distance * 2.2));
    return mix(color, lit * (0.95 + 0.7 * std::exp(-distance * 5)), cover * 0.75);
}

double ridgeTop(int ridge, double u)
{
    const double depth = ridge / (kRidges - 1.0);
    const double base = mix(0.52, 1.02, std::pow(depth, 1.25));
    const double height = mix(0.17, 0.20, depth);
    const double width = mix(2.0, 1.0, depth);
    const uint32_t seed = 300 + static_cast<uint32_t>(ridge) * 17;
    const double crest = ridgedNoise(u * width + ridge * 3.7, ridge * 2.3, 7, seed);
    return base - height * (crest - 0.35);
}

/// One mountain range with the mist that lies before its foot.
void paintRidge(Canvas &canvas, int ridge)
{
    const double depth = ridge / (kRidges - 1.0);
    static const Ramp rock{0xc9a9ae, 0x9d97b4, 0x6f82a4, 0x4d678c, 0x33506f, 0x213a50, 0x12242f};
    static const Ramp mist{0xffd9b0, 0xf6cdb4, 0xd9bfc0, 0xb0b0c6, 0x8b9dbc, 0x6e88a8, 0x4f6c86};
    const double unit = canvas.height();
    std::vector<double> tops;
    for (int x = 0; x <= canvas.width(); ++x)
        tops.push_back(ridgeTop(ridge, x / unit));

    canvas.shade([&](int x, int y, const Light &behind) {
        const double u = x / unit;
        const double v = y / unit;
        const double top = tops[static_cast<std::size_t>(x)];
        const double below = v - top;
        const double edge = clamp01(below * unit + 0.5);
        if (edge <= 0)
            return behind;
        const double towardsSun = std::exp(-std::abs(u - kSunX) * 2.0);
        // Gullies run down the slopes; the sides that face the sun are brighter.
        const double relief =
            fractalNoise(u * 9 + below * 6, v * 5 + ridge, 6, 40) -
            fractalNoise(u * 9 + below * 6 - 0.12 * (kSunX - u), v * 5 + ridge - 0.1, 6, 40);
        const double slope = (tops[static_cast<std::size_t>(std::min(x + 6, canvas.width()))] -
                              tops[static_cast<std::size_t>(std::max(x - 6, 0))]) /
                             12 * unit * (u < kSunX ? 1 : -1);
        const double shading = 1 + 1.3 * relief * (0.4 + depth) -
                               0.22 * slope * std::exp(-below * 14) * (0.35 + 0.65 * depth);
        Light color = mix(rock.at(depth), mist.at(depth), 0.22 * towardsSun * (1 - depth)) *
                      std::max(0.25, shading);
        color += light(0xffb877) * (0.35 * towardsSun * (1 - depth) * std::exp(-below * 60));
        const double drift =
            fractalNoise(u * 2.2 + ridge, v * 6, 5, 90 + static_cast<uint32_t>(ridge));
        const double fog = smoothStep(0.015, 0.19, below + drift * 0.09) * mix(0.92, 0.5, depth);
        const Light fogColor =
            mix(mist.at(depth), light(0xffd6a2), 0.55 * towardsSun * (1 - depth));
        return mix(behind, mix(color, fogColor, fog), edge);
    });
}

/// Spruces along the crest of a near ridge.
void paintForest(Canvas &canvas, int ridge, double treeHeight, const QColor &color, uint32_t seed)
{
    QImage layer(canvas.width(), canvas.height(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter painter(&layer);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    Random random(seed);
    const double unit = canvas.height();
    for (double x = -20; x < canvas.width() + 20;
         x += treeHeight * unit * random.range(0.05, 0.2)) {
        const double growth =
            0.55 + 0.45 * fractalNoise(x / unit * 3, 0, 3, seed) + random.range(0, 0.4);
        const QPointF foot(x, ridgeTop(ridge, x / unit) * unit + treeHeight * unit * 0.2);
        painter.setBrush(color.lighter(static_cast<int>(random.range(88, 125))));
        painter.drawPath(sprucePath(foot, treeHeight * unit * growth, random));
    }
    painter.end();
    canvas.compose(layer);
}

} // namespace

QImage paintDawn(const QSize &size)
{
    Canvas canvas(size.width(), size.height());
    const double unit = size.height();
    canvas.shade([&](int x, int y, const Light &) {
        const double u = x / unit;
        const double v = y / unit;
        const double disc = smoothStep(0.030, 0.027, std::hypot(u - kSunX, v - kSunY));
        return mix(sky(u, v), light(0xfff6dc) * 3.0, disc);
    });
    for (int ridge = 0; ridge < kRidges; ++ridge) {
        if (ridge >= kRidges - 2) {
            const bool nearest = ridge == kRidges - 1;
            paintForest(canvas, ridge, nearest ? 0.13 : 0.055,
                        nearest ? QColor(11, 24, 30) : QColor(40, 64, 82),
                        700U + static_cast<uint32_t>(ridge));
        }
        paintRidge(canvas, ridge);
    }
    canvas.bloom(0.9, 28, 0.5);
    return canvas.develop(1.0, 0.22, 0.02);
}

} // namespace velmora::samples
