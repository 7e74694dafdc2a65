// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/EncoderCommands.h"

#include <QRegularExpression>

namespace velmora
{

namespace
{

/// The image reader takes its input for a pattern, so a percent sign of the folder is doubled.
QString asPattern(QString path)
{
    return path.replace(QLatin1Char('%'), QLatin1String("%%"));
}

QStringList stillInput(const QString &imagesFolder, const QString &prefix, qint64 duration)
{
    const QString file = EncoderCommands::frameFile(imagesFolder, prefix, 1);
    // Read once a second: the filter chain repeats the picture, which is cheaper than decoding it
    // for every frame.
    QStringList arguments{QStringLiteral("-loop"), QStringLiteral("1"),
                          QStringLiteral("-framerate"), QStringLiteral("1")};
    // A single file may be taken for a pattern too, and doubling the sign does not always help.
    if (file.contains(QLatin1Char('%')))
        arguments << QStringLiteral("-pattern_type") << QStringLiteral("none");
    return arguments << QStringLiteral("-i") << file << QStringLiteral("-t")
                     << EncoderOptions::seconds(duration);
}

/// For an input that is only copied. Otherwise the first frame of every file is decoded to look at,
/// which takes several times as long as the copying.
QStringList withoutDecoder()
{
    // No decoder has this name.
    return {QStringLiteral("-codec_whitelist"), QStringLiteral("none")};
}

QStringList sequenceInput(const QString &imagesFolder, const QString &prefix, int frames,
                          qint64 duration)
{
    const double rate = frames * 1000.0 / static_cast<double>(duration);
    return {QStringLiteral("-r"),
            QString::number(rate, 'f', 3),
            QStringLiteral("-start_number"),
            QStringLiteral("1"),
            QStringLiteral("-i"),
            asPattern(imagesFolder) + QStringLiteral("img") + asPattern(prefix) +
                QStringLiteral("_%05d.jpg")};
}

} // namespace

QString EncoderCommands::frameFile(const QString &imagesFolder, const QString &prefix, int number)
{
    return imagesFolder + QStringLiteral("img") + prefix +
           QStringLiteral("_%1.jpg").arg(number, 5, 10, QLatin1Char('0'));
}

QStringList EncoderCommands::segment(const QString &imagesFolder, const QString &prefix, int frames,
                                     qint64 duration, const OutputFormat &format, Motion motion)
{
    // One decoder thread: the encoder's threads use the time that a frame takes to decode, and each
    // further decoder would only want memory for frames of its own.
    QStringList arguments{QStringLiteral("-threads"), QStringLiteral("1")};
    arguments += frames == 1 ? stillInput(imagesFolder, prefix, duration)
                             : sequenceInput(imagesFolder, prefix, frames, duration);
    arguments << QStringLiteral("-r") << QString::number(EncoderOptions::kFramesPerSecond)
              << QStringLiteral("-vf")
              << EncoderOptions::videoFilter(format.extension, format.profile)
              << QStringLiteral("-frames:v")
              << QString::number(EncoderOptions::frameCount(duration))
              << EncoderOptions::videoOptions(format.extension, format.size.height(),
                                              format.profile);
    if (frames == 1 || motion == Motion::None)
        arguments += EncoderOptions::motionlessOptions(format.extension, format.profile);
    arguments << QStringLiteral("-y") << QStringLiteral("-s")
              << QStringLiteral("%1x%2").arg(format.size.width()).arg(format.size.height());
    return arguments;
}

QStringList EncoderCommands::join(const QString &listFile)
{
    return {QStringLiteral("-f"), QStringLiteral("concat"), QStringLiteral("-safe"),
            QStringLiteral("0"),  QStringLiteral("-i"),     listFile,
            QStringLiteral("-c"), QStringLiteral("copy"),   QStringLiteral("-y")};
}

QStringList EncoderCommands::joinPictures(const QString &listFile)
{
    return withoutDecoder() + join(listFile);
}

QByteArray EncoderCommands::withoutDenials(const QByteArray &errors)
{
    static const QRegularExpression denial(
        QStringLiteral("(\\[[^\\]]*\\] )*Codec \\([^)]*\\) not on whitelist [^\n]*\n"
                       "(\\s*Last message repeated \\d+ times\r?\n)?"));
    return QString::fromUtf8(errors).remove(denial).toUtf8();
}

QStringList EncoderCommands::multiplex(const QString &videoFile, const QString &soundFile,
                                       qint64 length, const OutputFormat &format)
{
    QStringList arguments = withoutDecoder();
    arguments << QStringLiteral("-i") << videoFile << QStringLiteral("-i") << soundFile
              << QStringLiteral("-y") << QStringLiteral("-map_metadata") << QStringLiteral("-1")
              << QStringLiteral("-filter_complex") << QStringLiteral("[1:0]apad")
              << QStringLiteral("-map") << QStringLiteral("0:v:0") << QStringLiteral("-vcodec")
              << QStringLiteral("copy")
              << EncoderOptions::soundOptions(format.extension, format.profile)
              << QStringLiteral("-shortest")
              // "-shortest" alone lets the padded sound run on by up to a third of a second.
              << QStringLiteral("-t") << EncoderOptions::seconds(length)
              << EncoderOptions::containerOptions(format.extension, format.profile);
    return arguments;
}

QStringList EncoderCommands::pictureOnly(const QString &videoFile, const OutputFormat &format)
{
    return withoutDecoder() + QStringList{QStringLiteral("-i"),    videoFile,
                                          QStringLiteral("-y"),    QStringLiteral("-map_metadata"),
                                          QStringLiteral("-1"),    QStringLiteral("-map"),
                                          QStringLiteral("0:v:0"), QStringLiteral("-vcodec"),
                                          QStringLiteral("copy")} +
           EncoderOptions::containerOptions(format.extension, format.profile);
}

} // namespace velmora
