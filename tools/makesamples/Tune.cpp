// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tune.h"

#include "Synth.h"

#include <QByteArray>
#include <QProcess>
#include <QTextStream>

#include <cmath>
#include <vector>

namespace velmora::samples
{

namespace
{

constexpr double kBeat = 60.0 / 86;
constexpr int kBeatsPerBar = 4;

struct Chord {
    int bass;
    std::vector<int> tones; ///< MIDI notes from low to high.
};

const std::vector<Chord> &harmony()
{
    static const Chord g{43, {55, 59, 62, 67, 71}};
    static const Chord d{42, {57, 62, 66, 69, 74}};
    static const Chord e{40, {55, 59, 64, 67, 74}};
    static const Chord c{48, {55, 60, 64, 67, 74}};
    static const Chord a{45, {57, 60, 64, 67, 72}};
    static const Chord dOpen{50, {57, 62, 67, 69, 74}};
    static const std::vector<Chord> bars{g, c, g, d, e, c, g, d, a, dOpen, c, g};
    return bars;
}

struct Note {
    double beats;
    int note; ///< MIDI note, 0 for a rest.
};

/// From the third bar on.
const std::vector<Note> &melody()
{
    static const std::vector<Note> notes{
        {1, 74},   {0.5, 71}, {0.5, 74}, {2, 79},             // g
        {1, 78},   {0.5, 76}, {0.5, 74}, {2, 69},             // d
        {0.5, 67}, {0.5, 69}, {1, 71},   {1, 74},   {1, 71},  // e
        {1.5, 76}, {0.5, 74}, {1, 72},   {1, 71},             // c
        {1, 74},   {0.5, 71}, {0.5, 74}, {1, 79},   {1, 81},  // g
        {1.5, 81}, {0.5, 78}, {2, 74},                        // d
        {1, 76},   {0.5, 74}, {0.5, 72}, {1, 69},   {1, 72},  // a
        {0.5, 71}, {0.5, 72}, {1, 69},   {1.5, 74}, {0.5, 0}, // d, open
        {1, 76},   {1, 79},   {0.5, 76}, {0.5, 74}, {1, 72},  // c
        {1, 71},   {0.5, 69}, {2.5, 67},                      // g
    };
    return notes;
}

void playAccompaniment(Mix &sound)
{
    static const int pattern[] = {0, 2, 3, 4, 3, 2, 3, 1};
    Random random(5);
    double time = 0.1;
    const int bars = static_cast<int>(harmony().size());
    for (int bar = 0; bar < bars; ++bar) {
        const Chord &chord = harmony()[static_cast<std::size_t>(bar)];
        const double length = kBeat * kBeatsPerBar;
        const bool last = bar == bars - 1;
        sound.bass(time, last ? length * 1.4 : length * 0.95, chord.bass, bar < 2 ? 0.10 : 0.17);
        for (int i = 0; i < 8; ++i) {
            const int tone = chord.tones[static_cast<std::size_t>(last && i > 4 ? 4 : pattern[i])];
            const double human = random.range(-0.006, 0.008);
            if (!last || i < 5)
                sound.pluck(time + i * kBeat / 2 + human, tone,
                            (i % 4 == 0 ? 0.52 : 0.40) * random.range(0.9, 1.1),
                            -0.25 + 0.1 * (i % 3));
        }
        for (std::size_t i = 0; i < chord.tones.size() - 1; ++i)
            sound.pad(time, last ? length * 1.1 : length, chord.tones[i], bar < 2 ? 0.028 : 0.042,
                      i % 2 ? 0.5 : -0.5);
        time += length;
    }
}

void playMelody(Mix &sound)
{
    double time = 0.1 + 2 * kBeatsPerBar * kBeat;
    for (const Note &note : melody()) {
        if (note.note > 0)
            sound.flute(time, note.beats * kBeat * 0.97, note.note, 0.15);
        time += note.beats * kBeat;
    }
}

QByteArray interleaved(const Mix &sound)
{
    QByteArray bytes;
    for (std::size_t i = 0; i < sound.left().size(); ++i) {
        for (const double sample : {sound.left()[i], sound.right()[i]}) {
            const int value = static_cast<int>(std::lround(sample * 32767));
            bytes.append(static_cast<char>(value & 255));
            bytes.append(static_cast<char>((value >> 8) & 255));
        }
    }
    return bytes;
}

} // namespace

bool composeTune(const QString &path)
{
    const double length = 0.1 + static_cast<double>(harmony().size()) * kBeatsPerBar * kBeat + 2.6;
    Mix sound(length);
    playAccompaniment(sound);
    playMelody(sound);
    sound.reverberate(0.34);
    sound.finish(2.2, 0.89);

    const QStringList arguments{QStringLiteral("-v"),         QStringLiteral("error"),
                                QStringLiteral("-y"),         QStringLiteral("-f"),
                                QStringLiteral("s16le"),      QStringLiteral("-ar"),
                                QString::number(kSampleRate), QStringLiteral("-ac"),
                                QStringLiteral("2"),          QStringLiteral("-i"),
                                QStringLiteral("-"),          QStringLiteral("-c:a"),
                                QStringLiteral("libvorbis"),  QStringLiteral("-q:a"),
                                QStringLiteral("4"),          path};
    QProcess encoder;
    encoder.setProcessChannelMode(QProcess::ForwardedChannels);
    encoder.start(QStringLiteral("ffmpeg"), arguments);
    if (!encoder.waitForStarted()) {
        QTextStream(stderr) << "ffmpeg: " << encoder.errorString() << '\n';
        return false;
    }
    encoder.write(interleaved(sound));
    encoder.closeWriteChannel();
    return encoder.waitForFinished(-1) && encoder.exitStatus() == QProcess::NormalExit &&
           encoder.exitCode() == 0;
}

} // namespace velmora::samples
