// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRgb>

#include <array>
#include <cstring>

/// Interpolation between pixels with vector registers, in the notation that GCC and Clang share
/// for all processors.
namespace velmora::lanes
{

/// The channels of two neighbouring pixels, 16 bits each.
using Pair = quint16 __attribute__((vector_size(16)));
using Bytes = uchar __attribute__((vector_size(16)));
using Words = quint64 __attribute__((vector_size(16)));

inline Pair loadPair(const QRgb *pixels)
{
    quint64 both;
    std::memcpy(&both, pixels, sizeof both);
    const Words words = {both, 0};
    const Bytes bytes = reinterpret_cast<Bytes>(words);
#if __has_builtin(__builtin_shufflevector)
    return reinterpret_cast<Pair>(__builtin_shufflevector(bytes, Bytes{}, 0, 16, 1, 17, 2, 18, 3,
                                                          19, 4, 20, 5, 21, 6, 22, 7, 23));
#else // GCC before version 12
    constexpr Bytes kOrder = {0, 16, 1, 17, 2, 18, 3, 19, 4, 20, 5, 21, 6, 22, 7, 23};
    return reinterpret_cast<Pair>(__builtin_shuffle(bytes, Bytes{}, kOrder));
#endif
}

/// Factors for shares in 1/256: "between" mixes two pairs, "within" the two pixels of a pair.
struct Factors {
    std::array<Pair, 256> between;
    std::array<Pair, 256> within;
};
const Factors &factors();

/// The mixture of two pairs.
inline Pair mixPairs(Pair first, Pair second, const Pair &factor)
{
    return ((first << 8) + (second - first) * factor + 128) >> 8;
}

/// The sum of the two pixels of a pair goes to @p channels: four channels of 16 bits.
inline void storeSum(Pair pair, quint16 *channels)
{
    const Words words = reinterpret_cast<Words>(pair);
    const Words second = {words[1], words[1]};
    const Pair sum = pair + reinterpret_cast<Pair>(second);
    std::memcpy(channels, &sum, sizeof sum / 2);
}

/// The mixture of the two pixels of a pair, the same way; the channels are 256 times too large.
inline void mixWithin(Pair pair, const Pair &factor, quint16 *channels)
{
    storeSum(pair * factor, channels);
}

/// Turns channels that are 256 times too large into opaque pixels.
inline void storePixels(QRgb *target, const quint16 *channels, int count)
{
    auto *bytes = reinterpret_cast<uchar *>(target);
    for (int i = 0; i < 4 * count; ++i)
        bytes[i] = static_cast<uchar>(static_cast<quint16>(channels[i] + 128) >> 8);
    for (int i = 0; i < count; ++i)
        target[i] |= 0xff000000u;
}

} // namespace velmora::lanes
