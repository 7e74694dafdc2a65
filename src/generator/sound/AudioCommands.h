// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

namespace velmora
{

/// Pure builders of the encoder's command lines for sound, without the output file that ends each
/// of them. Lengths in ms; all paths absolute.
namespace AudioCommands
{

/// A number of seconds as the commands take it: "65", or with three decimals "65.250".
QString seconds(qint64 milliseconds);

/// Copies the files of a concat list one after another.
QStringList join(const QString &listFile);
/// Leaves out the first @p skip seconds and takes at most @p length of the rest.
QStringList cut(const QString &input, int skip, qint64 length);
/// Fades in at the start and out at the end of a track of @p length.
QStringList fade(const QString &input, qint64 fade, qint64 length);
/// Takes the first @p length and fades it out at its end.
QStringList fadeOut(const QString &input, qint64 fade, qint64 length);
/// @p layout as FFmpeg writes it, @p sampleRate in Hz.
QStringList silence(qint64 length, const QString &layout, int sampleRate);
QStringList prepend(const QString &silence, const QString &music);
QStringList loop(const QString &listFile);
/// To WAV with the file's own sample rate and channels; @p length is the expected one.
QStringList transcode(const QString &input, qint64 length);
/// To WAV with 44.1 kHz, stereo, 16 bit.
QStringList normalise(const QString &input);

} // namespace AudioCommands

} // namespace velmora
