// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/images/ExifBlock.h"

#include "project/images/JpegSegments.h"
#include "project/images/TiffTags.h"

#include <QIODevice>
#include <QtEndian>

#include <algorithm>

namespace velmora
{

namespace
{

// Cameras write some ten kilobytes; the limit only keeps hostile length fields from memory.
constexpr qint64 kMaximumBlock = 16LL * 1024 * 1024;
// Compressed, so that what it unpacks to is bounded as well.
constexpr qint64 kMaximumProfile = 256LL * 1024;

const char kExifMark[] = {'E', 'x', 'i', 'f', '\0', '\0'};
constexpr int kExifMarkSize = sizeof(kExifMark);

/// Strips the mark that stands before the TIFF form in JPEG files, and in some others by mistake.
QByteArray withoutMark(const QByteArray &block)
{
    const QByteArray mark = QByteArray::fromRawData(kExifMark, kExifMarkSize);
    return block.startsWith(mark) ? block.mid(kExifMarkSize) : block;
}

QByteArray findInJpeg(QIODevice &device)
{
    JpegSegments segments(device);
    while (segments.next() && segments.marker() != JpegSegments::ScanMarker) {
        if (segments.marker() != JpegSegments::ExifMarker)
            continue;
        const QByteArray segment = device.read(segments.size());
        const QByteArray block = withoutMark(segment);
        if (!block.isEmpty() && block.size() < segment.size())
            return block;
    }
    return QByteArray();
}

/// The block from a text chunk, in which many editors keep it: compressed hexadecimal digits
/// behind a line with their purpose and one with their number.
QByteArray fromRawProfile(const QByteArray &chunk)
{
    const int separator = chunk.indexOf('\0');
    const QByteArray keyword = chunk.left(std::max(0, separator));
    if (keyword != "Raw profile type exif" && keyword != "Raw profile type APP1")
        return QByteArray();
    // The unpacking function wants the expected size, which is only a hint, in front.
    const QByteArray text = qUncompress(QByteArray(4, '\0') + chunk.mid(separator + 2)).trimmed();
    const int numberEnd = text.indexOf('\n', text.indexOf('\n') + 1);
    return withoutMark(QByteArray::fromHex(text.mid(std::max(0, numberEnd))));
}

QByteArray findInPng(QIODevice &device)
{
    qint64 position = 8;
    while (device.seek(position)) {
        const QByteArray head = device.read(8);
        if (head.size() != 8)
            break;
        const qint64 size = qFromBigEndian<quint32>(head.constData());
        if (head.endsWith("eXIf"))
            return size <= kMaximumBlock ? withoutMark(device.read(size)) : QByteArray();
        if (head.endsWith("zTXt") && size <= kMaximumProfile) {
            const QByteArray block = fromRawProfile(device.read(size));
            if (!block.isEmpty())
                return block;
        }
        position += 12 + size; // Length, type, data and checksum.
    }
    return QByteArray();
}

QByteArray findInWebp(QIODevice &device)
{
    qint64 position = 12;
    while (device.seek(position)) {
        const QByteArray head = device.read(8);
        if (head.size() != 8)
            break;
        const qint64 size = qFromLittleEndian<quint32>(head.constData() + 4);
        if (head.startsWith("EXIF"))
            return size <= kMaximumBlock ? withoutMark(device.read(size)) : QByteArray();
        position += 8 + size + (size & 1); // Chunks are padded to an even length.
    }
    return QByteArray();
}

} // namespace

QByteArray findExifBlock(QIODevice &device)
{
    if (!device.seek(0))
        return QByteArray();
    const QByteArray head = device.read(12);
    if (head.startsWith("\xff\xd8"))
        return findInJpeg(device);
    if (head.startsWith("\x89PNG\r\n\x1a\n"))
        return findInPng(device);
    if (head.startsWith("RIFF") && head.endsWith("WEBP"))
        return findInWebp(device);
    return tiffTags(device);
}

} // namespace velmora
