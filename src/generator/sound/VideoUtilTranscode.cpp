// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/GeneratorLog.h"
#include "generator/encoding/VideoUtil.h"
#include "generator/media/MediaFileInfo.h"
#include "generator/media/TranscoderExit.h"
#include "generator/sound/AudioCommands.h"
#include "generator/sound/TranscoderLocator.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace velmora
{

namespace
{

const char *existence(const QString &path)
{
    return QFileInfo::exists(path) ? "true" : "false";
}

void logFiles(const QString &from, const QString &to)
{
    qCInfo(generatorLog).noquote()
        << QStringLiteral("From file '%1', exists: %2").arg(from, QLatin1String(existence(from)));
    qCInfo(generatorLog).noquote()
        << QStringLiteral("To file '%1', exists: %2").arg(to, QLatin1String(existence(to)));
}

} // namespace

bool VideoUtil::transcodeMp3ToWav(const QString &from, const QString &to)
{
    const QString source = QFileInfo(from).absoluteFilePath();
    const QString target = QFileInfo(to).absoluteFilePath();
    qCInfo(generatorLog) << "Starting Transcode.exe ";
    logFiles(source, target);
    const QString program = locateTranscoder();
    if (program.isEmpty())
        return fail(
            Failure::Other,
            QCoreApplication::translate(
                "velmora::VideoUtil", "The program \"transcoder\" is missing beside this program."),
            QStringLiteral("The transcoder is missing"));
    const ToolResult result = ToolRunner(&m_context.cancelled).run(program, {source, target});
    printDebugInfo(result);
    if (result.ok() && QFileInfo(target).size() > 0) {
        qCInfo(generatorLog) << "[OK]";
        return true;
    }
    qCWarning(generatorLog) << "[FAILED]";
    qCWarning(generatorLog).noquote()
        << QStringLiteral("Transcode %1. Error code:%2 ").arg(source).arg(result.exitCode);
    if (result.cancelled)
        return failCancelled(target);
    if (!result.crashed && result.exitCode == TranscoderExit::DiskFull)
        return failWithFullDisk(target);
    return fail(Failure::Other, result.reason(), QStringLiteral("No transcoding: %1").arg(target));
}

bool VideoUtil::transcodeFFmpegToWav(const QString &from, const QString &to)
{
    const QString source = QFileInfo(from).absoluteFilePath();
    const QString target = QFileInfo(to).absoluteFilePath();
    qCInfo(generatorLog) << "Starting ffmpeg transcode";
    logFiles(source, target);
    const qint64 length = MediaFileInfo(source).duration();
    const bool done = executeUtility(AudioCommands::transcode(source, length), target, false);
    qCInfo(generatorLog) << (done ? "[OK]" : "[FAILED]");
    qCInfo(generatorLog).noquote() << QStringLiteral("FFmpeg Transcode %1").arg(source);
    return done;
}

} // namespace velmora
