// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/RowReducer.h"

#include "generator/transitions/PixelLanes.h"

#include <algorithm>

namespace velmora
{

namespace
{

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
void reduceAcross(QRgb *target, const QRgb *source, int width, int level)
{
    const int block = 1 << level;
    const int blocks = width >> level;
    lanes::storeSums(target, blocks, [=](int i) {
        const QRgb *pixels = source + i * block;
        lanes::Pair sum = lanes::loadPair(pixels);
        for (int pair = 2; pair < block; pair += 2)
            sum += lanes::loadPair(pixels + pair);
        return sum << (8 - level);
    });
    if (width > blocks * block)
        target[blocks] = meanPixel(source + blocks * block, width - blocks * block);
}

} // namespace

RowReducer::RowReducer(const SourceArea &source, int xLevel, int yLevel)
    : m_source(source), m_xLevel(xLevel), m_yLevel(yLevel),
      m_width(((source.width - 1) >> xLevel) + 1), m_height(((source.height - 1) >> yLevel) + 1)
{
    if (yLevel == 0)
        return;
    m_sums.resize(static_cast<size_t>(source.width) * 4);
    m_means.resize(static_cast<size_t>(source.width));
}

void RowReducer::reduce(QRgb *target, int row)
{
    const int begin = row << m_yLevel;
    const QRgb *means = meansOfRows(begin, std::min(m_source.height, begin + (1 << m_yLevel)));
    if (m_xLevel == 0)
        std::copy_n(means, m_width, target);
    else
        reduceAcross(target, means, m_source.width, m_xLevel);
}

const QRgb *RowReducer::meansOfRows(int begin, int end)
{
    if (end - begin == 1)
        return m_source.row(begin);
    std::fill(m_sums.begin(), m_sums.end(), quint16(0));
    for (int y = begin; y < end; ++y) {
        const auto *bytes = reinterpret_cast<const uchar *>(m_source.row(y));
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

} // namespace velmora
