// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/transitions/PixelArea.h"

#include <vector>

namespace velmora
{

/// A picture made smaller by powers of two: each pixel is the mean of a block of 2^xLevel x
/// 2^yLevel pixels (fewer at the right and lower edge). Owns its pixels unless both levels are 0.
class ReducedPicture
{
public:
    static constexpr int kMaxLevel = 7;

    /// Levels from 0 to kMaxLevel.
    ReducedPicture(const SourceArea &source, int xLevel, int yLevel);
    ReducedPicture(const ReducedPicture &) = delete;
    ReducedPicture &operator=(const ReducedPicture &) = delete;

    const SourceArea &area() const { return m_area; }

private:
    std::vector<QRgb> m_pixels;
    SourceArea m_area;
};

} // namespace velmora
