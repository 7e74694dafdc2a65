// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

namespace velmora
{

/// @p image, as stored, turned and mirrored so that it stands upright, by the EXIF standard's
/// values 1 to 8; other values leave it as it is. Any thread.
QImage uprightImage(const QImage &image, int orientation);

/// Whether upright pictures of @p orientation have the stored width as their height.
bool swapsSides(int orientation);

} // namespace velmora
