// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDataStream>
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

/// An uncompressed TIFF file; Qt itself does not write them everywhere.
inline QByteArray tiff(const QImage &image)
{
    const QImage rgb = image.convertToFormat(QImage::Format_RGB888);
    const auto width = static_cast<quint32>(rgb.width());
    const auto height = static_cast<quint32>(rgb.height());
    constexpr quint32 kDirectory = 8;
    constexpr quint32 kSampleBits = kDirectory + 2 + 9 * 12 + 4;
    constexpr quint32 kPixels = kSampleBits + 3 * 2;
    QByteArray file("II");
    QDataStream stream(&file, QIODevice::Append);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << quint16(42) << kDirectory << quint16(9);
    const auto tag = [&stream](int number, quint32 count, quint32 value) {
        constexpr quint16 kLong = 4;
        constexpr quint16 kShort = 3;
        stream << quint16(number) << (count == 3 ? kShort : kLong) << count << value;
    };
    tag(256, 1, width);
    tag(257, 1, height);
    tag(258, 3, kSampleBits);
    tag(259, 1, 1); // not compressed
    tag(262, 1, 2); // red, green and blue
    tag(273, 1, kPixels);
    tag(277, 1, 3);
    tag(278, 1, height);
    tag(279, 1, width * height * 3);
    stream << quint32(0) << quint16(8) << quint16(8) << quint16(8);
    for (int y = 0; y < rgb.height(); ++y)
        stream.writeRawData(reinterpret_cast<const char *>(rgb.constScanLine(y)), rgb.width() * 3);
    return file;
}

/// Saves in the format of the name's suffix.
inline bool save(const QImage &image, const QString &path)
{
    return path.endsWith(QLatin1String(".tif")) ? writeBytes(path, tiff(image))
                                                : image.save(path, nullptr, 95);
}

} // namespace Pictures

} // namespace velmora
