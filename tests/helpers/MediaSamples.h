// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace velmora
{

/// Makes short real media files with the encoder program, and listens to results by decoding them
/// with it, independently of the code under test. Failures end in a QFAIL-able empty result.
namespace MediaSamples
{

/// One steady tone.
struct Tone {
    int frequency = 440; ///< Hz
    double seconds = 2;
    int sampleRate = 44100; ///< Hz
    int channels = 2;
};

/// The encoder program, from VELMORA_FFMPEG or the PATH.
QString encoder();
/// Options for Vorbis with the best encoder that it has; some know two channels only.
QStringList vorbis();
/// Runs the encoder quietly; false when it fails.
bool encode(const QStringList &arguments);

/// Writes @p tone in the format that the ending of @p path names.
bool makeTone(const QString &path, const Tone &tone, const QStringList &options = {});
/// An MP3 or M4A file of @p tone that carries a cover picture.
bool makeToneWithCover(const QString &path, const Tone &tone);

/// Decoded sound: mono, 44.1 kHz.
using Sound = QVector<float>;
constexpr int soundRate = 44100; // Hz

/// The first sound stream of a file; empty when it cannot be decoded.
Sound listen(const QString &path);
double seconds(const Sound &sound);
/// Effective level of @p sound between two times in s, 1.0 being full scale.
double level(const Sound &sound, double from, double to);
/// The strongest of the @p candidates (Hz) between two times in s; 0 in silence.
int tone(const Sound &sound, double from, double to, const QVector<int> &candidates);

/// Sample rate and channels as the probing program reports them, for example "44100,2".
QString format(const QString &path);

} // namespace MediaSamples

} // namespace velmora
