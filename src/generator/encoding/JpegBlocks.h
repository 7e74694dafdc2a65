// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QtGlobal>

#include <array>
#include <vector>

namespace velmora
{

/// A picture as the blocks of frequency coefficients that a JPEG file of quality 100 holds, with
/// colours at half the resolution. Pictures add up in this form as they do in pixels, so that a
/// fade needs neither a conversion nor a transform for each of its frames, and keeps out the noise
/// that rounding to pixels would add to it.
class JpegBlocks
{
public:
    /// A picture of one grey, from 0 (black) to 255 (white).
    static JpegBlocks ofGrey(const QSize &size, int grey);

    QSize size() const { return m_size; } ///< in px; empty without a picture

    /// Takes the picture from a file as FrameWriter makes them. False for any other file.
    bool read(const uchar *file, size_t bytes);
    /// Writes a whole file into @p file, which grows where needed. Returns its bytes, 0 on failure.
    size_t write(std::vector<uchar> &file) const;
    /// Becomes the mixture of two pictures of one size; @p weight (0 to 256) is the share of @p b.
    void mix(const JpegBlocks &a, const JpegBlocks &b, int weight);

private:
    struct Plane {
        unsigned columns = 0; ///< blocks in a row
        unsigned rows = 0;
        std::vector<qint16> values; ///< 64 for each block
    };
    class Reader;
    class Writer;

    void setSize(const QSize &size);

    QSize m_size;
    std::array<Plane, 3> m_planes; ///< brightness, blue and red
};

} // namespace velmora
