// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/sound/SoundTrack.h"

#include "generator/GeneratorLog.h"
#include "generator/encoding/ConcatList.h"
#include "generator/media/MediaFileInfo.h"
#include "generator/media/SoundChecker.h"
#include "generator/sound/AudioCommands.h"
#include "generator/sound/SoundFormat.h"
#include "generator/sound/SoundPlan.h"

#include <QDir>
#include <QFileInfo>

namespace velmora
{

namespace
{

constexpr char kUnfaded[] = "audio_no_fade";
constexpr char kFaded[] = "audio_stream_temp";
constexpr char kSilence[] = "audio_silence";
constexpr char kTrack[] = "audio_stream";

bool hasSuffix(const QString &path, const char *suffix)
{
    return QFileInfo(path).suffix().compare(QLatin1String(suffix), Qt::CaseInsensitive) == 0;
}

const char *outcome(bool done)
{
    return done ? "[OK]" : "[FAILED]";
}

} // namespace

SoundTrack::SoundTrack(VideoUtil &util, const QString &cachePath, const QString &folder)
    : m_util(util), m_cachePath(cachePath), m_folder(folder)
{
}

QString SoundTrack::prepare(const AudioItemList &list, int offset, int fade, int length)
{
    QDir().mkpath(m_folder);
    QDir().mkpath(m_cachePath + QStringLiteral("/video"));
    QStringList files;
    const QString joined = m_folder + QStringLiteral("/audio.wav");
    if (!convertAll(list, files) || !join(files, joined))
        return {};
    const SoundPlan plan = SoundPlan::make(offset, fade, length, MediaFileInfo(joined).duration());
    const QString track = trackFile(kTrack);
    if (plan.music == 0) {
        qCInfo(generatorLog) << "[PREPARE AUDIO] [NO MUSIC IN THE VIDEO]";
        const bool done =
            run(AudioCommands::silence(length, QStringLiteral("stereo"), 44100), track);
        return done ? track : QString();
    }
    if (!cutAndFade(joined, plan))
        return {};
    const bool done =
        plan.silence > 0 ? prependSilence(plan.silence) : move(trackFile(kFaded), track);
    return done ? track : QString();
}

bool SoundTrack::convertAll(const AudioItemList &list, QStringList &files)
{
    QStringList sources;
    for (const AudioItem &item : list.items) {
        const QString source = QFileInfo(item.fileName).absoluteFilePath();
        QString file;
        if (!convert(source, sources.size(), file))
            return false;
        sources.append(source);
        files.append(file);
    }
    return normaliseWhereNeeded(sources, files);
}

bool SoundTrack::convert(const QString &source, int index, QString &file)
{
    const QString reason = checkSoundFile(source);
    if (!reason.isEmpty())
        return failToRead(source, reason);
    const QString wav = QStringLiteral("%1/%2.wav").arg(m_folder, QString::number(index));
    file = source;
    bool done = true;
    if (hasSuffix(source, "mp3")) {
        done = m_util.transcodeMp3ToWav(source, wav);
        file = wav;
    } else if (hasSuffix(source, "m4a")) {
        done = m_util.transcodeFFmpegToWav(source, wav);
        file = wav;
    }
    return done || failToConvert(source);
}

bool SoundTrack::normaliseWhereNeeded(const QStringList &sources, QStringList &files)
{
    QVector<SoundFormat> formats;
    bool listable = true;
    for (const QString &file : qAsConst(files)) {
        formats.append(SoundFormat::of(MediaFileInfo(file)));
        listable = listable && !ConcatList::line(file).isEmpty();
    }
    if (listable && canJoinAsTheyAre(formats))
        return true;
    for (int i = 0; i < files.size(); ++i) {
        if (formats.at(i).isNormal() && !ConcatList::line(files.at(i)).isEmpty())
            continue;
        const QString normal = QStringLiteral("%1/%2_normal.wav").arg(m_folder, QString::number(i));
        if (!run(AudioCommands::normalise(files.at(i)), normal))
            return failToConvert(sources.at(i));
        files[i] = normal;
    }
    return true;
}

bool SoundTrack::join(const QStringList &files, const QString &joined)
{
    const QString listFile = m_folder + QStringLiteral("/merge-files.txt");
    QString reason;
    if (!ConcatList::write(listFile, files, &reason))
        return fail(reason);
    return run(AudioCommands::join(listFile), joined);
}

bool SoundTrack::cutAndFade(const QString &joined, const SoundPlan &plan)
{
    const QString unfaded = trackFile(kUnfaded);
    if (!run(AudioCommands::cut(joined, plan.skip, plan.room), unfaded))
        return false;
    if (plan.fade > 0) {
        qCInfo(generatorLog) << "[PREPARE AUDIO] [FADE > 0]";
        return run(AudioCommands::fade(unfaded, plan.fade, plan.music), trackFile(kFaded));
    }
    qCInfo(generatorLog) << "[PREPARE AUDIO] [FADE = 0]";
    return move(unfaded, trackFile(kFaded));
}

bool SoundTrack::prependSilence(qint64 length)
{
    qCInfo(generatorLog) << "[PREPARE AUDIO] [OFFSET < 0]";
    qCInfo(generatorLog) << "[LOAD AUDIO STREM TEMP INFO]";
    const QString music = trackFile(kFaded);
    const MediaFileInfo info(music);
    const bool silent =
        run(AudioCommands::silence(length, info.audioChannelLayout(), info.audioSampleRate()),
            trackFile(kSilence));
    qCInfo(generatorLog) << "[GENERATE SILENCE] IS: " << outcome(silent);
    if (!silent)
        return false;
    const bool merged = run(AudioCommands::prepend(trackFile(kSilence), music), trackFile(kTrack));
    qCInfo(generatorLog) << "[MERGE SILENCE] IS: " << outcome(merged);
    qCInfo(generatorLog) << "[PREPARE AUDIO] [OFFSET < 0] [COMPLETE]";
    return merged;
}

bool SoundTrack::run(const QStringList &arguments, const QString &output)
{
    return m_util.executeUtility(arguments, output, false) || failWithTool();
}

bool SoundTrack::move(const QString &from, const QString &to)
{
    return m_util.moveFile(from, to) || failWithTool();
}

bool SoundTrack::fail(const QString &reason)
{
    m_failure = VideoUtil::Failure::Other;
    m_errorText = reason;
    return false;
}

bool SoundTrack::failWithTool()
{
    m_failure = m_util.failure();
    m_errorText = m_util.errorText();
    return false;
}

bool SoundTrack::failToRead(const QString &source, const QString &reason)
{
    qCWarning(generatorLog).noquote() << "The music cannot be used:" << source;
    return fail(
        tr("The music file '%1' cannot be read: %2").arg(QDir::toNativeSeparators(source), reason));
}

bool SoundTrack::failToConvert(const QString &source)
{
    return m_util.failure() == VideoUtil::Failure::Other ? failToRead(source, m_util.errorText())
                                                         : failWithTool();
}

QString SoundTrack::trackFile(const char *name) const
{
    return QStringLiteral("%1/video/%2.wav").arg(m_cachePath, QLatin1String(name));
}

} // namespace velmora
