// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/images/ImageLoader.h"

#include "project/ProjectLog.h"
#include "project/images/PhotoFile.h"

#include <QImageReader>

#include <algorithm>
#include <cmath>

namespace velmora
{

namespace
{

void report(const QString &path, const PhotoFile &file, QString *error)
{
    qCWarning(lcProject).noquote()
        << QStringLiteral("Read image:'%1' Error:'%2'").arg(path, file.detail());
    if (lcProject().isDebugEnabled())
        qCDebug(lcProject) << "Supported image formats:" << QImageReader::supportedImageFormats();
    if (error)
        *error = file.problem();
}

/// The size that a picture of @p size has when it fits into @p box, the box held upright or
/// lying, whichever is larger; never more than @p size.
QSize neededSize(const QSize &size, const QSize &box)
{
    const auto scaleFor = [&size](int width, int height) {
        return std::min(double(width) / size.width(), double(height) / size.height());
    };
    const double scale = std::min(
        1.0, std::max(scaleFor(box.width(), box.height()), scaleFor(box.height(), box.width())));
    return QSize(std::max(1, int(std::ceil(size.width() * scale))),
                 std::max(1, int(std::ceil(size.height() * scale))))
        .boundedTo(size);
}

QImage read(const QString &path, const QSize *target, QString *error)
{
    PhotoFile file(path);
    QImage image;
    if (file.open()) {
        const QSize size = file.uprightSize();
        image = file.read(target ? neededSize(size, *target) : size);
    }
    if (image.isNull())
        report(path, file, error);
    return image;
}

QString problemOf(const QString &path, bool (PhotoFile::*verify)())
{
    PhotoFile file(path);
    if (file.open() && (file.*verify)())
        return QString();
    report(path, file, nullptr);
    return file.problem();
}

} // namespace

QImage ImageLoader::load(const QString &path, QString *error)
{
    return read(path, nullptr, error);
}

QImage ImageLoader::loadForSize(const QString &path, const QSize &target, QString *error)
{
    return read(path, &target, error);
}

QSize ImageLoader::uprightSize(const QString &path, QString *error)
{
    PhotoFile file(path);
    if (file.open())
        return file.uprightSize();
    report(path, file, error);
    return QSize();
}

QString ImageLoader::check(const QString &path)
{
    return problemOf(path, &PhotoFile::verify);
}

QString ImageLoader::checkEnd(const QString &path)
{
    return problemOf(path, &PhotoFile::verifyEnd);
}

} // namespace velmora
