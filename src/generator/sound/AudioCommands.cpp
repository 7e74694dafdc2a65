// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/sound/AudioCommands.h"

#include "generator/encoding/EncoderCommands.h"

namespace velmora
{

namespace
{

/// From here on a WAV file may pass 4 GB, at high sample rates and with many channels.
constexpr qint64 kLongTrack = 60 * 60 * 1000; // ms

/// The large form of WAV, which is only used beyond 4 GB.
QStringList largeFile()
{
    return {QStringLiteral("-rf64"), QStringLiteral("auto")};
}

QStringList largeFileFor(qint64 length)
{
    return length > kLongTrack ? largeFile() : QStringList();
}

QStringList filtered(const QStringList &inputs, const QString &filter)
{
    QStringList arguments;
    for (const QString &input : inputs)
        arguments << QStringLiteral("-i") << input;
    return arguments << QStringLiteral("-filter_complex") << filter;
}

} // namespace

QString AudioCommands::seconds(qint64 milliseconds)
{
    const QString whole = QString::number(milliseconds / 1000);
    const qint64 rest = milliseconds % 1000;
    return rest == 0 ? whole
                     : QStringLiteral("%1.%2").arg(whole).arg(rest, 3, 10, QLatin1Char('0'));
}

QStringList AudioCommands::join(const QString &listFile)
{
    return EncoderCommands::join(listFile) + largeFile();
}

QStringList AudioCommands::cut(const QString &input, int skip, qint64 length)
{
    QStringList arguments;
    if (skip > 0)
        arguments << QStringLiteral("-ss") << QString::number(skip);
    arguments << QStringLiteral("-t") << seconds(length) << QStringLiteral("-i") << input;
    return arguments << largeFileFor(length) << QStringLiteral("-y");
}

QStringList AudioCommands::fade(const QString &input, qint64 fade, qint64 length)
{
    const QString filter = QStringLiteral("afade=t=in:ss=0:d=%1,afade=t=out:st=%2:d=%1")
                               .arg(seconds(fade), seconds(length - fade));
    return filtered({input}, filter) << largeFileFor(length) << QStringLiteral("-y");
}

QStringList AudioCommands::fadeOut(const QString &input, qint64 fade, qint64 length)
{
    const QString filter =
        QStringLiteral("afade=t=out:st=%1:d=%2").arg(seconds(length - fade), seconds(fade));
    return QStringList{QStringLiteral("-t"), seconds(length)}
           << filtered({input}, filter) << largeFileFor(length) << QStringLiteral("-y");
}

QStringList AudioCommands::silence(qint64 length, const QString &layout, int sampleRate)
{
    const QString filter = QStringLiteral("aevalsrc=0:duration=%1:c=%2:s=%3")
                               .arg(seconds(length), layout)
                               .arg(sampleRate);
    return filtered({}, filter) << largeFileFor(length) << QStringLiteral("-y");
}

QStringList AudioCommands::prepend(const QString &silence, const QString &music)
{
    return filtered({silence, music}, QStringLiteral("[0:a:0][1:a:0] concat=n=2:v=0:a=1[out]"))
           << QStringLiteral("-map") << QStringLiteral("[out]") << largeFile()
           << QStringLiteral("-y");
}

QStringList AudioCommands::loop(const QString &listFile)
{
    // The list holds absolute paths, which the reader otherwise refuses.
    return QStringList{QStringLiteral("-f"), QStringLiteral("concat"), QStringLiteral("-safe"),
                       QStringLiteral("0"),  QStringLiteral("-i"),     listFile,
                       QStringLiteral("-c"), QStringLiteral("copy")}
           << largeFile();
}

QStringList AudioCommands::transcode(const QString &input, qint64 length)
{
    return QStringList{QStringLiteral("-i"), input} << largeFileFor(length);
}

QStringList AudioCommands::normalise(const QString &input)
{
    return QStringList{QStringLiteral("-i"),      input,
                       QStringLiteral("-map"),    QStringLiteral("0:a:0"),
                       QStringLiteral("-ac"),     QStringLiteral("2"),
                       QStringLiteral("-ar"),     QStringLiteral("44100"),
                       QStringLiteral("-acodec"), QStringLiteral("pcm_s16le")}
           << largeFile() << QStringLiteral("-y");
}

} // namespace velmora
