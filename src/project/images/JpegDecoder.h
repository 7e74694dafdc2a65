// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

namespace velmora
{

/// Decodes JPEG files at full size or at the half, quarter or eighth that the format yields at a
/// fraction of the work. Tells damaged files from those with harmless oddities. Any thread.
namespace JpegDecoder
{

struct Result {
    QImage image;         ///< RGB32 or greyscale with the file's colour space; null on failure.
    bool damaged = false; ///< Picture data is missing or broken; image may be partly grey.
    QString error;        ///< The decoder's text about a failure or about the first damage.
};

/// The size that decode() yields for a picture of @p size px.
QSize decodedSize(const QSize &size, const QSize &minimum);

/// Decodes @p bytes at the smallest step that is still at least @p minimum px each way.
Result decode(const QByteArray &bytes, const QSize &minimum);

/// Reads all of @p bytes at an eighth of the size without keeping the picture.
Result verify(const QByteArray &bytes);

} // namespace JpegDecoder

} // namespace velmora
