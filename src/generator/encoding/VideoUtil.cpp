// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/VideoUtil.h"

#include "generator/GeneratorLog.h"
#include "generator/encoding/ConcatList.h"
#include "generator/encoding/EncoderCommands.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

namespace velmora
{

namespace
{

/// The progress reader needs the newest lines only.
constexpr int kKeptProgress = 16 * 1024;

OutputFormat formatOf(const EncodingContext &context)
{
    return {context.size, context.extension, context.profile};
}

/// Whether a rename moves the file without copying it.
bool onOneVolume(const QString &file, const QString &target)
{
    return QStorageInfo(QFileInfo(file).path()).device() ==
           QStorageInfo(QFileInfo(target).path()).device();
}

} // namespace

VideoUtil::VideoUtil(EncodingContext &context) : m_context(context) {}

bool VideoUtil::fail(Failure failure, const QString &reason, const QString &logged)
{
    m_failure = failure;
    m_errorText = reason;
    qCWarning(generatorLog).noquote() << logged;
    return false;
}

bool VideoUtil::failCancelled(const QString &file)
{
    return fail(Failure::Cancelled, QCoreApplication::translate("velmora::VideoUtil", "Cancelled."),
                QStringLiteral("Cancelled: %1").arg(file));
}

bool VideoUtil::failWithFullDisk(const QString &file)
{
    return fail(Failure::DiskFull,
                QCoreApplication::translate("velmora::VideoUtil", "The disk is full."),
                QStringLiteral("The disk is full: %1").arg(file));
}

ToolResult VideoUtil::runEncoder(const QStringList &arguments, bool feedProgress) const
{
    qCInfo(generatorLog).noquote() << "Starting ffmpeg.exe " << arguments;
    ToolRunner::ErrorOutput onError;
    if (feedProgress) {
        {
            // What the run before said of its position is not said of this one.
            const std::lock_guard<std::mutex> locker(m_context.outputMutex);
            m_context.encoderOutput.clear();
        }
        onError = [this](const QByteArray &piece) {
            const std::lock_guard<std::mutex> locker(m_context.outputMutex);
            m_context.encoderOutput += QString::fromUtf8(piece);
            m_context.encoderOutput = m_context.encoderOutput.right(kKeptProgress);
        };
    }
    ToolResult result = ToolRunner(&m_context.cancelled, onError).run(m_context.encoder, arguments);
    result.standardError = EncoderCommands::withoutDenials(result.standardError);
    if (!result.started && !result.cancelled)
        qCCritical(generatorLog) << "Failed to start ffmpeg proc";
    printDebugInfo(result);
    return result;
}

bool VideoUtil::executeUtility(QStringList arguments, const QString &outputFile, bool wait)
{
    // Errors only, but with the "time=" lines that a quieter log level would drop.
    const QStringList quiet{QStringLiteral("-hide_banner"), QStringLiteral("-nostdin"),
                            QStringLiteral("-loglevel"), QStringLiteral("error"),
                            QStringLiteral("-stats")};
    const QString temporaryFile = partFile(outputFile);
    arguments.append(temporaryFile);
    const ToolResult result = runEncoder(quiet + arguments, wait);
    const bool done = acceptOutput(result, temporaryFile, outputFile);
    if (!done)
        QFile::remove(temporaryFile);
    return done;
}

QString VideoUtil::partFile(const QString &outputFile)
{
    // It keeps the suffix, from which the encoder takes the format.
    const QFileInfo info(outputFile);
    const QString suffix = info.suffix().isEmpty() ? QString() : QLatin1Char('.') + info.suffix();
    return info.path() + QLatin1Char('/') + info.completeBaseName() + QStringLiteral(".part") +
           suffix;
}

bool VideoUtil::moveFile(const QString &from, const QString &to)
{
    qCInfo(generatorLog).noquote() << "rename from:" << from << " to:" << to;
    QFile::remove(to);
    return QFile::rename(from, to) ||
           fail(Failure::Other,
                QCoreApplication::translate("velmora::VideoUtil", "%1 cannot be written.")
                    .arg(QDir::toNativeSeparators(to)),
                QStringLiteral("The rename failed: %1").arg(to));
}

bool VideoUtil::acceptOutput(const ToolResult &result, const QString &temporaryFile,
                             const QString &outputFile)
{
    if (result.cancelled)
        return failCancelled(outputFile);
    // The encoder does not always fail when the last block does not fit.
    if (result.standardError.contains("No space left on device"))
        return failWithFullDisk(outputFile);
    if (!result.ok())
        return fail(Failure::Other,
                    QCoreApplication::translate("velmora::VideoUtil", "The encoder failed: %1")
                        .arg(result.reason()),
                    QStringLiteral("The encoder failed with code %1: %2")
                        .arg(QString::number(result.exitCode), outputFile));
    if (QFileInfo(temporaryFile).size() <= 0)
        return fail(
            Failure::Other,
            QCoreApplication::translate("velmora::VideoUtil", "The encoder wrote nothing to %1.")
                .arg(QDir::toNativeSeparators(outputFile)),
            QStringLiteral("The encoder wrote nothing: %1").arg(outputFile));
    return moveFile(temporaryFile, outputFile);
}

bool VideoUtil::encodeSegment(const QString &prefix, int frameCount, qint64 duration,
                              const QString &outputFile, Motion motion)
{
    if (frameCount < 1 || duration < 1)
        return fail(
            Failure::Other,
            QCoreApplication::translate("velmora::VideoUtil", "There are no frames to encode."),
            QStringLiteral("There are no frames: %1").arg(outputFile));
    const QString images = m_context.cachePath + QStringLiteral("/images/");
    return executeUtility(
        EncoderCommands::segment(images, prefix, frameCount, duration, formatOf(m_context), motion),
        outputFile, true);
}

bool VideoUtil::join(const QStringList &files, const QString &listFile, const QString &outputFile)
{
    // The encoder leaves out what it cannot open, and succeeds.
    for (const QString &file : files) {
        if (QFileInfo(file).size() <= 0)
            return fail(Failure::Other,
                        QCoreApplication::translate("velmora::VideoUtil",
                                                    "The part %1 of the video is missing.")
                            .arg(QDir::toNativeSeparators(file)),
                        QStringLiteral("A part is missing: %1").arg(file));
    }
    QString error;
    if (!ConcatList::write(listFile, files, &error))
        return fail(Failure::Other, error, QStringLiteral("No list of parts: %1").arg(listFile));
    return executeUtility(EncoderCommands::joinPictures(listFile), outputFile, false);
}

bool VideoUtil::multiplex(const QString &videoFile, const QString &soundFile, qint64 length,
                          const QString &outputFile)
{
    const bool done = executeUtility(
        EncoderCommands::multiplex(videoFile, soundFile, length, formatOf(m_context)), outputFile,
        true);
    if (done)
        qCInfo(generatorLog) << "[Merge Audio and Video OK]";
    else
        qCWarning(generatorLog) << "[Merge Audio and Video FAILED]";
    return done;
}

bool VideoUtil::finishWithoutSound(const QString &videoFile, const QString &outputFile)
{
    const bool isFinal =
        EncoderOptions::containerOptions(m_context.extension, m_context.profile).isEmpty();
    if (isFinal && onOneVolume(videoFile, outputFile) && moveFile(videoFile, outputFile))
        return true;
    return executeUtility(EncoderCommands::pictureOnly(videoFile, formatOf(m_context)), outputFile,
                          true);
}

void VideoUtil::printDebugInfo(const ToolResult &result)
{
    // One call, since an output may itself hold a place marker.
    qCInfo(generatorLog).noquote() << QStringLiteral("[STD OUT]:'%1' [STD ERR]:'%2'")
                                          .arg(QString::fromUtf8(result.standardOutput),
                                               QString::fromUtf8(result.standardError));
}

} // namespace velmora
