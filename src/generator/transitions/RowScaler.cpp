// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/RowScaler.h"

#include "generator/transitions/PixelLanes.h"

#include <algorithm>

namespace velmora
{

RowScaler::RowScaler(int count, int sourceCount, double start, double step)
    : m_places(static_cast<size_t>(count)), m_single(sourceCount == 1)
{
    // The largest place whose next neighbour still exists.
    const double last = std::max(0.0, (sourceCount - 1) * 256.0 - 1);
    for (size_t i = 0; i < m_places.size(); ++i) {
        const double centre = (start + static_cast<double>(i) * step - 0.5) * 256;
        const auto place = static_cast<quint32>(std::clamp(centre + 0.5, 0.0, last));
        m_places[i] = {place >> 8, place & 0xff};
    }
}

void RowScaler::scale(QRgb *target, const QRgb *source) const
{
    if (m_single) {
        std::fill_n(target, m_places.size(), *source | 0xff000000u);
        return;
    }
    const lanes::Factors &factors = lanes::factors();
    const Place *places = m_places.data();
    lanes::storeSums(target, static_cast<int>(m_places.size()), [&](int i) {
        return lanes::loadPair(source + places[i].index) * factors.within[places[i].share];
    });
}

} // namespace velmora
