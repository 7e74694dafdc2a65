// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/EncoderLocator.h"

#include "generator/GeneratorLog.h"
#include "generator/encoding/ToolRunner.h"
#include "platform/EncoderAdvice.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QMutex>
#include <QMutexLocker>
#include <QRegularExpression>
#include <QStandardPaths>

namespace velmora
{

namespace
{

constexpr int kVersionTimeout = 10000; // ms

bool isAtLeast(const QRegularExpressionMatch &match, int major, int minor)
{
    const int foundMajor = match.captured(1).toInt();
    const int foundMinor = match.captured(2).toInt();
    return foundMajor > major || (foundMajor == major && foundMinor >= minor);
}

QStringList candidates()
{
    const QString name = QStringLiteral("ffmpeg");
    QStringList programs{
        QStandardPaths::findExecutable(name, {QCoreApplication::applicationDirPath()})};
    const QString configured = qEnvironmentVariable("VELMORA_FFMPEG");
    if (!configured.isEmpty()) {
        const QFileInfo info(configured);
        if (info.isFile() && info.isExecutable())
            programs.append(info.absoluteFilePath());
        else
            qCWarning(generatorLog).noquote() << "VELMORA_FFMPEG names no program:" << configured;
    }
    programs.append(QStandardPaths::findExecutable(name));
    programs.removeAll(QString());
    return programs;
}

EncoderVersion probe(const QString &program)
{
    ToolRunner runner;
    runner.setTimeout(kVersionTimeout);
    const ToolResult result = runner.run(program, {QStringLiteral("-version")});
    return result.ok() ? EncoderVersion::fromOutput(result.standardOutput) : EncoderVersion();
}

EncoderVersion knownVersion(const QString &program)
{
    static QMutex mutex;
    static QHash<QString, EncoderVersion> known;
    QMutexLocker locker(&mutex);
    // A program that could not be used may have been slow, and may be replaced.
    if (!known.value(program).usable)
        known.insert(program, probe(program));
    return known.value(program);
}

} // namespace

EncoderVersion EncoderVersion::fromOutput(const QByteArray &output)
{
    // Releases carry their number, builds between releases a revision; then the number of their
    // library tells. 56.70 is that of release 4.4.
    static const QRegularExpression name(QStringLiteral("^ffmpeg version (\\S+)"));
    static const QRegularExpression release(QStringLiteral("^ffmpeg version n?(\\d+)\\.(\\d+)"));
    static const QRegularExpression library(QStringLiteral("^libavutil\\s+(\\d+)\\.\\s*(\\d+)"),
                                            QRegularExpression::MultilineOption);
    const QString text = QString::fromUtf8(output.left(64 * 1024));
    EncoderVersion version;
    version.text = name.match(text).captured(1);
    if (version.text.isEmpty())
        return version;
    const QRegularExpressionMatch number = release.match(text);
    version.usable =
        number.hasMatch() ? isAtLeast(number, 4, 4) : isAtLeast(library.match(text), 56, 70);
    return version;
}

EncoderLocation locateEncoder()
{
    EncoderLocation location;
    location.error = EncoderAdvice::missing();
    const QStringList programs = candidates();
    for (const QString &program : programs) {
        const EncoderVersion version = knownVersion(program);
        if (version.usable)
            return {program, QString()};
        qCWarning(generatorLog).noquote() << "Unusable encoder:" << program << version.text;
        if (!version.text.isEmpty())
            location.error = EncoderAdvice::tooOld(version.text, QDir::toNativeSeparators(program));
    }
    return location;
}

} // namespace velmora
