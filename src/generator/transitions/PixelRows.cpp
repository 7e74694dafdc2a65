// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/PixelRows.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace velmora
{

// The loops go over single bytes with 16-bit products: that is the shape that compilers turn into
// vector code. (255 * 256 + 128 still fits into 16 bits.)
namespace
{
uchar *bytes(QRgb *row)
{
    return reinterpret_cast<uchar *>(row);
}
const uchar *bytes(const QRgb *row)
{
    return reinterpret_cast<const uchar *>(row);
}
} // namespace

int weightOf(double share)
{
    return static_cast<int>(std::lround(std::clamp(share, 0.0, 1.0) * kFullWeight));
}

void copyArea(const TargetArea &target, const SourceArea &source)
{
    for (int y = 0; y < target.height; ++y)
        std::memcpy(target.row(y), source.row(y), sizeof(QRgb) * static_cast<size_t>(target.width));
}

void fillArea(const TargetArea &target, QRgb color)
{
    for (int y = 0; y < target.height; ++y)
        std::fill_n(target.row(y), target.width, color);
}

void mixRow(QRgb *target, const QRgb *a, const QRgb *b, int count, int weight)
{
    if (weight <= 0 || weight >= kFullWeight) {
        const QRgb *only = weight <= 0 ? a : b;
        if (only != target)
            std::copy_n(only, count, target);
        return;
    }
    uchar *out = bytes(target);
    const uchar *first = bytes(a);
    const uchar *second = bytes(b);
    const auto shareB = static_cast<quint16>(weight);
    const auto shareA = static_cast<quint16>(kFullWeight - weight);
    for (int i = 0; i < count * 4; ++i) {
        const auto sum = static_cast<quint16>(first[i] * shareA + second[i] * shareB + 128);
        out[i] = static_cast<uchar>(sum >> 8);
    }
}

void mixRow(QRgb *target, const QRgb *a, const QRgb *b, int count, const quint16 *weights)
{
    for (int x = 0; x < count; ++x)
        target[x] = mixPixels(a[x], b[x], weights[x]);
}

void darkenRow(QRgb *target, const QRgb *source, int count, int weight)
{
    const auto share = static_cast<quint16>(weight);
    const uchar *in = bytes(source);
    uchar *out = bytes(target);
    for (int i = 0; i < count * 4; ++i)
        out[i] = static_cast<uchar>(static_cast<quint16>(in[i] * share + 128) >> 8);
    for (int x = 0; x < count; ++x)
        target[x] |= 0xff000000u;
}

void whitenRow(QRgb *target, const QRgb *source, int count, int weight)
{
    const auto share = static_cast<quint16>(weight);
    const uchar *in = bytes(source);
    uchar *out = bytes(target);
    for (int i = 0; i < count * 4; ++i) {
        const auto missing = static_cast<quint16>((255 - in[i]) * share + 128);
        out[i] = static_cast<uchar>(255 - (missing >> 8));
    }
}

} // namespace velmora
