// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QString>

#include <exiv2/exiv2.hpp>

#include <cstdlib>

namespace velmora
{

/// Pictures for tests: four quadrants in four colours tell every turn and mirroring apart.
namespace Pictures
{

constexpr QRgb kRed = 0xffe01010;
constexpr QRgb kGreen = 0xff10c010;
constexpr QRgb kBlue = 0xff1010e0;
constexpr QRgb kWhite = 0xfff0f0f0;

/// Red and green above, blue and white below.
inline QImage quadrants(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    const QRect half(0, 0, size.width() / 2, size.height() / 2);
    painter.fillRect(image.rect(), QColor(kWhite));
    painter.fillRect(half, QColor(kRed));
    painter.fillRect(half.translated(half.width(), 0), QColor(kGreen));
    painter.fillRect(half.translated(0, half.height()), QColor(kBlue));
    return image;
}

/// 'R', 'G', 'B', 'W' or 'K' (black) for pixels near those colours, otherwise '?'.
inline QChar colorName(QRgb pixel)
{
    constexpr int kTolerance = 24;
    const struct {
        QRgb color;
        char name;
    } names[] = {
        {kRed, 'R'}, {kGreen, 'G'}, {kBlue, 'B'}, {kWhite, 'W'}, {0xff000000, 'K'},
    };
    for (const auto &entry : names) {
        if (std::abs(qRed(pixel) - qRed(entry.color)) <= kTolerance &&
            std::abs(qGreen(pixel) - qGreen(entry.color)) <= kTolerance &&
            std::abs(qBlue(pixel) - qBlue(entry.color)) <= kTolerance)
            return QLatin1Char(entry.name);
    }
    return QLatin1Char('?');
}

/// The colours in the middles of the four quadrants of @p area, row by row: "RGBW" when upright.
inline QString quadrantNames(const QImage &image, const QRect &area)
{
    QString names;
    for (const int y : {1, 3}) {
        for (const int x : {1, 3})
            names += colorName(
                image.pixel(area.x() + area.width() * x / 4, area.y() + area.height() * y / 4));
    }
    return names;
}

inline QString quadrantNames(const QImage &image)
{
    return quadrantNames(image, image.rect());
}

/// Writes one EXIF tag into an existing JPEG, TIFF or PNG file.
inline void setExif(const QString &path, const char *key, const std::string &text)
{
    auto file = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
    file->readMetadata();
    file->exifData()[key].setValue(text);
    file->writeMetadata();
}

inline QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline bool writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace Pictures

} // namespace velmora
