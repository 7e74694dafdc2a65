// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/images/Thumbnail.h"

#include "project/images/ImageLoader.h"

#include <QPainter>

namespace velmora
{

namespace
{

const QSize kSize(kThumbnailSize, kThumbnailSize);

} // namespace

QImage makeThumbnail(const QImage &photo)
{
    if (photo.isNull())
        return QImage();
    QImage thumbnail(kSize, QImage::Format_ARGB32);
    thumbnail.fill(QColor(101, 101, 101));
    const QSize fitted = photo.size().scaled(kSize, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    const QImage scaled = photo.scaled(fitted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QPainter painter(&thumbnail);
    painter.drawImage((kThumbnailSize - scaled.width()) / 2, (kThumbnailSize - scaled.height()) / 2,
                      scaled);
    return thumbnail;
}

QImage makeThumbnail(const QString &path)
{
    return makeThumbnail(ImageLoader::loadForSize(path, kSize));
}

QImage makePhotoThumbnail(const QString &path, const QSize &box)
{
    const QImage photo = ImageLoader::loadForSize(path, box);
    if (photo.isNull())
        return QImage();
    QSize fitted = photo.size();
    if (fitted.width() > box.width() || fitted.height() > box.height())
        fitted = fitted.scaled(box, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    QImage thumbnail(fitted, QImage::Format_RGB32);
    thumbnail.fill(Qt::white);
    QPainter painter(&thumbnail);
    painter.drawImage(0, 0, photo.scaled(fitted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    return thumbnail;
}

} // namespace velmora
