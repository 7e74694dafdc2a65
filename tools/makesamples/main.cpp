// SPDX-License-Identifier: GPL-3.0-or-later
// Paints the bundled sample photos and composes the bundled tune:
//   makesamples FOLDER [NAME]   with "FOLDER/photos/*.jpg" and "FOLDER/music/*.ogg" as the result
#include "Scenes.h"
#include "Tune.h"

#include <QBuffer>
#include <QDir>
#include <QGuiApplication>
#include <QImageWriter>
#include <QRect>
#include <QTextStream>

#include <exiv2/exiv2.hpp>

using namespace velmora::samples;

namespace
{

constexpr int kMaximumBytes = 245 * 1000;
constexpr QSize kPainted(1600, 1066);
constexpr QRect kKept(0, 40, 1600, 900); // fills the screen

struct Photo {
    const char *name;
    const char *taken; ///< The moment that the picture claims, for sorting by date.
    QImage (*paint)(const QSize &size);
};

constexpr Photo kPhotos[] = {
    {"Dawn over the ridges", "2023:04:29 06:12:00", paintDawn},
    {"Cherry tree in the meadow", "2023:04:29 10:40:00", paintCherryTree},
    {"Light on the reef", "2023:07:16 13:05:00", paintReef},
    {"Wind in the dunes", "2023:08:02 17:20:00", paintDunes},
    {"Autumn by the lake", "2023:10:14 08:35:00", paintAutumnLake},
    {"Sunset at sea", "2023:10:14 18:02:00", paintSea},
    {"The city after dusk", "2023:10:21 18:45:00", paintCity},
    {"Northern lights", "2023:12:09 22:30:00", paintAurora},
};

/// The best quality that stays within the size limit.
QByteArray compressed(const QImage &picture)
{
    for (int quality = 90;; --quality) {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        QImageWriter writer(&buffer, "jpg");
        writer.setQuality(quality);
        writer.setOptimizedWrite(true);
        writer.setProgressiveScanWrite(true);
        if (!writer.write(picture) || bytes.size() <= kMaximumBytes || quality < 50)
            return bytes;
    }
}

/// Notes the moment in the file's EXIF data.
void stampDate(const QString &path, const char *taken)
{
    const auto image = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
    image->readMetadata();
    image->exifData()["Exif.Photo.DateTimeOriginal"] = taken;
    image->writeMetadata();
}

bool write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    const bool done =
        !bytes.isEmpty() && file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    QTextStream(stdout) << path << ": "
                        << (done ? QString::number(bytes.size()) : file.errorString()) << '\n';
    return done;
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() < 2) {
        QTextStream(stderr) << "Usage: makesamples FOLDER [NAME]\n";
        return 2;
    }
    const QDir folder(arguments.at(1));
    const QString only = arguments.value(2);
    bool done = folder.mkpath(QStringLiteral("photos")) && folder.mkpath(QStringLiteral("music"));
    for (const Photo &photo : kPhotos) {
        const QString name = QLatin1String(photo.name);
        if (!name.contains(only))
            continue;
        const QString path = folder.filePath(QStringLiteral("photos/%1.jpg").arg(name));
        done &= write(path, compressed(photo.paint(kPainted).copy(kKept)));
        stampDate(path, photo.taken);
    }
    const QString tune = QStringLiteral("Morning walk.ogg");
    if (tune.contains(only))
        done &= composeTune(folder.filePath(QStringLiteral("music/") + tune));
    return done ? 0 : 1;
}
