// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/GeneratorLog.h"
#include "generator/encoding/ConcatList.h"
#include "generator/encoding/VideoUtil.h"
#include "generator/media/MediaFileInfo.h"
#include "generator/sound/AudioCommands.h"
#include "generator/sound/SoundTrack.h"

#include <QFileInfo>

namespace velmora
{

namespace
{

/// Repetitions in one list; a longer one is made of longer pieces.
constexpr int kMaximumRepetitions = 1000;

/// A further file beside @p output.
QString beside(const QString &output, const char *name)
{
    return QFileInfo(output).path() + QLatin1Char('/') + QLatin1String(name);
}

} // namespace

QString VideoUtil::prepareAudio(const AudioItemList &list, const QString &folder, int offset,
                                int fade, int length)
{
    qCInfo(generatorLog).noquote()
        << QStringLiteral("Files count:'%1' Folder:'%2' Offset:'%3' Fade:'%4' Length (ms):'%5'")
               .arg(QString::number(list.items.size()), folder, QString::number(offset),
                    QString::number(fade), QString::number(length));
    SoundTrack track(*this, m_context.cachePath, folder);
    const QString path = track.prepare(list, offset, fade, length);
    if (path.isEmpty())
        fail(track.failure(), track.errorText(), QStringLiteral("There is no sound track"));
    return path;
}

bool VideoUtil::prepareAudioLoop(const QString &source, int length, QString &output, int fade)
{
    qCInfo(generatorLog).noquote() << "SOURCE FILE:" << source;
    qCInfo(generatorLog).noquote() << "AUDIO STREAM FILE:" << output;
    const qint64 duration = MediaFileInfo(source).duration();
    qCInfo(generatorLog) << "DURATION:" << duration;
    qCInfo(generatorLog) << "LENGTH:" << length;
    if (duration <= 0 || duration >= length) {
        output = source;
        return true;
    }
    qCInfo(generatorLog) << "LOOP AUDIO";
    const auto count = static_cast<int>((length + duration - 1) / duration); // rounded up
    // A repetition that ends with the video has its own fade there.
    const bool fadesAtEnd = fade > 0 && length % duration != 0;
    const QString looped = fadesAtEnd ? beside(output, "audio_stream_looped_no_fade.wav") : output;
    bool done = loopAudio(source, count, looped);
    if (done && fadesAtEnd) {
        const qint64 fadeLength = qMin<qint64>(fade * qint64(1000), length / 2);
        done = executeUtility(AudioCommands::fadeOut(looped, fadeLength, length), output, false);
    }
    qCInfo(generatorLog) << (done ? "LOOP AUDIO [OK]" : "LOOP AUDIO [FAILED]");
    return done;
}

bool VideoUtil::loopAudio(const QString &source, const int count, const QString &output)
{
    qCInfo(generatorLog).noquote() << "source file name:" << source;
    qCInfo(generatorLog) << "loop count:" << count;
    qCInfo(generatorLog).noquote() << "out file name:" << output;
    if (count > kMaximumRepetitions) {
        const int pieces = (count + kMaximumRepetitions - 1) / kMaximumRepetitions;
        const QString piece = beside(output, "audio_loop_piece.wav");
        return loopAudio(source, kMaximumRepetitions, piece) && loopAudio(piece, pieces, output);
    }
    const QString listFile = m_context.cachePath + QStringLiteral("/merge-loop-audio.txt");
    QStringList files;
    for (int i = 0; i < count; ++i)
        files.append(QFileInfo(source).absoluteFilePath());
    QString reason;
    if (!ConcatList::write(listFile, files, &reason))
        return fail(Failure::Other, reason, QStringLiteral("No list to loop: %1").arg(listFile));
    const QStringList arguments = AudioCommands::loop(listFile);
    qCInfo(generatorLog).noquote() << " Run args:" << arguments.join(QLatin1Char(' '));
    return executeUtility(arguments, output, false);
}

} // namespace velmora
