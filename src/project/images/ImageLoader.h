// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

namespace velmora
{

/// Reads photos upright, according to their EXIF orientation. All functions are thread-safe and
/// never throw; hostile files yield a null image or an error text.
namespace ImageLoader
{

/// Pictures with more pixels than this are refused (400 megapixels), whatever memory they take.
constexpr qint64 kMaximumPixels = 400LL * 1000 * 1000;

/// The whole picture, or a null image; the reason is logged and put into @p error if given.
QImage load(const QString &path, QString *error = nullptr);

/// The picture decoded no larger than needed to cover a box of @p target px in either
/// orientation of its use: at least as large as the picture scaled to fit that box, and for
/// formats with scaled decoding (JPEG) without decoding all of it. Never enlarges.
QImage loadForSize(const QString &path, const QSize &target, QString *error = nullptr);

/// The upright size in px from the header alone; invalid when it cannot be read.
QSize uprightSize(const QString &path, QString *error = nullptr);

/// Checks that the picture can be decoded to its end, as cheaply as its format allows (a JPEG
/// at an eighth of its size). Empty when fine, otherwise a plain reason for the user such as
/// "is not a picture that can be read", without the file's name.
QString check(const QString &path);

/// The same for thousands of files at once: decodes only those whose structure raises a doubt, so
/// that a file that ends too early is found, but not damage in its midst.
QString checkEnd(const QString &path);

} // namespace ImageLoader

} // namespace velmora
