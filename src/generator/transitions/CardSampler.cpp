// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/CardSampler.h"

#include <algorithm>
#include <array>

namespace velmora
{

namespace
{

/// Positions in the picture are counted in 1/256 pixel.
constexpr float kUnit = 256.0f;

/// The four bytes of a pixel spread over a 64-bit word, 16 bits for each.
inline quint64 spread(QRgb pixel)
{
    const quint64 wide = pixel;
    return (wide | wide << 24) & 0x00ff00ff00ff00ffu;
}

inline QRgb gather(quint64 lanes)
{
    const quint64 bytes = (lanes + 0x0080008000800080u) >> 8 & 0x00ff00ff00ff00ffu;
    return static_cast<QRgb>(bytes | bytes >> 24) | 0xff000000u;
}

/// The largest position whose right neighbour still exists.
float lastPosition(int pixels)
{
    return std::max(0.0f, static_cast<float>(pixels - 1) * kUnit - 1);
}

} // namespace

CardSampler::CardSampler(const SourceArea &picture, const QTransform &toPicture)
    : m_picture(picture), m_toPicture(toPicture), m_lastAcross(lastPosition(picture.width)),
      m_lastDown(lastPosition(picture.height))
{
}

void CardSampler::locate(int column, int row, int count, qint32 *across, qint32 *down) const
{
    const double x = column + 0.5;
    const double y = row + 0.5;
    const QTransform &t = m_toPicture;
    const auto u = static_cast<float>((t.m11() * x + t.m21() * y + t.m31()) * kUnit);
    const auto v = static_cast<float>((t.m12() * x + t.m22() * y + t.m32()) * kUnit);
    const auto w = static_cast<float>(t.m13() * x + t.m23() * y + t.m33());
    const auto uStep = static_cast<float>(t.m11() * kUnit);
    const auto vStep = static_cast<float>(t.m12() * kUnit);
    const auto wStep = static_cast<float>(t.m13());
    const float half = kUnit / 2 - 0.5f; // a pixel's value belongs to its centre; 0.5 rounds
    for (int i = 0; i < count; ++i) {
        const auto step = static_cast<float>(i);
        const float scale = 1.0f / (w + wStep * step);
        const float atAcross = (u + uStep * step) * scale - half;
        const float atDown = (v + vStep * step) * scale - half;
        const float heldAcross = atAcross > 0 ? atAcross : 0;
        const float heldDown = atDown > 0 ? atDown : 0;
        across[i] = static_cast<qint32>(heldAcross < m_lastAcross ? heldAcross : m_lastAcross);
        down[i] = static_cast<qint32>(heldDown < m_lastDown ? heldDown : m_lastDown);
    }
}

void CardSampler::sample(QRgb *target, int column, int row, int count) const
{
    std::array<qint32, kRun> across;
    std::array<qint32, kRun> down;
    locate(column, row, count, across.data(), down.data());
    const int right = m_picture.width > 1 ? 1 : 0;
    const qptrdiff below = m_picture.height > 1 ? m_picture.stride : 0;
    for (int i = 0; i < count; ++i) {
        const auto u = static_cast<quint32>(across[static_cast<size_t>(i)]);
        const auto v = static_cast<quint32>(down[static_cast<size_t>(i)]);
        const QRgb *pixel = m_picture.bits + (v >> 8) * m_picture.stride + (u >> 8);
        const quint32 shareRight = u & 0xffu;
        const quint32 shareBelow = v & 0xffu;
        const quint32 both = shareRight * shareBelow >> 8;
        const quint32 onlyRight = shareRight - both;
        const quint32 onlyBelow = shareBelow - both;
        const quint32 none = 256 - shareRight - onlyBelow;
        target[i] = gather(spread(pixel[0]) * none + spread(pixel[right]) * onlyRight +
                           spread(pixel[below]) * onlyBelow + spread(pixel[below + right]) * both);
    }
}

} // namespace velmora
