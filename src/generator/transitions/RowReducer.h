// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/transitions/PixelArea.h"

#include <vector>

namespace velmora
{

/// Makes single rows of a picture that is smaller by powers of two: each pixel is the mean of a
/// block of 2^xLevel x 2^yLevel pixels (fewer at the right and lower edge). Keeps a view of the
/// picture.
class RowReducer
{
public:
    static constexpr int kMaxLevel = 7;

    /// Levels from 0 to kMaxLevel.
    RowReducer(const SourceArea &source, int xLevel, int yLevel);

    /// Of the smaller picture, in pixels.
    int width() const { return m_width; }
    int height() const { return m_height; }

    /// Writes a row of the smaller picture to @p target: width() pixels.
    void reduce(QRgb *target, int row);

private:
    const QRgb *meansOfRows(int begin, int end);

    SourceArea m_source;
    int m_xLevel;
    int m_yLevel;
    int m_width;
    int m_height;
    std::vector<quint16> m_sums; ///< of some rows, channel by channel: at most 128 fit into 16 bits
    std::vector<QRgb> m_means;
};

} // namespace velmora
