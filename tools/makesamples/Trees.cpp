// SPDX-License-Identifier: GPL-3.0-or-later
#include "Trees.h"

#include "Noise.h"

#include <QVector>

#include <algorithm>

namespace velmora::samples
{

namespace
{

/// One side's branch tips and the notches between them, from the top down.
QVector<QPointF> branchTips(const QPointF &foot, double height, double side, Random &random)
{
    const int tiers = std::clamp(static_cast<int>(height / 7), 7, 26);
    QVector<QPointF> points;
    for (int i = 1; i <= tiers; ++i) {
        const double down = static_cast<double>(i) / tiers;
        const double reach = height * 0.19 * (0.06 + 0.94 * down) * random.range(0.7, 1.15);
        const double y = foot.y() - height * (1 - 0.93 * down);
        const double droop = height * 0.022;
        points << QPointF(foot.x() + side * reach, y + droop);
        points << QPointF(foot.x() + side * reach * random.range(0.25, 0.5), y - droop * 0.2);
    }
    return points;
}

} // namespace

QPainterPath sprucePath(const QPointF &foot, double height, Random &random)
{
    QPainterPath path(QPointF(foot.x() + random.range(-0.01, 0.01) * height, foot.y() - height));
    for (const QPointF &point : branchTips(foot, height, 1, random))
        path.lineTo(point);
    path.lineTo(foot + QPointF(height * 0.015, 0));
    path.lineTo(foot - QPointF(height * 0.015, 0));
    QVector<QPointF> left = branchTips(foot, height, -1, random);
    std::reverse(left.begin(), left.end());
    for (const QPointF &point : left)
        path.lineTo(point);
    path.closeSubpath();
    return path;
}

} // namespace velmora::samples
