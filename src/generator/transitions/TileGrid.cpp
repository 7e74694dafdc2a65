// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/TileGrid.h"

#include <algorithm>
#include <cmath>

namespace velmora
{

TileGrid::TileGrid(const QSize &frame, int tilesDown) : m_frame(frame)
{
    const int shorter = std::min(frame.width(), frame.height());
    const double side = static_cast<double>(shorter) / std::min(tilesDown, shorter);
    m_columns = std::max(1, static_cast<int>(std::lround(frame.width() / side)));
    m_rows = std::max(1, static_cast<int>(std::lround(frame.height() / side)));
}

QRect TileGrid::tile(int column, int row) const
{
    const auto edge = [](int length, int index, int parts) {
        return static_cast<int>(static_cast<qint64>(length) * index / parts);
    };
    const int left = edge(m_frame.width(), column, m_columns);
    const int top = edge(m_frame.height(), row, m_rows);
    return QRect(left, top, edge(m_frame.width(), column + 1, m_columns) - left,
                 edge(m_frame.height(), row + 1, m_rows) - top);
}

std::vector<QPoint> TileGrid::spiral() const
{
    std::vector<QPoint> path;
    path.reserve(static_cast<size_t>(count()));
    int left = 0;
    int top = 0;
    int right = m_columns - 1;
    int bottom = m_rows - 1;
    while (left <= right && top <= bottom) {
        for (int x = left; x <= right; ++x)
            path.emplace_back(x, top);
        for (int y = top + 1; y <= bottom; ++y)
            path.emplace_back(right, y);
        for (int x = right - 1; x >= left && bottom > top; --x)
            path.emplace_back(x, bottom);
        for (int y = bottom - 1; y > top && right > left; --y)
            path.emplace_back(left, y);
        ++left;
        ++top;
        --right;
        --bottom;
    }
    return path;
}

} // namespace velmora
