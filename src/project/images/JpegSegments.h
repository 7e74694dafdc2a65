// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

class QIODevice;

namespace velmora
{

/// Walks the segments in front of the picture's data in a JPEG file. The device is seekable, open
/// for reading and outlives the walk; any bytes are accepted.
class JpegSegments
{
public:
    static constexpr int ExifMarker = 0xe1;
    static constexpr int ScanMarker = 0xda; ///< The picture's data follow this segment.

    explicit JpegSegments(QIODevice &device) : m_device(device) {}

    /// Goes to the next segment that has content, which the device then stands before; false
    /// where there is none or what follows is no segment.
    bool next();
    int marker() const { return m_marker; }
    int size() const { return m_size; }       ///< Bytes of content.
    qint64 end() const { return m_position; } ///< Offset in the file behind the content.

private:
    QIODevice &m_device;
    qint64 m_position = 2; ///< Behind the start of the image.
    int m_marker = 0;
    int m_size = 0;
};

} // namespace velmora
