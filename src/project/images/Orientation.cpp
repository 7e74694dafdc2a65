// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/images/Orientation.h"

#include <QTransform>

namespace velmora
{

QImage uprightImage(const QImage &image, int orientation)
{
    switch (orientation) {
    case 2:
        return image.mirrored(true, false);
    case 3:
        return image.mirrored(true, true);
    case 4:
        return image.mirrored(false, true);
    case 5:
        return image.transformed(QTransform().rotate(90)).mirrored(true, false);
    case 6:
        return image.transformed(QTransform().rotate(90));
    case 7:
        return image.transformed(QTransform().rotate(90)).mirrored(false, true);
    case 8:
        return image.transformed(QTransform().rotate(270));
    default:
        return image;
    }
}

bool swapsSides(int orientation)
{
    return orientation >= 5 && orientation <= 8;
}

} // namespace velmora
