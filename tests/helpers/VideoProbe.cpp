// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/VideoProbe.h"

#include <QProcess>
#include <QStringList>

#include <algorithm>
#include <cstdlib>

namespace velmora
{

namespace
{

constexpr int kLongestRun = 60'000; // ms
constexpr int kRate = 8000;         // Hz, one channel of 16 bits

QByteArray output(const QString &program, const QStringList &arguments,
                  QByteArray *errors = nullptr)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(kLongestRun);
    if (errors)
        *errors = process.readAllStandardError();
    return process.readAllStandardOutput();
}

QStringList decode(const QString &file, const QStringList &options)
{
    return QStringList{QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-i"), file} +
           options;
}

} // namespace

int VideoProbe::frameCount(const QString &file)
{
    const QByteArray text =
        output(QStringLiteral("ffprobe"),
               {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-count_frames"),
                QStringLiteral("-select_streams"), QStringLiteral("v:0"),
                QStringLiteral("-show_entries"), QStringLiteral("stream=nb_read_frames"),
                QStringLiteral("-of"), QStringLiteral("csv=p=0"), file});
    bool ok = false;
    const int count = text.trimmed().toInt(&ok);
    return ok ? count : -1;
}

double VideoProbe::soundLength(const QString &file)
{
    const QByteArray samples =
        output(QStringLiteral("ffmpeg"),
               decode(file, {QStringLiteral("-vn"), QStringLiteral("-ac"), QStringLiteral("1"),
                             QStringLiteral("-ar"), QString::number(kRate), QStringLiteral("-f"),
                             QStringLiteral("s16le"), QStringLiteral("-")}));
    return samples.size() / 2.0 / kRate;
}

QVector<QImage> VideoProbe::frames(const QString &file, const QSize &size)
{
    const QByteArray pixels =
        output(QStringLiteral("ffmpeg"),
               decode(file, {QStringLiteral("-an"), QStringLiteral("-vsync"),
                             QStringLiteral("passthrough"), QStringLiteral("-f"),
                             QStringLiteral("rawvideo"), QStringLiteral("-pix_fmt"),
                             QStringLiteral("rgb24"), QStringLiteral("-")}));
    const int bytes = size.width() * size.height() * 3;
    QVector<QImage> images;
    for (int start = 0; start + bytes <= pixels.size(); start += bytes) {
        const auto *data = reinterpret_cast<const uchar *>(pixels.constData()) + start;
        images.append(
            QImage(data, size.width(), size.height(), size.width() * 3, QImage::Format_RGB888)
                .convertToFormat(QImage::Format_RGB32));
    }
    return images;
}

QString VideoProbe::decodingErrors(const QString &file)
{
    QByteArray errors;
    output(QStringLiteral("ffmpeg"),
           decode(file, {QStringLiteral("-f"), QStringLiteral("null"), QStringLiteral("-")}),
           &errors);
    return QString::fromUtf8(errors);
}

double VideoProbe::meanDifference(const QImage &a, const QImage &b)
{
    if (a.size() != b.size() || a.isNull())
        return 255.0;
    qint64 sums[3] = {0, 0, 0};
    for (int y = 0; y < a.height(); ++y) {
        const auto *left = reinterpret_cast<const QRgb *>(a.constScanLine(y));
        const auto *right = reinterpret_cast<const QRgb *>(b.constScanLine(y));
        for (int x = 0; x < a.width(); ++x) {
            sums[0] += std::abs(qRed(left[x]) - qRed(right[x]));
            sums[1] += std::abs(qGreen(left[x]) - qGreen(right[x]));
            sums[2] += std::abs(qBlue(left[x]) - qBlue(right[x]));
        }
    }
    const double pixels = static_cast<double>(a.width()) * a.height();
    return static_cast<double>(*std::max_element(sums, sums + 3)) / pixels;
}

} // namespace velmora
