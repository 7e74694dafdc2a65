// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/CardSampler.h"

#include "generator/transitions/PixelLanes.h"
#include "generator/transitions/PixelRows.h"

#include <algorithm>
#include <array>

namespace velmora
{

namespace
{

/// Positions in the picture are counted in 1/256 pixel.
constexpr float kUnit = 256.0f;
/// A pixel's value belongs to its centre; half a unit rounds.
constexpr float kHalf = kUnit / 2 - 0.5f;

/// The largest position whose next neighbour still exists.
float lastPosition(int pixels)
{
    return std::max(0.0f, static_cast<float>(pixels - 1) * kUnit - 1);
}

inline qint32 heldPosition(float position, float last)
{
    const float positive = position > 0 ? position : 0;
    return static_cast<qint32>(positive < last ? positive : last);
}

/// The most picture pixels that a pixel of a level card may cover.
constexpr double kLevelStep = 2;

bool isLevel(const QTransform &toPicture)
{
    return toPicture.type() <= QTransform::TxScale && toPicture.m11() > 0 && toPicture.m22() > 0 &&
           toPicture.m11() <= kLevelStep + 1e-6;
}

} // namespace

CardSampler::CardSampler(const SourceArea &picture, const QTransform &toPicture, int columns)
    : m_picture(picture), m_toPicture(toPicture), m_lastAcross(lastPosition(picture.width)),
      m_lastDown(lastPosition(picture.height)), m_level(isLevel(toPicture))
{
    if (qFuzzyIsNull(toPicture.m21()) && qFuzzyIsNull(toPicture.m23()))
        locateColumns(columns);
    if (picture.width > 1)
        return;
    for (int y = 0; y < picture.height; ++y)
        m_doubled.insert(m_doubled.end(), 2, *picture.row(y));
    m_picture = {m_doubled.data(), 2, 2, picture.height};
}

void CardSampler::locateColumns(int columns)
{
    m_across.resize(static_cast<size_t>(columns));
    m_scale.resize(m_across.size());
    for (size_t i = 0; i < m_across.size(); ++i) {
        const double x = static_cast<double>(i) + 0.5;
        const double scale =
            m_toPicture.isAffine() ? 1 : 1 / (m_toPicture.m13() * x + m_toPicture.m33());
        const double u = (m_toPicture.m11() * x + m_toPicture.m31()) * scale;
        m_across[i] = heldPosition(static_cast<float>(u * kUnit) - kHalf, m_lastAcross);
        m_scale[i] = static_cast<float>(scale);
    }
}

void CardSampler::locate(int column, int row, int count, qint32 *across, qint32 *down) const
{
    const double x = column + 0.5;
    const double y = row + 0.5;
    const QTransform &t = m_toPicture;
    const auto u = static_cast<float>((t.m11() * x + t.m21() * y + t.m31()) * kUnit);
    const auto v = static_cast<float>((t.m12() * x + t.m22() * y + t.m32()) * kUnit);
    const auto uStep = static_cast<float>(t.m11() * kUnit);
    const auto vStep = static_cast<float>(t.m12() * kUnit);
    if (!m_across.empty()) {
        const auto begin = static_cast<size_t>(column);
        std::copy_n(m_across.data() + begin, count, across);
        const float *scale = m_scale.data() + begin;
        for (int i = 0; i < count; ++i)
            down[i] =
                heldPosition((v + vStep * static_cast<float>(i)) * scale[i] - kHalf, m_lastDown);
        return;
    }
    if (t.isAffine()) {
        for (int i = 0; i < count; ++i) {
            across[i] = heldPosition(u - kHalf + uStep * static_cast<float>(i), m_lastAcross);
            down[i] = heldPosition(v - kHalf + vStep * static_cast<float>(i), m_lastDown);
        }
        return;
    }
    const auto w = static_cast<float>(t.m13() * x + t.m23() * y + t.m33());
    const auto wStep = static_cast<float>(t.m13());
    for (int i = 0; i < count; ++i) {
        const auto step = static_cast<float>(i);
        const float scale = 1.0f / (w + wStep * step);
        across[i] = heldPosition((u + uStep * step) * scale - kHalf, m_lastAcross);
        down[i] = heldPosition((v + vStep * step) * scale - kHalf, m_lastDown);
    }
}

// All pixels lie between the same two rows of the picture: these are mixed first, at once.
void CardSampler::sampleLevel(QRgb *target, int column, int row, int count) const
{
    std::array<qint32, kRun> across;
    std::array<qint32, kRun> down;
    locate(column, row, count, across.data(), down.data());
    const int first = across[0] >> 8;
    const int covered = (across[static_cast<size_t>(count) - 1] >> 8) + 2 - first;
    const QRgb *above = m_picture.row(down[0] >> 8) + first;
    const QRgb *below = m_picture.height > 1 ? above + m_picture.stride : above;
    std::array<QRgb, static_cast<size_t>(kLevelStep * kRun) + 4> line;
    mixRow(line.data(), above, below, covered, down[0] & 0xff);
    const lanes::Factors &factors = lanes::factors();
    lanes::storeSums(target, count, [&](int i) {
        const auto u = static_cast<quint32>(across[static_cast<size_t>(i)]);
        return lanes::loadPair(&line[(u >> 8) - static_cast<quint32>(first)]) *
               factors.within[u & 0xff];
    });
}

void CardSampler::sample(QRgb *target, int column, int row, int count) const
{
    if (m_level) {
        sampleLevel(target, column, row, count);
        return;
    }
    std::array<qint32, kRun> across;
    std::array<qint32, kRun> down;
    locate(column, row, count, across.data(), down.data());
    const lanes::Factors &factors = lanes::factors();
    const qptrdiff below = m_picture.height > 1 ? m_picture.stride : 0;
    lanes::storeSums(target, count, [&](int i) {
        const auto u = static_cast<quint32>(across[static_cast<size_t>(i)]);
        const auto v = static_cast<quint32>(down[static_cast<size_t>(i)]);
        const QRgb *pixel = m_picture.bits + (v >> 8) * m_picture.stride + (u >> 8);
        const lanes::Pair pair = lanes::mixPairs(
            lanes::loadPair(pixel), lanes::loadPair(pixel + below), factors.between[v & 0xff]);
        return pair * factors.within[u & 0xff];
    });
}

void CardSampler::fetch(int row, ColumnSpan span, int step) const
{
    const QTransform &t = m_toPicture;
    const double y = row + 0.5;
    for (int column = span.begin; column < span.end; column += step) {
        const double x = column + 0.5;
        const double w = t.isAffine() ? 1 : t.m13() * x + t.m23() * y + t.m33();
        const auto u = static_cast<float>((t.m11() * x + t.m21() * y + t.m31()) / w * kUnit);
        const auto v = static_cast<float>((t.m12() * x + t.m22() * y + t.m32()) / w * kUnit);
        __builtin_prefetch(m_picture.row(heldPosition(v, m_lastDown) >> 8) +
                           (heldPosition(u, m_lastAcross) >> 8));
    }
}

} // namespace velmora
