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

} // namespace velmora
