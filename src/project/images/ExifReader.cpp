// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/images/ExifReader.h"

#include "project/ProjectLog.h"
#include "project/images/ExifBlock.h"

#include <QBuffer>
#include <QFile>

#include <exiv2/error.hpp>
#include <exiv2/exif.hpp>
#include <exiv2/version.hpp>

#include <exception>
#include <mutex>

namespace velmora
{

namespace
{

void logExivMessage(int, const char *text)
{
    qCDebug(lcProject, "EXIF: %s", QByteArray(text).trimmed().constData());
}

/// The library would print its complaints about broken files on standard error.
void redirectMessages()
{
    static std::once_flag once;
    std::call_once(once, [] { Exiv2::LogMsg::setHandler(logExivMessage); });
}

QString textOf(const Exiv2::ExifData &data, const char *key)
{
    const auto tag = data.findKey(Exiv2::ExifKey(key));
    if (tag == data.end())
        return QString();
    return QString::fromLatin1(tag->toString().c_str()).trimmed();
}

int orientationOf(const Exiv2::ExifData &data)
{
    const auto tag = data.findKey(Exiv2::ExifKey("Exif.Image.Orientation"));
    if (tag == data.end() || tag->count() < 1)
        return 1;
#if EXIV2_TEST_VERSION(0, 28, 0)
    const auto value = tag->toInt64();
#else
    const auto value = tag->toLong();
#endif
    return value >= 1 && value <= 8 ? int(value) : 1;
}

QDateTime dateOf(const Exiv2::ExifData &data, const char *key, const char *fractionKey)
{
    const QDateTime date =
        QDateTime::fromString(textOf(data, key), QStringLiteral("yyyy:MM:dd HH:mm:ss"));
    // Pictures of one burst differ only in the fraction of the second, written as its digits.
    const int milliseconds =
        textOf(data, fractionKey).left(3).leftJustified(3, QLatin1Char('0')).toInt();
    return date.isValid() && milliseconds > 0 ? date.addMSecs(milliseconds) : date;
}

QDateTime takenOf(const Exiv2::ExifData &data)
{
    const QDateTime original =
        dateOf(data, "Exif.Photo.DateTimeOriginal", "Exif.Photo.SubSecTimeOriginal");
    if (original.isValid())
        return original;
    return dateOf(data, "Exif.Photo.DateTimeDigitized", "Exif.Photo.SubSecTimeDigitized");
}

} // namespace

ExifInfo ExifReader::read(QIODevice &device)
{
    redirectMessages();
    ExifInfo info;
    const QByteArray block = findExifBlock(device);
    if (block.isEmpty())
        return info;
    try {
        Exiv2::ExifData data;
        Exiv2::ExifParser::decode(data, reinterpret_cast<const Exiv2::byte *>(block.constData()),
                                  static_cast<uint32_t>(block.size()));
        info.orientation = orientationOf(data);
        info.taken = takenOf(data);
    } catch (const std::exception &error) {
        qCDebug(lcProject, "EXIF data cannot be read: %s", error.what());
    }
    return info;
}

ExifInfo ExifReader::read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? read(file) : ExifInfo();
}

ExifInfo ExifReader::read(const QByteArray &file)
{
    QBuffer buffer;
    buffer.setData(file);
    buffer.open(QIODevice::ReadOnly);
    return read(buffer);
}

} // namespace velmora
