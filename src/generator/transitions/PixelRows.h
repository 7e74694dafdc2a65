// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/transitions/PixelArea.h"

namespace velmora
{

/// Weights of the functions below run from 0 to kFullWeight; the result is always opaque.
constexpr int kFullWeight = 256;

/// The weight for a share from 0 to 1; shares beyond are held.
int weightOf(double share);

/// Copies @p source to the same place of @p target; both have one size.
void copyArea(const TargetArea &target, const SourceArea &source);
void fillArea(const TargetArea &target, QRgb color);

/// One pixel of @p a and @p b, @p weight being the share of @p b.
inline QRgb mixPixels(QRgb a, QRgb b, int weight)
{
    const auto shareB = static_cast<quint32>(weight);
    const quint32 shareA = kFullWeight - shareB;
    const quint32 redBlue = ((a & 0xff00ffu) * shareA + (b & 0xff00ffu) * shareB + 0x800080u) >> 8;
    const quint32 green = ((a >> 8 & 0xffu) * shareA + (b >> 8 & 0xffu) * shareB + 0x80u) & 0xff00u;
    return 0xff000000u | (redBlue & 0xff00ffu) | green;
}

/// Mixes two rows of @p count pixels; @p target may be one of them.
void mixRow(QRgb *target, const QRgb *a, const QRgb *b, int count, int weight);
/// The same with the share of @p b given for every pixel.
void mixRow(QRgb *target, const QRgb *a, const QRgb *b, int count, const quint16 *weights);
/// @p weight of the row over black; @p target may be @p source.
void darkenRow(QRgb *target, const QRgb *source, int count, int weight);
/// @p weight of the row over white; @p target may be @p source.
void whitenRow(QRgb *target, const QRgb *source, int count, int weight);

} // namespace velmora
