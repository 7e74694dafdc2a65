// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/Easing.h"
#include "generator/transitions/MosaicEffects.h"
#include "generator/transitions/PixelRows.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace velmora
{

namespace
{

/// The largest blocks, as a share of the shorter side of the frame.
constexpr double kLargestBlock = 1.0 / 9;
/// The pictures change over while the blocks are large, this long before and after the middle.
constexpr double kChange = 0.06;

/// Where blocks of @p size pixels begin along a side; they grow from its middle. The last entry
/// is the length of the side.
std::vector<int> blockEdges(int length, double size)
{
    const double middle = length / 2.0;
    std::vector<int> edges = {0};
    for (auto i = static_cast<int>(std::floor(-middle / size)); edges.back() < length; ++i) {
        const double place = std::min(middle + i * size, static_cast<double>(length));
        const int edge = static_cast<int>(std::lround(place));
        if (edge > edges.back())
            edges.push_back(edge);
    }
    return edges;
}

/// The mean colours of the blocks of one row of blocks.
class BlockMeans
{
public:
    explicit BlockMeans(const std::vector<int> &edges)
        : m_edges(edges), m_sums(static_cast<size_t>(edges.back()) * 4)
    {
    }

    void measure(const SourceArea &picture, int top, int bottom, QRgb *means)
    {
        std::fill(m_sums.begin(), m_sums.end(), 0u);
        for (int y = top; y < bottom; ++y) {
            const auto *bytes = reinterpret_cast<const uchar *>(picture.row(y));
            for (size_t i = 0; i < m_sums.size(); ++i)
                m_sums[i] += bytes[i];
        }
        for (size_t block = 0; block + 1 < m_edges.size(); ++block)
            means[block] = mean(m_edges[block], m_edges[block + 1], bottom - top);
    }

private:
    QRgb mean(int left, int right, int rows)
    {
        quint32 channels[3] = {};
        for (int x = left; x < right; ++x) {
            const quint32 *sum = m_sums.data() + 4 * x;
            for (int c = 0; c < 3; ++c)
                channels[c] += sum[c];
        }
        const auto pixels = static_cast<quint32>(rows * (right - left));
        if (pixels != m_pixels) {
            // Most blocks have the same size: divide once, then multiply.
            m_pixels = pixels;
            m_reciprocal = ((quint64(1) << 40) + pixels - 1) / pixels;
        }
        const auto level = [&](int c) {
            return static_cast<int>((channels[c] + pixels / 2) * m_reciprocal >> 40);
        };
        return qRgb(level(2), level(1), level(0));
    }

    const std::vector<int> &m_edges;
    std::vector<quint32> m_sums;
    quint32 m_pixels = 0;
    quint64 m_reciprocal = 0;
};

} // namespace

void composePixelate(const EffectFrame &frame)
{
    const TargetArea &target = frame.target;
    const double t = frame.progress();
    const double largest = std::max(1.0, kLargestBlock * std::min(target.width, target.height));
    // Growing by a constant factor looks even to the eye.
    const double size = std::pow(largest, easing::inOut(1 - std::abs(2 * t - 1)));
    const int weight = weightOf(easing::inOut(easing::within(t, 0.5 - kChange, 0.5 + kChange)));

    const std::vector<int> columns = blockEdges(target.width, size);
    const std::vector<int> rows = blockEdges(target.height, size);
    BlockMeans blocks(columns);
    std::vector<QRgb> means(columns.size());
    std::vector<QRgb> others(columns.size());
    for (size_t row = 0; row + 1 < rows.size(); ++row) {
        const int top = rows[row];
        const int bottom = rows[row + 1];
        blocks.measure(weight < kFullWeight ? frame.from : frame.to, top, bottom, means.data());
        if (weight > 0 && weight < kFullWeight) {
            blocks.measure(frame.to, top, bottom, others.data());
            mixRow(means.data(), means.data(), others.data(), static_cast<int>(means.size()),
                   weight);
        }
        for (size_t block = 0; block + 1 < columns.size(); ++block) {
            std::fill(target.row(top) + columns[block], target.row(top) + columns[block + 1],
                      means[block]);
        }
        for (int y = top + 1; y < bottom; ++y)
            std::copy_n(target.row(top), target.width, target.row(y));
    }
}

} // namespace velmora
