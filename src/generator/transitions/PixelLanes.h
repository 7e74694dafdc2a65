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
using Pixels = quint32 __attribute__((vector_size(16)));

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

/// Of two pairs whose channels are 256 times too large: the sum of the two pixels of each, rounded.
inline Pair roundedSums(Pair first, Pair second)
{
    const Words a = reinterpret_cast<Words>(first);
    const Words b = reinterpret_cast<Words>(second);
    const Words left = {a[0], b[0]};
    const Words right = {a[1], b[1]};
    return (reinterpret_cast<Pair>(left) + reinterpret_cast<Pair>(right) + 128) >> 8;
}

/// Four opaque pixels of two times two whose channels have 16 bits, none above 255.
inline Pixels packPixels(Pair firstTwo, Pair lastTwo)
{
    const Bytes a = reinterpret_cast<Bytes>(firstTwo);
    const Bytes b = reinterpret_cast<Bytes>(lastTwo);
#if __has_builtin(__builtin_shufflevector)
    const Bytes bytes =
        __builtin_shufflevector(a, b, 0, 2, 4, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 30);
#else // GCC before version 12
    constexpr Bytes kEven = {0, 2, 4, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 30};
    const Bytes bytes = __builtin_shuffle(a, b, kEven);
#endif
    return reinterpret_cast<Pixels>(bytes) | 0xff000000u;
}

/// Writes @p count opaque pixels. Each is the sum of the two pixels of @p pairAt(i), whose channels
/// are 256 times too large.
template <typename PairAt> inline void storeSums(QRgb *target, int count, PairAt pairAt)
{
    int i = 0;
    for (; i + 4 <= count; i += 4) {
        const Pair firstTwo = roundedSums(pairAt(i), pairAt(i + 1));
        const Pair lastTwo = roundedSums(pairAt(i + 2), pairAt(i + 3));
        const Pixels pixels = packPixels(firstTwo, lastTwo);
        std::memcpy(target + i, &pixels, sizeof pixels);
    }
    for (; i < count; ++i) {
        const Pair sum = roundedSums(pairAt(i), Pair{});
        target[i] = packPixels(sum, sum)[0];
    }
}

} // namespace velmora::lanes
