// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>

namespace velmora
{

constexpr int kThumbnailSize = 62; ///< px each way.

/// @p photo whole and centred on a grey square of kThumbnailSize (ARGB32); null for a null photo.
/// Any thread.
QImage makeThumbnail(const QImage &photo);

/// The same for a file, decoding no more of it than needed; null when it cannot be read, which the
/// image loader logs.
QImage makeThumbnail(const QString &path);

/// The bare photo of a file, as large as fits @p box px and never enlarged, without alpha; null
/// when it cannot be read.
QImage makePhotoThumbnail(const QString &path, const QSize &box);

} // namespace velmora
