// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/frames/SlideRenderer.h"

#include "project/frames/CaptionPainter.h"
#include "project/images/ImageLoader.h"
#include "project/slides/ProjectItemFirst.h"
#include "project/slides/ProjectItemSimple.h"
#include "project/slides/TitleBackground.h"

#include <QCoreApplication>

namespace velmora
{

namespace
{

/// The photo, decoded no larger than its frame needs.
QImage photoFor(const ProjectItemSimple &slide, const FrameFormat &format, QString *error)
{
    const QString &path = slide.fileName();
    if (format.origRatio && !format.scaleToFit)
        return ImageLoader::load(path, error);
    if (format.origRatio)
        return ImageLoader::loadForSize(path, format.size, error);
    // Stretched pictures fill the frame in both directions, so the larger factor counts.
    const QSize size = ImageLoader::uprightSize(path, error);
    if (size.isEmpty())
        return QImage();
    const QSize frame = slide.angle() % 180 == 0 ? format.size : format.size.transposed();
    return ImageLoader::loadForSize(path, size.scaled(frame, Qt::KeepAspectRatioByExpanding),
                                    error);
}

} // namespace

QImage SlideRenderer::bareFrame(const ProjectItem &item, const FrameFormat &format, QString *error)
{
    if (const auto *title = qobject_cast<const ProjectItemFirst *>(&item))
        return titleBackground(title->backgroundIndex(), format.size, false)
            .convertToFormat(QImage::Format_RGB32);
    const auto *slide = qobject_cast<const ProjectItemSimple *>(&item);
    if (!slide)
        return QImage();
    const QImage photo = photoFor(*slide, format, error);
    if (photo.isNull())
        return photo;
    const QImage frame = fitPhoto(photo, slide->angle(), format);
    if (frame.isNull() && error) // There is no memory for it.
        *error = QCoreApplication::translate("ImageLoader", "is too large");
    return frame;
}

QImage SlideRenderer::captionedFrame(const QImage &bare, const ProjectItem &item)
{
    QImage frame = bare;
    paintCaption(frame, item.caption());
    return frame;
}

} // namespace velmora
