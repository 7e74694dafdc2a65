// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

class QIODevice;

namespace velmora
{

/// Picks from a TIFF file, whose directories may stand behind hundreds of megabytes of pixels, the
/// tags about how and when the photo was taken, and returns them as a small TIFF block of their
/// own (TIFF 6.0, section 2); empty where @p device, which is seekable and open for reading, holds
/// none. Any bytes are accepted.
QByteArray tiffTags(QIODevice &device);

} // namespace velmora
