// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/MediaSamples.h"

#include "helpers/Words.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cmath>
#include <cstring>

namespace velmora
{

namespace
{

constexpr double pi = 3.14159265358979323846;

QString program(const QString &name)
{
    return QStandardPaths::findExecutable(name);
}

QByteArray outputOf(const QString &tool, const QStringList &arguments, bool *ok)
{
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(tool, arguments);
    *ok = process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit &&
          process.exitCode() == 0;
    if (!*ok)
        qWarning("%s", process.readAllStandardError().constData());
    return process.readAllStandardOutput();
}

QStringList toneInput(const MediaSamples::Tone &tone)
{
    const QString sine = QStringLiteral("sine=frequency=%1:sample_rate=%2:duration=%3,volume=4");
    return words("-f lavfi -i") << sine.arg(tone.frequency).arg(tone.sampleRate).arg(tone.seconds);
}

/// Power of one frequency, by Goertzel's recurrence.
double power(const float *samples, int count, double frequency)
{
    const double coefficient = 2 * std::cos(2 * pi * frequency / MediaSamples::soundRate);
    double last = 0;
    double beforeLast = 0;
    for (int i = 0; i < count; ++i) {
        const double current = static_cast<double>(samples[i]) + coefficient * last - beforeLast;
        beforeLast = last;
        last = current;
    }
    return (last * last + beforeLast * beforeLast - coefficient * last * beforeLast) /
           (static_cast<double>(count) * count);
}

int position(const MediaSamples::Sound &sound, double second)
{
    return qBound(0, static_cast<int>(second * MediaSamples::soundRate), sound.size());
}

} // namespace

QString MediaSamples::encoder()
{
    const QString named = qEnvironmentVariable("VELMORA_FFMPEG");
    return named.isEmpty() ? program(QStringLiteral("ffmpeg")) : named;
}

QStringList MediaSamples::vorbis()
{
    bool ok = false;
    static const bool hasLibrary =
        outputOf(encoder(), words("-v error -encoders"), &ok).contains("libvorbis");
    return words(hasLibrary ? "-acodec libvorbis" : "-acodec vorbis -strict -2 -ac 2");
}

bool MediaSamples::encode(const QStringList &arguments)
{
    bool ok = false;
    outputOf(encoder(), words("-v error -y") + arguments, &ok);
    return ok;
}

bool MediaSamples::makeTone(const QString &path, const Tone &tone, const QStringList &options)
{
    return encode(toneInput(tone) << words("-ac") << QString::number(tone.channels) << options
                                  << path);
}

bool MediaSamples::makeToneWithCover(const QString &path, const Tone &tone)
{
    const QTemporaryDir folder;
    const QString cover = folder.filePath(QStringLiteral("cover.jpg"));
    return encode(words("-f lavfi -i color=red:size=64x64 -frames:v 1") << cover) &&
           encode(toneInput(tone) + words("-i") + QStringList{cover} +
                  words("-map 1 -map 0 -c:v copy -disposition:v attached_pic -ac") +
                  QStringList{QString::number(tone.channels), path});
}

MediaSamples::Sound MediaSamples::listen(const QString &path)
{
    bool ok = false;
    const QByteArray bytes =
        outputOf(encoder(),
                 words("-v error -i") << path << words("-map 0:a:0 -ac 1 -f f32le -ar")
                                      << QString::number(soundRate) << words("-"),
                 &ok);
    if (!ok)
        return {};
    Sound sound(bytes.size() / static_cast<int>(sizeof(float)));
    std::memcpy(sound.data(), bytes.constData(), static_cast<size_t>(sound.size()) * sizeof(float));
    return sound;
}

double MediaSamples::seconds(const Sound &sound)
{
    return static_cast<double>(sound.size()) / soundRate;
}

double MediaSamples::level(const Sound &sound, double from, double to)
{
    double sum = 0;
    const int begin = position(sound, from);
    const int end = position(sound, to);
    for (int i = begin; i < end; ++i)
        sum += static_cast<double>(sound.at(i)) * static_cast<double>(sound.at(i));
    return end > begin ? std::sqrt(sum / (end - begin)) : 0;
}

int MediaSamples::tone(const Sound &sound, double from, double to, const QVector<int> &candidates)
{
    const int begin = position(sound, from);
    const int count = position(sound, to) - begin;
    int strongest = 0;
    double highest = 1e-6;
    for (const int frequency : candidates) {
        const double found = count > 0 ? power(sound.constData() + begin, count, frequency) : 0;
        if (found > highest) {
            highest = found;
            strongest = frequency;
        }
    }
    return strongest;
}

QString MediaSamples::format(const QString &path)
{
    bool ok = false;
    const QByteArray text = outputOf(
        program(QStringLiteral("ffprobe")),
        words("-v error -select_streams a:0 -show_entries stream=sample_rate,channels -of csv=p=0")
            << path,
        &ok);
    return QString::fromUtf8(text).trimmed();
}

} // namespace velmora
