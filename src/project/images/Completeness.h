// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QIODevice;

namespace velmora
{

// Whether a file reaches to the end of its picture, told from its structure without decoding it.
// The functions take a seekable device open for reading and accept any bytes.

/// Whether a JPEG file has an end marker behind the start of its picture's data, wherever cameras
/// put more behind it. Some programs leave the marker out.
bool isCompleteJpeg(QIODevice &device);

/// Whether a PNG file has its last chunk.
bool isCompletePng(QIODevice &device);

/// Whether a WebP file is as long as it announces.
bool isCompleteWebp(QIODevice &device);

/// Whether a BMP file is long enough for the picture that its header announces.
bool isCompleteBmp(QIODevice &device);

/// Whether a GIF file holds its first picture to the end.
bool isCompleteGif(QIODevice &device);

} // namespace velmora
