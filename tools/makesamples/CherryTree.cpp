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

constexpr double kMeadow = 0.66; // In units of the picture's height.
constexpr double kFoot = 0.785;  // Where the tree stands.

QColor display(const QColor &a, const QColor &b, double t)
{
    auto channel = [t](int from, int to) {
        return std::clamp(static_cast<int>(mix(from, to, t)), 0, 255);
    };
    return QColor(channel(a.red(), b.red()), channel(a.green(), b.green()),
                  channel(a.blue(), b.blue()));
}

void paintBackground(Canvas &canvas)
{
    const double unit = canvas.height();
    canvas.shade([&](int x, int y, const Light &) {
        static const Ramp ramp{0x4f94d8, 0x79b2e6, 0xa9d0ef, 0xd8e9f2, 0xf4efe6};
        const double u = x / unit;
        const double v = y / unit;
        Light color = ramp.at(v / kMeadow);
        color += light(0xfff0c8) * (0.35 * std::exp(-std::hypot(u - 0.1, v - 0.02) * 2.5));
        const double warp = fractalNoise(u * 1.6, v * 2.4, 4, 2);
        const double cloud = fractalNoise(u * 1.3 + warp * 0.5, v * 3.4 + warp * 0.7, 7, 6);
        const double shade =
            fractalNoise(u * 1.3 + warp * 0.5 - 0.03, v * 3.4 + warp * 0.7 - 0.08, 7, 6);
        const Light white =
            mix(light(0xc8d4e6), light(0xffffff), clamp01(0.6 + (cloud - shade) * 3.0)) * 1.05;
        return mix(color, white,
                   0.9 * smoothStep(0.0, 0.38, cloud + 0.02) * smoothStep(0.62, 0.4, v));
    });
    static const Light hills[] = {light(0xa9c4d6), light(0x8fb4ac), light(0x7aa878),
                                  light(0x5d9455)};
    for (int hill = 0; hill < 4; ++hill) {
        canvas.shade([&](int x, int y, const Light &behind) {
            const double u = x / unit;
            const double v = y / unit;
            const double wood =
                hill > 1 ? 0.012 * fractalNoise(u * 40, hill, 4, 50 + static_cast<uint32_t>(hill))
                         : 0;
            const double top = 0.535 + 0.035 * hill +
                               0.06 * gradientNoise(u * (0.9 + 0.3 * hill), hill * 7.7, 30) + wood;
            const double edge = clamp01((v - top) * unit + 0.5);
            const double shade =
                1 + 0.35 * fractalNoise(u * 14, v * 26, 5, 61 + static_cast<uint32_t>(hill)) -
                1.2 * (v - top);
            return mix(behind, hills[hill] * shade, edge);
        });
    }
    canvas.blur(2);
}

/// One blade, and now and then a flower on it. @p close: 0 far to 1 near.
void paintBlade(QPainter &painter, const QPointF &root, double v, double unit, Random &random)
{
    const double close = (v - kMeadow) / (1 - kMeadow);
    const double u = root.x() / unit;
    // The tree's shade lies on the right of its trunk.
    const double shadow =
        std::exp(-std::pow((u - 1.02) / 0.36, 2) - std::pow((v - 0.775) / 0.05, 2));
    const double sunny = clamp01(0.55 + 0.6 * fractalNoise(u * 4, v * 12, 3, 9) +
                                 0.25 * random.normal() - 0.75 * shadow);
    const double tall = unit * (0.006 + 0.055 * close) * random.range(0.5, 1.2);
    const double lean = tall * random.range(-0.45, 0.55);
    QPainterPath blade(root - QPointF(tall * 0.035, 0));
    blade.quadTo(root + QPointF(lean * 0.2, -tall * 0.6), root + QPointF(lean, -tall));
    blade.quadTo(root + QPointF(lean * 0.3 + tall * 0.05, -tall * 0.55),
                 root + QPointF(tall * 0.035, 0));
    painter.setBrush(display(QColor(34, 84, 34), QColor(188, 214, 88), sunny));
    painter.drawPath(blade);
    if (random.unit() > 0.012 + 0.03 * smoothStep(0.1, 0.4, fractalNoise(u * 3, v * 5, 3, 31)))
        return;
    static const QColor petals[] = {QColor(255, 252, 240), QColor(255, 214, 64),
                                    QColor(240, 120, 150), QColor(176, 140, 224)};
    const double r = unit * (0.0012 + 0.0050 * close);
    const QPointF head = root + QPointF(lean, -tall);
    painter.setBrush(petals[static_cast<int>(random.unit() * 3.99)]);
    const double turn = random.range(0, 72);
    for (int petal = 0; petal < 5; ++petal) {
        const double angle = (turn + petal * 72) * M_PI / 180;
        painter.drawEllipse(head + QPointF(std::cos(angle) * r * 0.85, std::sin(angle) * r * 0.6),
                            r * 0.62, r * 0.48);
    }
    painter.setBrush(QColor(240, 176, 48));
    painter.drawEllipse(head, r * 0.38, r * 0.3);
}

/// Grass from @p from to @p to (heights in the picture), with flowers among it.
void paintGrass(QPainter &painter, const QSize &size, double from, double to, uint32_t seed)
{
    const double unit = size.height();
    Random random(seed);
    painter.setPen(Qt::NoPen);
    for (double v = from; v < to; v += 0.0012 + (v - kMeadow) * 0.018) {
        const double close = clamp01((v - kMeadow) / (1 - kMeadow));
        const int blades = static_cast<int>(mix(900, 190, std::sqrt(close)));
        for (int i = 0; i < blades; ++i) {
            const double x = random.range(-10, size.width() + 10);
            const double y = (v + random.range(-0.004, 0.012) * (0.3 + close)) * unit;
            paintBlade(painter, QPointF(x, y), v, unit, random);
        }
    }
}

void paintGround(QPainter &painter, const QSize &size)
{
    const double unit = size.height();
    QLinearGradient ground(0, kMeadow * unit, 0, unit);
    ground.setColorAt(0, QColor(142, 186, 84));
    ground.setColorAt(0.4, QColor(92, 148, 54));
    ground.setColorAt(1, QColor(44, 92, 34));
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRect(QRectF(0, kMeadow * unit, size.width(), unit));
}

struct Blossom {
    QPointF place;
    double radius;
    double lightness;
};

/// Grows branches and collects the places where blossoms sit.
class Tree
{
public:
    Tree(QPainter &painter, double unit) : m_painter(painter), m_unit(unit), m_random(2024) {}

    void grow(const QPointF &from, double angle, double length, double thickness, int level)
    {
        const double bend = m_random.range(-0.4, 0.4);
        const QPointF half = from + QPointF(std::sin(angle), -std::cos(angle)) * length * 0.5;
        const QPointF tip =
            half + QPointF(std::sin(angle + bend), -std::cos(angle + bend)) * length * 0.5;
        limb(from, half, tip, thickness);
        if (level >= 3)
            blossom(from, tip, level);
        if (level == 7)
            return;
        const int children = level == 0 ? 4 : (m_random.unit() < 0.45 ? 3 : 2);
        for (int i = 0; i < children; ++i) {
            const double share = children == 1 ? 0 : 2.0 * i / (children - 1) - 1;
            const double spread = level == 0 ? 0.85 : 0.6;
            double next = angle + share * spread + m_random.range(-0.3, 0.3);
            next *= level < 4 ? 0.84 : 0.94; // Branches seek the light.
            const double shrink =
                level == 0 ? m_random.range(0.62, 0.8) : m_random.range(0.68, 0.86);
            grow(i % 2 && level > 0 ? (half + tip) / 2 : tip, next, length * shrink,
                 thickness * 0.63, level + 1);
        }
    }

    void paintBlossoms()
    {
        std::stable_sort(
            m_blossoms.begin(), m_blossoms.end(),
            [](const Blossom &a, const Blossom &b) { return a.lightness < b.lightness; });
        static const QColor shades[] = {QColor(142, 72, 112), QColor(206, 118, 156),
                                        QColor(240, 168, 194), QColor(253, 214, 226),
                                        QColor(255, 246, 248)};
        m_painter.setPen(Qt::NoPen);
        for (const Blossom &b : m_blossoms) {
            const double place = clamp01(b.lightness) * 3.999;
            const int shade = static_cast<int>(place);
            QColor color = display(shades[shade], shades[shade + 1], place - shade);
            color.setAlpha(225);
            m_painter.setBrush(color);
            m_painter.drawEllipse(b.place, b.radius, b.radius * 0.86);
        }
    }

private:
    void limb(const QPointF &from, const QPointF &half, const QPointF &tip, double thickness)
    {
        QPainterPath path(from);
        path.quadTo(half, tip);
        m_painter.setBrush(Qt::NoBrush);
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(QColor(52, 36, 34));
        const int steps = std::max(12, static_cast<int>(path.length() / 1.5));
        for (int i = 0; i <= steps; ++i) { // Tapers to what the next branches begin with.
            const double t = static_cast<double>(i) / steps;
            const double flare = thickness > 0.035 * m_unit ? 1 + 0.9 * std::pow(1 - t, 5) : 1;
            const double radius = 0.5 * thickness * mix(1, 0.68, t) * flare;
            m_painter.drawEllipse(path.pointAtPercent(t), radius, radius);
        }
        if (thickness < 3)
            return;
        // Light from the upper left and furrows in the bark.
        for (int i = 0; i < static_cast<int>(thickness * 1.4); ++i) {
            const double side = m_random.range(-0.45, 0.45);
            const double start = m_random.range(0, 0.8);
            const QPointF a = path.pointAtPercent(start) + QPointF(side * thickness, 0);
            const QPointF b =
                path.pointAtPercent(std::min(1.0, start + m_random.range(0.08, 0.3))) +
                QPointF(side * thickness * 0.75, 0);
            const QColor bark = display(QColor(34, 24, 26), QColor(172, 136, 112),
                                        clamp01(0.45 - side * 0.95 + m_random.range(-0.25, 0.2)));
            m_painter.setPen(
                QPen(bark, std::max(0.8, thickness * 0.05), Qt::SolidLine, Qt::RoundCap));
            m_painter.drawLine(a, b);
        }
    }

    void blossom(const QPointF &from, const QPointF &tip, int level)
    {
        const int count = level >= 6 ? 22 : 12;
        const double cloudX = m_random.normal() * 0.12;
        for (int i = 0; i < count; ++i) {
            const double along = m_random.unit();
            const QPointF away(m_random.normal() * 0.014 * m_unit,
                               m_random.normal() * 0.012 * m_unit);
            const QPointF place = from + (tip - from) * along + away;
            // The crown is round: lit above and to the left, shaded below and inside.
            const double dx = (place.x() / m_unit - 0.88) / 0.45;
            const double dy = (place.y() / m_unit - 0.36) / 0.34;
            const double clump =
                fractalNoise(place.x() / m_unit * 9, place.y() / m_unit * 9, 3, 5) -
                fractalNoise(place.x() / m_unit * 9 + 0.25, place.y() / m_unit * 9 + 0.35, 3, 5);
            const double lightness = 0.47 - 0.13 * dx - 0.22 * dy + 0.75 * clump + cloudX -
                                     (away.y() / m_unit) * 9 + m_random.normal() * 0.1;
            m_blossoms.push_back({place, m_unit * m_random.range(0.0018, 0.0046), lightness});
        }
    }

    QPainter &m_painter;
    double m_unit;
    Random m_random;
    std::vector<Blossom> m_blossoms;
};

void paintPetals(QPainter &painter, const QSize &size)
{
    const double unit = size.height();
    Random random(15);
    for (int i = 0; i < 420; ++i) {
        const bool lying = i < 320;
        const double x = (0.88 + random.normal() * (lying ? 0.33 : 0.42)) * unit;
        const double y =
            lying ? (0.80 + random.normal() * 0.055) * unit : random.range(0.3, 0.95) * unit;
        const double r = unit * random.range(0.0018, 0.0042);
        painter.save();
        painter.translate(x, y);
        painter.rotate(random.range(0, 180));
        painter.setBrush(display(QColor(236, 160, 188), QColor(255, 240, 245), random.unit()));
        painter.drawEllipse(QPointF(0, 0), r * 1.3, r * (lying ? 0.6 : 0.85));
        painter.restore();
    }
}

} // namespace

QImage paintCherryTree(const QSize &size)
{
    Canvas canvas(size.width(), size.height());
    paintBackground(canvas);
    QImage layer(size, QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter painter(&layer);
    painter.setRenderHint(QPainter::Antialiasing);
    paintGround(painter, size);
    paintGrass(painter, size, kMeadow, kFoot, 77);
    Tree tree(painter, size.height());
    tree.grow(QPointF(0.88 * size.height(), (kFoot + 0.002) * size.height()), 0.03,
              0.20 * size.height(), 0.042 * size.height(), 0);
    tree.paintBlossoms();
    paintGrass(painter, size, kFoot, 1.04, 78);
    paintPetals(painter, size);
    painter.end();
    canvas.compose(layer);
    canvas.shade([&](int x, int y, const Light &old) {
        const double glow =
            std::exp(-std::hypot(x * 1.0 / size.height() - 0.05, y * 1.0 / size.height()) * 1.9);
        return old + light(0xffe4b0) * (0.16 * glow);
    });
    canvas.bloom(0.85, 20, 0.22);
    return canvas.develop(1.0, 0.2, 0.018);
}

} // namespace velmora::samples
