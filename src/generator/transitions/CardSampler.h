// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/transitions/PixelArea.h"
#include "generator/transitions/QuadShape.h"

#include <QTransform>

#include <vector>

namespace velmora
{

/// Reads a picture through a transform, with bilinear interpolation; places beyond its edges show
/// the edge pixels. Keeps a view of the picture.
class CardSampler
{
public:
    /// The most pixels that one call of sample() gives.
    static constexpr int kRun = 256;

    /// @p toPicture maps the coordinates of a frame @p columns wide to the picture's.
    CardSampler(const SourceArea &picture, const QTransform &toPicture, int columns);
    CardSampler(const CardSampler &) = delete;
    CardSampler &operator=(const CardSampler &) = delete;

    /// The @p count pixels of the frame that begin at (@p column, @p row).
    void sample(QRgb *target, int column, int row, int count) const;

    /// Has the memory fetched that sample() will read for every @p step th pixel of a row's span.
    void fetch(int row, ColumnSpan span, int step) const;

private:
    void locate(int column, int row, int count, qint32 *across, qint32 *down) const;
    void locateColumns(int columns);
    void sampleLevel(QRgb *target, int column, int row, int count) const;

    std::vector<QRgb> m_doubled; ///< a picture of one column shown twice: pixels are read in pairs
    SourceArea m_picture;
    QTransform m_toPicture;
    float m_lastAcross;
    float m_lastDown;
    /// Neither turned nor mirrored nor much smaller: the rows of the frame are rows of the picture.
    bool m_level;
    // Of an upright card, where they are the same in all rows of the frame; empty for others.
    std::vector<qint32> m_across; ///< of each column
    std::vector<float> m_scale;   ///< by which each column is divided for the perspective
};

} // namespace velmora
