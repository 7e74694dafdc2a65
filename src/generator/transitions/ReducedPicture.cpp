// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/ReducedPicture.h"

#include <algorithm>

namespace velmora
{

ReducedPicture::ReducedPicture(const SourceArea &source, int xLevel, int yLevel) : m_area(source)
{
    if (xLevel == 0 && yLevel == 0)
        return;
    const int width = ((source.width - 1) >> xLevel) + 1;
    const int height = ((source.height - 1) >> yLevel) + 1;
    m_pixels.resize(static_cast<size_t>(width) * static_cast<size_t>(height));
    m_area = {m_pixels.data(), width, width, height};

    // Up to 128 rows of bytes fit into sums of 16 bits, which compilers add with vector code.
    std::vector<quint16> sums(static_cast<size_t>(source.width) * 4);
    for (int y = 0; y < height; ++y) {
        std::fill(sums.begin(), sums.end(), quint16(0));
        const int begin = y << yLevel;
        const int end = std::min(source.height, begin + (1 << yLevel));
        for (int row = begin; row < end; ++row) {
            const auto *bytes = reinterpret_cast<const uchar *>(source.row(row));
            quint16 *sum = sums.data();
            for (int i = 0; i < source.width * 4; ++i)
                sum[i] = static_cast<quint16>(sum[i] + bytes[i]);
        }
        reduceRow(sums, end - begin, source.width, xLevel,
                  m_pixels.data() + static_cast<size_t>(y) * static_cast<size_t>(width));
    }
}

void ReducedPicture::reduceRow(const std::vector<quint16> &sums, int rows, int sourceWidth,
                               int xLevel, QRgb *target) const
{
    for (int x = 0; x < m_area.width; ++x) {
        const int begin = x << xLevel;
        const int end = std::min(sourceWidth, begin + (1 << xLevel));
        quint32 blue = 0;
        quint32 green = 0;
        quint32 red = 0;
        const quint16 *sum = sums.data() + begin * 4;
        for (int i = begin; i < end; ++i, sum += 4) {
            blue += sum[0];
            green += sum[1];
            red += sum[2];
        }
        const auto pixels = static_cast<quint32>(rows * (end - begin));
        const quint32 half = pixels / 2;
        target[x] =
            qRgb(static_cast<int>((red + half) / pixels), static_cast<int>((green + half) / pixels),
                 static_cast<int>((blue + half) / pixels));
    }
}

} // namespace velmora
