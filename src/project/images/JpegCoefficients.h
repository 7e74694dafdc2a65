// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

class QIODevice;

namespace velmora
{

/// The bytes that a decoder needs for the coefficients of a JPEG file. It keeps all of them where
/// the picture is stored in several scans, as in progressive files, at whatever size it decodes; 0
/// for other files. Reads the headers only. @p device is seekable and open for reading; any bytes
/// are accepted.
qint64 jpegCoefficientBytes(QIODevice &device);

} // namespace velmora
