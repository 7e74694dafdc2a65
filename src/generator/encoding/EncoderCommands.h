// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/encoding/EncoderOptions.h"

#include <QSize>
#include <QString>
#include <QStringList>

namespace velmora
{

/// What the encoder's command lines have in common.
struct OutputFormat {
    QSize size;        ///< px, even
    QString extension; ///< Without a dot.
    OutputProfile profile = OutputProfile::OriginalQuality;
};

/// Pure builders of the encoder's command lines, without the output file that ends each of them.
/// Durations in ms; all paths absolute.
namespace EncoderCommands
{

/// @p prefix as "_p3"; @p frames is 1 for a still, in which nothing moves in any case.
QStringList segment(const QString &imagesFolder, const QString &prefix, int frames, qint64 duration,
                    const OutputFormat &format, Motion motion = Motion::Any);
/// Joins the files of a list for FFmpeg's concat demuxer.
QStringList join(const QString &listFile);
/// The same for parts of a video.
QStringList joinPictures(const QString &listFile);
/// @p errors without what the encoder says of each decoder that these commands deny it, since what
/// they copy need not be looked at.
QByteArray withoutDenials(const QByteArray &errors);
QStringList multiplex(const QString &videoFile, const QString &soundFile, qint64 length,
                      const OutputFormat &format);
QStringList pictureOnly(const QString &videoFile, const OutputFormat &format);

/// "%1img%2_%3.jpg" with the frame number in five digits.
QString frameFile(const QString &imagesFolder, const QString &prefix, int number);

} // namespace EncoderCommands

} // namespace velmora
