// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QIODevice;

namespace velmora
{

// The readers of these formats return what they find of a file that ends too early, and call that
// success. Both functions take a seekable device open for reading and accept any bytes.

/// Whether a BMP file is long enough for the picture that its header announces.
bool isCompleteBmp(QIODevice &device);

/// Whether a GIF file holds its first picture to the end.
bool isCompleteGif(QIODevice &device);

} // namespace velmora
