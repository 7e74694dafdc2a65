// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/slides/TransitionType.h"

#include <QImage>
#include <QVector>

namespace velmora
{

/// One row of frames for each effect, labelled with its name.
struct ContactSheet {
    QImage from; ///< RGB32, of the size in which the frames are rendered
    QImage to;   ///< the same size
    QSize tile;  ///< the size in which they are shown
    QVector<TransitionType> effects;
    QVector<int> percents;
    int columns = 1; ///< effects beside each other

    QImage paint() const;
};

} // namespace velmora
