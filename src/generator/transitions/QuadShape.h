// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>

#include <array>

namespace velmora
{

/// Columns [begin, end) of a row; empty if begin >= end.
struct ColumnSpan {
    int begin = 0;
    int end = 0;
};

/// A convex quadrilateral on the pixel grid, which answers row by row which pixels it covers.
class QuadShape
{
public:
    /// The corners in either turning direction.
    explicit QuadShape(const std::array<QPointF, 4> &corners);

    /// True if it has no area worth painting.
    bool isEmpty() const { return m_empty; }
    /// The pixels of a row (of a picture @p width wide) whose centres lie at least @p inset pixels
    /// inside all sides (outside by at most its amount if it is negative).
    ColumnSpan span(int row, double inset, int width) const;
    /// The share of a pixel that the shape covers, from 0 to 1.
    double coverage(int column, int row) const;
    /// How far the centres of @p count pixels of a row lie outside, in pixels; 0 inside.
    void distances(int column, int row, int count, float *result) const;
    /// The rows that can hold pixels within @p reach of the shape, cut to 0 .. @p height.
    ColumnSpan rows(double reach, int height) const;

private:
    /// The signed distance from a side is x * column + y * row + offset, positive inside.
    struct Side {
        double x = 0;
        double y = 0;
        double offset = 0;
        double at(double column, double row) const { return x * column + y * row + offset; }
    };

    std::array<Side, 4> m_sides;
    double m_top = 0;
    double m_bottom = 0;
    bool m_empty = false;
};

} // namespace velmora
