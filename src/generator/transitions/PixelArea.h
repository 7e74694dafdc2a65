// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QRect>

namespace velmora
{

/// A view of the pixels of an RGB32 picture or of a part of one. Owns nothing; valid as long as
/// the picture lives and is not detached.
template <typename Pixel> struct PixelArea {
    Pixel *bits = nullptr;
    qptrdiff stride = 0; ///< pixels from one row to the next
    int width = 0;
    int height = 0;

    Pixel *row(int y) const { return bits + y * stride; }
    QRect rect() const { return QRect(0, 0, width, height); }

    /// The part below @p part, which must lie inside.
    PixelArea cut(const QRect &part) const
    {
        return {row(part.y()) + part.x(), stride, part.width(), part.height()};
    }
};

using SourceArea = PixelArea<const QRgb>;
using TargetArea = PixelArea<QRgb>;

/// The pixels of a picture in the format RGB32.
inline SourceArea sourceArea(const QImage &image)
{
    return {reinterpret_cast<const QRgb *>(image.constBits()), image.bytesPerLine() / 4,
            image.width(), image.height()};
}

inline TargetArea targetArea(QImage &image)
{
    return {reinterpret_cast<QRgb *>(image.bits()), image.bytesPerLine() / 4, image.width(),
            image.height()};
}

} // namespace velmora
