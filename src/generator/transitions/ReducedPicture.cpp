// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/ReducedPicture.h"

#include "generator/transitions/RowReducer.h"

namespace velmora
{

ReducedPicture::ReducedPicture(const SourceArea &source, int xLevel, int yLevel) : m_area(source)
{
    if (xLevel == 0 && yLevel == 0)
        return;
    RowReducer reducer(source, xLevel, yLevel);
    const auto width = static_cast<size_t>(reducer.width());
    // Not a vector: it would write all of the fresh memory once more.
    m_pixels.reset(new QRgb[width * static_cast<size_t>(reducer.height())]);
    m_area = {m_pixels.get(), reducer.width(), reducer.width(), reducer.height()};
    for (int y = 0; y < reducer.height(); ++y)
        reducer.reduce(m_pixels.get() + static_cast<size_t>(y) * width, y);
}

} // namespace velmora
