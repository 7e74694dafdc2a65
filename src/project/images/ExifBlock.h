// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

class QIODevice;

namespace velmora
{

/// The EXIF data of a JPEG, PNG, WebP or TIFF file as one block in TIFF form, found by walking the
/// file's segments without reading its picture; empty where there is none. @p device is seekable
/// and open for reading. Accepts any bytes.
QByteArray findExifBlock(QIODevice &device);

} // namespace velmora
