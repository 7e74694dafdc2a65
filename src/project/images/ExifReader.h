// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

class QIODevice;

namespace velmora
{

/// What a photo's EXIF data tell about it.
struct ExifInfo {
    int orientation = 1; ///< EXIF orientation, 1 to 8; 1 (upright) when missing or invalid.
    QDateTime taken;     ///< When the photo was taken, in local time; invalid when unknown.
};

/// Reads the EXIF data of JPEG, TIFF, PNG and WebP files. Thread-safe, never throws; files without
/// EXIF data and broken files yield the defaults.
namespace ExifReader
{

/// Reads the file's headers only, except of a TIFF file, whose tags may lie anywhere.
ExifInfo read(const QString &path);
/// The same from a seekable device open for reading; leaves its position changed.
ExifInfo read(QIODevice &device);
/// The same from a whole file in memory.
ExifInfo read(const QByteArray &file);

} // namespace ExifReader

} // namespace velmora
