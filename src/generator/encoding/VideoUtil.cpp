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

/// The file that is written first; it keeps the suffix, from which the encoder takes the format.
QString temporaryName(const QString &outputFile)
{
    const QFileInfo info(outputFile);
    const QString suffix = info.suffix().isEmpty() ? QString() : QLatin1Char('.') + info.suffix();
    return info.path() + QLatin1Char('/') + info.completeBaseName() + QStringLiteral(".part") +
           suffix;
}

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

QString diskFull()
{
    return QCoreApplication::translate("velmora::VideoUtil", "The disk is full.");
}

} // namespace

VideoUtil::VideoUtil(EncodingContext &context) : m_context(context) {}

bool VideoUtil::fail(const QString &reason)
{
    m_errorText = reason;
    qCWarning(generatorLog).noquote() << reason;
    return false;
}

ToolResult VideoUtil::runEncoder(const QStringList &arguments, bool feedProgress) const
{
    qCInfo(generatorLog).noquote() << "Starting ffmpeg.exe " << arguments;
    ToolRunner::ErrorOutput onError;
    if (feedProgress) {
        onError = [this](const QByteArray &piece) {
            const std::lock_guard<std::mutex> locker(m_context.outputMutex);
            m_context.encoderOutput += QString::fromUtf8(piece);
            m_context.encoderOutput = m_context.encoderOutput.right(kKeptProgress);
        };
    }
    const ToolResult result =
        ToolRunner(&m_context.cancelled, onError).run(m_context.encoder, arguments);
    if (!result.started)
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
    const QString temporaryFile = temporaryName(outputFile);
    arguments.append(temporaryFile);
    const ToolResult result = runEncoder(quiet + arguments, wait);
    const bool done = acceptOutput(result, temporaryFile, outputFile);
    if (!done)
        QFile::remove(temporaryFile);
    return done;
}

bool VideoUtil::acceptOutput(const ToolResult &result, const QString &temporaryFile,
                             const QString &outputFile)
{
    if (result.cancelled)
        return fail(QCoreApplication::translate("velmora::VideoUtil", "Cancelled."));
    // The encoder does not always fail when the last block does not fit.
    if (result.standardError.contains("No space left on device"))
        return fail(diskFull());
    if (!result.ok())
        return fail(QCoreApplication::translate("velmora::VideoUtil", "The encoder failed: %1")
                        .arg(result.reason()));
    if (QFileInfo(temporaryFile).size() <= 0)
        return fail(
            QCoreApplication::translate("velmora::VideoUtil", "The encoder wrote nothing to %1.")
                .arg(QDir::toNativeSeparators(outputFile)));
    qCInfo(generatorLog).noquote() << "rename from:" << temporaryFile << " to:" << outputFile;
    QFile::remove(outputFile);
    if (!QFile::rename(temporaryFile, outputFile))
        return fail(QCoreApplication::translate("velmora::VideoUtil", "%1 cannot be written.")
                        .arg(QDir::toNativeSeparators(outputFile)));
    return true;
}

bool VideoUtil::encodeSegment(const QString &prefix, int frameCount, qint64 duration,
                              const QString &outputFile, Motion motion)
{
    if (frameCount < 1 || duration < 1)
        return fail(
            QCoreApplication::translate("velmora::VideoUtil", "There are no frames to encode."));
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
            return fail(QCoreApplication::translate("velmora::VideoUtil",
                                                    "The part %1 of the video is missing.")
                            .arg(QDir::toNativeSeparators(file)));
    }
    QString error;
    if (!ConcatList::write(listFile, files, &error))
        return fail(error);
    return executeUtility(EncoderCommands::join(listFile), outputFile, false);
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
    if (isFinal && onOneVolume(videoFile, outputFile)) {
        qCInfo(generatorLog).noquote() << "rename from:" << videoFile << " to:" << outputFile;
        QFile::remove(outputFile);
        if (QFile::rename(videoFile, outputFile))
            return true;
    }
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
