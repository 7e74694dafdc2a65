// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/sound/Mp3.h"

#include "generator/GeneratorLog.h"
#include "generator/media/MediaFileInfo.h"
#include "generator/media/WavTranscoder.h"

#include <QDir>
#include <QFile>

namespace velmora
{

namespace
{

constexpr int kMaximumFiles = 10000;

/// Reserves the first free name by creating its file, so that no two callers get the same; empty
/// with a log line on failure.
QString reserveFreeName(const QDir &folder)
{
    for (int index = 0; index < kMaximumFiles; ++index) {
        QFile file(folder.filePath(QStringLiteral("%1.wav").arg(index)));
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            return file.fileName();
        if (!file.exists()) { // The folder may be another user's.
            qCWarning(generatorLog).noquote()
                << "Mp3. Failed to write into temp folder" << folder.path() << file.errorString();
            return {};
        }
    }
    qCWarning(generatorLog) << "Free wav index not found";
    return {};
}

} // namespace

QString Mp3::convertAudio(const QString &path)
{
    const QDir folder(QDir::tempPath() + QStringLiteral("/WavTempDir/"));
    if (!folder.mkpath(QStringLiteral("."))) {
        qCWarning(generatorLog) << "Mp3. Failed to create temp folder for wav files";
        return {};
    }
    const QString target = reserveFreeName(folder);
    if (target.isEmpty())
        return {};
    const MediaFileInfo info(path);
    qCInfo(generatorLog).noquote() << "codec name:" << info.audioCodecName();
    qCInfo(generatorLog).noquote() << "codec AV name:" << info.audioCodecLongName();
    WavTranscoder transcoder;
    if (transcoder.transcode(path, target))
        return target;
    qCWarning(generatorLog).noquote() << "Failed to transcode media" << transcoder.errorText();
    QFile::remove(target);
    return {};
}

} // namespace velmora
