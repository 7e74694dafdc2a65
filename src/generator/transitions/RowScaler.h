// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRgb>

#include <vector>

namespace velmora
{

/// Scales rows of pixels, all in the same way, with linear interpolation.
class RowScaler
{
public:
    /// Shows @p sourceCount pixels as @p count pixels: target pixel i shows the place
    /// @p start + i * @p step, counted from the left edge of the source's first pixel; places
    /// beyond the ends show the end pixels.
    RowScaler(int count, int sourceCount, double start, double step);

    void scale(QRgb *target, const QRgb *source) const;

private:
    struct Place {
        quint32 index;
        quint32 share; ///< of the next pixel, in 1/256
    };
    std::vector<Place> m_places;
    bool m_single; ///< the source has one pixel only
};

} // namespace velmora
