// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/transitions/PixelArea.h"

#include <QTransform>

namespace velmora
{

/// Reads a picture through a transform, with bilinear interpolation; places beyond its edges show
/// the edge pixels. Pictures have at most 32767 pixels a side.
class CardSampler
{
public:
    /// The most pixels that one call of sample() gives.
    static constexpr int kRun = 256;

    /// @p toPicture maps the frame's coordinates to the picture's.
    CardSampler(const SourceArea &picture, const QTransform &toPicture);

    /// The @p count pixels of the frame that begin at (@p column, @p row).
    void sample(QRgb *target, int column, int row, int count) const;

private:
    void locate(int column, int row, int count, qint32 *across, qint32 *down) const;

    SourceArea m_picture;
    QTransform m_toPicture;
    float m_lastAcross;
    float m_lastDown;
};

} // namespace velmora
