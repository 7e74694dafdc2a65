// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <vector>

namespace velmora
{

/// A frame cut into columns and rows of tiles, nearly square, whose size follows the frame's.
class TileGrid
{
public:
    /// @p tilesDown is the number of rows of a frame wider than tall (of columns otherwise); a
    /// frame of fewer pixels has fewer.
    TileGrid(const QSize &frame, int tilesDown);

    int columns() const { return m_columns; }
    int rows() const { return m_rows; }
    int count() const { return m_columns * m_rows; }
    QRect tile(int column, int row) const;

    /// All tiles as (column, row) from the top left one clockwise along the edge and inwards.
    std::vector<QPoint> spiral() const;

private:
    QSize m_frame;
    int m_columns;
    int m_rows;
};

} // namespace velmora
