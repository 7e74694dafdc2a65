// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/images/JpegCoefficients.h"

#include "project/images/JpegSegments.h"

#include <QByteArray>
#include <QIODevice>
#include <QtEndian>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int kFrameHead = 6; // Precision, height, width and the number of components.
constexpr int kComponentSize = 3;
constexpr qint64 kBlockBytes = 64 * 2;

/// Whether a segment describes the picture; three markers amid the others mean something else.
bool isFrame(int marker)
{
    return marker >= 0xc0 && marker <= 0xcf && marker != 0xc4 && marker != 0xc8 && marker != 0xcc;
}

bool isProgressive(int marker)
{
    return isFrame(marker) && (marker & 3) == 2;
}

int componentsOf(const QByteArray &frame)
{
    return frame.size() < kFrameHead ? 0 : static_cast<uchar>(frame.at(kFrameHead - 1));
}

/// How often a component is sampled in the larger unit of the picture, across or down.
int sampling(const QByteArray &frame, int component, int shift)
{
    const int factors = frame.at(kFrameHead + component * kComponentSize + 1) >> shift;
    return std::max(1, factors & 0xf);
}

/// The blocks of 8 samples that @p samples px need where a component is sampled @p part times of
/// @p whole.
qint64 blocks(qint64 samples, int part, int whole)
{
    return (samples * part + 8 * whole - 1) / (8 * whole);
}

qint64 bytesOf(const QByteArray &frame)
{
    constexpr int kAcross = 4;
    constexpr int kDown = 0;
    const int count = componentsOf(frame);
    if (frame.size() < kFrameHead + count * kComponentSize)
        return 0;
    const qint64 height = qFromBigEndian<quint16>(frame.constData() + 1);
    const qint64 width = qFromBigEndian<quint16>(frame.constData() + 3);
    int across = 1;
    int down = 1;
    for (int i = 0; i < count; ++i) {
        across = std::max(across, sampling(frame, i, kAcross));
        down = std::max(down, sampling(frame, i, kDown));
    }
    qint64 bytes = 0;
    for (int i = 0; i < count; ++i)
        bytes += blocks(width, sampling(frame, i, kAcross), across) *
                 blocks(height, sampling(frame, i, kDown), down) * kBlockBytes;
    return bytes;
}

} // namespace

qint64 jpegCoefficientBytes(QIODevice &device)
{
    JpegSegments segments(device);
    QByteArray frame;
    bool progressive = false;
    while (segments.next()) {
        if (segments.marker() == JpegSegments::ScanMarker) {
            const QByteArray inScan = device.read(1);
            const bool hasMore =
                !inScan.isEmpty() && static_cast<uchar>(inScan.at(0)) < componentsOf(frame);
            return progressive || hasMore ? bytesOf(frame) : 0;
        }
        if (isFrame(segments.marker())) {
            frame = device.read(segments.size());
            progressive = isProgressive(segments.marker());
        }
    }
    return 0;
}

} // namespace velmora
