// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

namespace velmora
{

/// Which row set of the option table is used.
enum class OutputProfile {
    OriginalQuality, ///< "original": the table as it stands
    PlaysEverywhere, ///< "everywhere": what televisions, phones and browsers play
};

/// "original" or "everywhere"; anything else is OriginalQuality.
OutputProfile outputProfileFromKey(const QString &key);
QString outputProfileKey(OutputProfile profile);

/// What the pictures of a segment do.
enum class Motion {
    None, ///< Every part stays at its place; brightness and colour may change, as in a fade.
    Any,
};

/// Pure functions from settings to argument lists. Extensions are given without a dot.
namespace EncoderOptions
{

/// The "-b:v" value for a frame height in px, for example "10M".
QString bitRate(int height);
/// The size really encoded: @p size with odd sides made even.
QSize evenSize(const QSize &size);
/// The frame rate of every video.
constexpr int kFramesPerSecond = 25;
/// Output frames of a stage of @p duration ms.
int frameCount(qint64 duration);
/// @p milliseconds as seconds with three decimals, for example "2.500".
QString seconds(qint64 milliseconds);
/// The filter chain that turns JPEG frames into what the encoder takes, at the output rate.
QString videoFilter(const QString &extension, OutputProfile profile);
/// Options appended to every command that produces a picture.
QStringList videoOptions(const QString &extension, int height, OutputProfile profile);
/// Further options for a segment in which nothing moves, which spare the encoder a search for
/// motion. The stream keeps the parameters of the other segments, with which it is joined as it is.
QStringList motionlessOptions(const QString &extension, OutputProfile profile);
/// The sound codec and its options for the multiplex.
QStringList soundOptions(const QString &extension, OutputProfile profile);
/// Container options of the final file, such as fast start.
QStringList containerOptions(const QString &extension, OutputProfile profile);

} // namespace EncoderOptions

} // namespace velmora
