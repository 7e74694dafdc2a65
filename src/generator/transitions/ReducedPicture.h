// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/transitions/PixelArea.h"

#include <memory>

namespace velmora
{

/// A picture made smaller by powers of two: each pixel is the mean of a block of 2^xLevel x
/// 2^yLevel pixels (fewer at the right and lower edge). Owns its pixels unless both levels are 0.
/// Who reads the rows one after the other does with a RowReducer.
class ReducedPicture
{
public:
    /// Levels from 0 to RowReducer::kMaxLevel.
    ReducedPicture(const SourceArea &source, int xLevel, int yLevel);
    ReducedPicture(const ReducedPicture &) = delete;
    ReducedPicture &operator=(const ReducedPicture &) = delete;

    const SourceArea &area() const { return m_area; }

private:
    std::unique_ptr<QRgb[]> m_pixels;
    SourceArea m_area;
};

} // namespace velmora
