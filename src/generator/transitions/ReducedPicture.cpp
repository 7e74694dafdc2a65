// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/ReducedPicture.h"

#include "generator/transitions/PixelLanes.h"

#include <algorithm>
#include <array>

namespace velmora
{

namespace
{

constexpr int kRun = 256;

/// The means of some rows, channel by channel. Up to 128 rows fit into sums of 16 bits.
class RowMeans
{
public:
    explicit RowMeans(int width)
        : m_sums(static_cast<size_t>(width) * 4), m_means(static_cast<size_t>(width))
    {
    }

    const QRgb *of(const SourceArea &source, int begin, int end)
    {
        if (end - begin == 1)
            return source.row(begin);
        std::fill(m_sums.begin(), m_sums.end(), quint16(0));
        for (int y = begin; y < end; ++y) {
            const auto *bytes = reinterpret_cast<const uchar *>(source.row(y));
            for (size_t i = 0; i < m_sums.size(); ++i)
                m_sums[i] = static_cast<quint16>(m_sums[i] + bytes[i]);
        }
        // Products with the reciprocal in 16 bits are exact enough for a mean of bytes.
        const auto rows = static_cast<quint32>(end - begin);
        const quint32 reciprocal = (65536 + rows - 1) / rows;
        auto *means = reinterpret_cast<uchar *>(m_means.data());
        for (size_t i = 0; i < m_sums.size(); ++i)
            means[i] = static_cast<uchar>((m_sums[i] + rows / 2) * reciprocal >> 16);
        return m_means.data();
    }

private:
    std::vector<quint16> m_sums;
    std::vector<QRgb> m_means;
};

QRgb meanPixel(const QRgb *pixels, int count)
{
    int red = count / 2;
    int green = count / 2;
    int blue = count / 2;
    for (int i = 0; i < count; ++i) {
        red += qRed(pixels[i]);
        green += qGreen(pixels[i]);
        blue += qBlue(pixels[i]);
    }
    return qRgb(red / count, green / count, blue / count);
}

/// Reduces whole blocks of a row; a rest of less than a block becomes one more pixel.
void reduceRow(QRgb *target, const QRgb *source, int width, int level)
{
    const int block = 1 << level;
    const int blocks = width >> level;
    std::array<quint16, 4 * kRun> channels;
    for (int begin = 0; begin < blocks; begin += kRun) {
        const int count = std::min(kRun, blocks - begin);
        for (int i = 0; i < count; ++i) {
            const QRgb *pixels = source + (begin + i) * block;
            lanes::Pair sum = lanes::loadPair(pixels);
            for (int pair = 2; pair < block; pair += 2)
                sum += lanes::loadPair(pixels + pair);
            lanes::storeSum(sum << (8 - level), &channels[static_cast<size_t>(4 * i)]);
        }
        lanes::storePixels(target + begin, channels.data(), count);
    }
    if (width > blocks * block)
        target[blocks] = meanPixel(source + blocks * block, width - blocks * block);
}

} // namespace

ReducedPicture::ReducedPicture(const SourceArea &source, int xLevel, int yLevel) : m_area(source)
{
    if (xLevel == 0 && yLevel == 0)
        return;
    const int width = ((source.width - 1) >> xLevel) + 1;
    const int height = ((source.height - 1) >> yLevel) + 1;
    m_pixels.resize(static_cast<size_t>(width) * static_cast<size_t>(height));
    m_area = {m_pixels.data(), width, width, height};

    RowMeans means(source.width);
    for (int y = 0; y < height; ++y) {
        const int begin = y << yLevel;
        const QRgb *row = means.of(source, begin, std::min(source.height, begin + (1 << yLevel)));
        QRgb *target = m_pixels.data() + static_cast<size_t>(y) * static_cast<size_t>(width);
        if (xLevel == 0)
            std::copy_n(row, width, target);
        else
            reduceRow(target, row, source.width, xLevel);
    }
}

} // namespace velmora
