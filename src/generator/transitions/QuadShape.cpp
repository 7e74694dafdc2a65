// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/QuadShape.h"

#include <algorithm>
#include <cmath>

namespace velmora
{

namespace
{
constexpr double kSmallestArea = 0.05;
} // namespace

QuadShape::QuadShape(const std::array<QPointF, 4> &corners)
{
    double area = 0;
    m_top = m_bottom = corners[0].y();
    for (size_t i = 0; i < 4; ++i) {
        const QPointF &a = corners[i];
        const QPointF &b = corners[(i + 1) % 4];
        area += (a.x() * b.y() - b.x() * a.y()) / 2;
        m_top = std::min(m_top, a.y());
        m_bottom = std::max(m_bottom, a.y());
    }
    m_empty = std::abs(area) < kSmallestArea;
    const double turn = area < 0 ? -1 : 1;
    for (size_t i = 0; i < 4; ++i) {
        const QPointF &a = corners[i];
        const QPointF way = corners[(i + 1) % 4] - a;
        const double length = std::hypot(way.x(), way.y());
        if (length < 1e-6) {
            m_sides[i] = {0, 0, 1e9};
            continue;
        }
        const double x = -way.y() / length * turn;
        const double y = way.x() / length * turn;
        // Pixels are asked for by their left upper corner, distances are those of their centre.
        m_sides[i] = {x, y, (0.5 - a.x()) * x + (0.5 - a.y()) * y};
    }
}

ColumnSpan QuadShape::span(int row, double inset, int width) const
{
    double begin = 0;
    double end = width;
    for (const Side &side : m_sides) {
        const double atZero = side.at(0, row) - inset;
        if (std::abs(side.x) < 1e-9) {
            if (atZero < 0)
                return {};
        } else if (side.x > 0) {
            begin = std::max(begin, std::ceil(-atZero / side.x));
        } else {
            end = std::min(end, std::floor(-atZero / side.x) + 1);
        }
    }
    if (begin >= end)
        return {};
    return {static_cast<int>(begin), static_cast<int>(end)};
}

double QuadShape::coverage(int column, int row) const
{
    double result = 1;
    for (const Side &side : m_sides)
        result *= std::clamp(side.at(column, row) + 0.5, 0.0, 1.0);
    return result;
}

void QuadShape::distances(int column, int row, int count, float *result) const
{
    std::fill_n(result, count, 0.0f);
    for (const Side &side : m_sides) {
        const auto first = static_cast<float>(side.at(column, row));
        const auto step = static_cast<float>(side.x);
        if (first >= 0 && first + step * static_cast<float>(count - 1) >= 0)
            continue; // the whole run lies on the inner side
        for (int i = 0; i < count; ++i) {
            const float inside = first + step * static_cast<float>(i);
            const float outside = inside < 0 ? inside : 0;
            result[i] += outside * outside;
        }
    }
    for (int i = 0; i < count; ++i)
        result[i] = std::sqrt(result[i]);
}

ColumnSpan QuadShape::rows(double reach, int height) const
{
    const double begin = std::clamp(std::floor(m_top - reach), 0.0, static_cast<double>(height));
    const double end = std::clamp(std::ceil(m_bottom + reach), 0.0, static_cast<double>(height));
    return {static_cast<int>(begin), static_cast<int>(end)};
}

} // namespace velmora
