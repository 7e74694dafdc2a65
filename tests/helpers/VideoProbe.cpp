// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/VideoProbe.h"

#include "helpers/Words.h"

#include <QProcess>

#include <algorithm>
#include <cstdlib>

namespace velmora
{

namespace
{

constexpr int kLongestRun = 60'000; // ms

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

QByteArray decode(const QString &file, const char *options, QByteArray *errors = nullptr)
{
    return output(QStringLiteral("ffmpeg"), words("-v error -i") << file << words(options), errors);
}

} // namespace

int VideoProbe::frameCount(const QString &file)
{
    const QByteArray text = output(QStringLiteral("ffprobe"),
                                   words("-v error -count_frames -select_streams v:0 -show_entries "
                                         "stream=nb_read_frames -of csv=p=0")
                                       << file);
    bool ok = false;
    const int count = text.trimmed().toInt(&ok);
    return ok ? count : -1;
}

double VideoProbe::soundLength(const QString &file)
{
    // One channel of 8000 Hz and 16 bits.
    return decode(file, "-vn -ac 1 -ar 8000 -f s16le -").size() / 16000.0;
}

QVector<QImage> VideoProbe::frames(const QString &file, const QSize &size)
{
    const QByteArray pixels = decode(file, "-an -vsync passthrough -f rawvideo -pix_fmt rgb24 -");
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
    decode(file, "-f null -", &errors);
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
