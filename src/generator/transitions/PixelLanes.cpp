// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/PixelLanes.h"

namespace velmora::lanes
{

namespace
{

Factors makeFactors()
{
    Factors result;
    for (quint16 share = 0; share < 256; ++share) {
        const auto rest = static_cast<quint16>(256 - share);
        result.between[share] = Pair{share, share, share, share, share, share, share, share};
        result.within[share] = Pair{rest, rest, rest, rest, share, share, share, share};
    }
    return result;
}

} // namespace

const Factors &factors()
{
    static const Factors result = makeFactors();
    return result;
}

} // namespace velmora::lanes
