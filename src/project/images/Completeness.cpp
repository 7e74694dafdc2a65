// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/images/Completeness.h"

#include "project/images/JpegSegments.h"

#include <QByteArray>
#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <cstdlib>

namespace velmora
{

namespace
{

constexpr int kBmpHeader = 38; // Up to and with the size of the picture's data.
constexpr int kOldBmpInfo = 12;
constexpr qint64 kJpegBlock = 64 * 1024;

template <typename T> T numberAt(const QByteArray &bytes, int offset)
{
    return qFromLittleEndian<T>(bytes.constData() + offset);
}

/// The bytes of uncompressed rows; each but the last is padded to four.
qint64 rowBytes(qint64 width, qint64 height, qint64 bits)
{
    return (width * bits + 31) / 32 * 4 * (height - 1) + (width * bits + 7) / 8;
}

int byteFrom(QIODevice &device)
{
    char byte = 0;
    return device.getChar(&byte) ? static_cast<uchar>(byte) : -1;
}

bool skip(QIODevice &device, qint64 bytes)
{
    return device.pos() + bytes <= device.size() && device.seek(device.pos() + bytes);
}

/// Skips data blocks, each with its length in front, to the empty one at the end.
bool skipGifBlocks(QIODevice &device)
{
    for (;;) {
        const int length = byteFrom(device);
        if (length <= 0)
            return length == 0;
        if (!skip(device, length))
            return false;
    }
}

/// Skips the colour table that @p flags announce.
bool skipGifColours(QIODevice &device, int flags)
{
    return !(flags & 0x80) || skip(device, 3LL << ((flags & 7) + 1));
}

/// Whether there is an end marker from @p first on, up to the offset @p last. The picture's data
/// cannot hold these two bytes.
bool hasJpegEnd(QIODevice &device, qint64 first, qint64 last)
{
    for (qint64 position = first; position < last && device.seek(position);
         position += kJpegBlock) {
        if (device.read(kJpegBlock + 1).contains("\xff\xd9"))
            return true;
    }
    return false;
}

} // namespace

bool isCompleteJpeg(QIODevice &device)
{
    JpegSegments segments(device);
    while (segments.next()) {
        if (segments.marker() != JpegSegments::ScanMarker)
            continue;
        // Most files end with the marker, and reading all of a large one takes long.
        const qint64 tail = std::max(segments.end(), device.size() - kJpegBlock);
        return hasJpegEnd(device, tail, device.size()) || hasJpegEnd(device, segments.end(), tail);
    }
    return false;
}

bool isCompletePng(QIODevice &device)
{
    qint64 position = 8;
    while (device.seek(position)) {
        const QByteArray head = device.read(8);
        if (head.size() != 8)
            return false;
        if (head.endsWith("IEND"))
            return true;
        position += 12 + qint64(qFromBigEndian<quint32>(head.constData()));
    }
    return false;
}

bool isCompleteWebp(QIODevice &device)
{
    constexpr int kHead = 8; // The container's name and the size of what follows.
    device.seek(0);
    const QByteArray head = device.read(kHead);
    return head.size() == kHead && device.size() - kHead >= numberAt<quint32>(head, 4);
}

bool isCompleteBmp(QIODevice &device)
{
    device.seek(0);
    const QByteArray head = device.read(kBmpHeader);
    if (head.size() != kBmpHeader)
        return false;
    const qint64 offset = numberAt<quint32>(head, 10);
    if (numberAt<quint32>(head, 14) == kOldBmpInfo)
        return device.size() >= offset + rowBytes(numberAt<quint16>(head, 18),
                                                  numberAt<quint16>(head, 20),
                                                  numberAt<quint16>(head, 24));
    const quint32 compression = numberAt<quint32>(head, 30);
    const bool isRunLength = compression == 1 || compression == 2;
    if (isRunLength)
        return device.size() >= offset + numberAt<quint32>(head, 34);
    return device.size() >= offset + rowBytes(numberAt<qint32>(head, 18),
                                              std::abs(qint64(numberAt<qint32>(head, 22))),
                                              numberAt<quint16>(head, 28));
}

bool isCompleteGif(QIODevice &device)
{
    device.seek(0);
    const QByteArray head = device.read(13);
    if (head.size() != 13 || !skipGifColours(device, head.at(10)))
        return false;
    for (;;) {
        switch (byteFrom(device)) {
        case 0x21: // An extension: its kind, then data blocks.
            if (!skip(device, 1) || !skipGifBlocks(device))
                return false;
            break;
        case 0x2c: { // A picture: place, size and flags, colours, code size, then data blocks.
            const QByteArray descriptor = device.read(9);
            return descriptor.size() == 9 && skipGifColours(device, descriptor.at(8)) &&
                   skip(device, 1) && skipGifBlocks(device);
        }
        default:
            return false;
        }
    }
}

} // namespace velmora
