// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QSize>
#include <QString>
#include <QVector>

namespace velmora
{

/// Looks at finished videos with FFmpeg's own programs.
namespace VideoProbe
{

/// Frames that really decode; -1 for a file that is no video.
int frameCount(const QString &file);
/// Seconds of decoded sound; 0 without any.
double soundLength(const QString &file);
/// All frames at @p size px.
QVector<QImage> frames(const QString &file, const QSize &size);
/// What FFmpeg complains about when it decodes the whole file; empty for a sound one.
QString decodingErrors(const QString &file);

/// The largest of the three channels' mean differences, 0 to 255; the pictures have 32 bits a
/// pixel.
double meanDifference(const QImage &a, const QImage &b);

} // namespace VideoProbe

} // namespace velmora
