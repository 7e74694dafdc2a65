// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/frames/FrameFitter.h"

#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace velmora
{

namespace
{

QSize fittedSize(const QSize &photo, const FrameFormat &format)
{
    if (!format.origRatio)
        return format.size;
    if (!format.scaleToFit)
        return photo;
    const double scale = std::min(double(format.size.width()) / photo.width(),
                                  double(format.size.height()) / photo.height());
    // Less than a pixel between photo and frame would be a bar of a whole one, on one side.
    const auto side = [scale](int length, int whole) {
        const double scaled = length * scale;
        return whole - scaled < 1 ? whole : std::max(1, qRound(scaled));
    };
    return QSize(side(photo.width(), format.size.width()),
                 side(photo.height(), format.size.height()));
}

QImage scaledTo(const QImage &image, const QSize &size)
{
    return image.size() == size
               ? image
               : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// Paints a photo turned by a multiple of 90 degrees, which moves pixels without mixing them.
void paintStraight(QPainter &painter, const QImage &photo, int angle, const QRect &target,
                   const QRect &frame)
{
    const bool lying = angle % 180 != 0;
    if (target.size() == (lying ? photo.size().transposed() : photo.size())) {
        // The photo keeps its size and may be far larger than the frame: turn only what is seen.
        const QTransform turn = QTransform().rotate(angle);
        const QRect seen = target.intersected(frame);
        const QTransform toTarget = QImage::trueMatrix(turn, photo.width(), photo.height()) *
                                    QTransform::fromTranslate(target.x(), target.y());
        const QRect source = toTarget.inverted().mapRect(seen);
        const QImage part = source == photo.rect() ? photo : photo.copy(source);
        painter.drawImage(seen.topLeft(), angle == 0 ? part : part.transformed(turn));
        return;
    }
    const QImage scaled = scaledTo(photo, lying ? target.size().transposed() : target.size());
    painter.drawImage(target.topLeft(),
                      angle == 0 ? scaled : scaled.transformed(QTransform().rotate(angle)));
}

/// Paints a photo turned by any angle about its centre into the rectangle that its turned
/// outline fills.
void paintTurned(QPainter &painter, const QImage &photo, const QTransform &turn,
                 const QSizeF &outline, const QRect &target)
{
    const double scaleX = target.width() / outline.width();
    const double scaleY = target.height() / outline.height();
    const QTransform whole = turn * QTransform::fromScale(scaleX, scaleY);
    // The painter mixes only neighbouring pixels, so what shrinks is shrunk well beforehand, along
    // each of the photo's own sides.
    const double shrinkX = std::min(1.0, std::hypot(whole.m11(), whole.m12()));
    const double shrinkY = std::min(1.0, std::hypot(whole.m21(), whole.m22()));
    const QSize size(std::max(1, qRound(photo.width() * shrinkX)),
                     std::max(1, qRound(photo.height() * shrinkY)));
    const QImage scaled = scaledTo(photo, size);

    painter.translate(QRectF(target).center());
    painter.setTransform(whole, true);
    painter.scale(double(photo.width()) / size.width(), double(photo.height()) / size.height());
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.drawImage(QPointF(-size.width() / 2.0, -size.height() / 2.0), scaled);
}

} // namespace

QRect fittedRect(const QSize &photo, const FrameFormat &format)
{
    if (photo.isEmpty() || format.size.isEmpty())
        return QRect();
    const QSize size = fittedSize(photo, format);
    return QRect(QPoint((format.size.width() - size.width()) / 2,
                        (format.size.height() - size.height()) / 2),
                 size);
}

QImage fitPhoto(const QImage &photo, int angle, const FrameFormat &format)
{
    QImage frame(format.size, QImage::Format_RGB32);
    if (frame.isNull())
        return frame;
    frame.fill(Qt::black);
    if (photo.isNull())
        return frame;
    QPainter painter(&frame);
    const int turned = (angle % 360 + 360) % 360;
    if (turned % 90 == 0) {
        const QSize outline = turned % 180 == 0 ? photo.size() : photo.size().transposed();
        paintStraight(painter, photo, turned, fittedRect(outline, format), frame.rect());
        return frame;
    }
    const QTransform turn = QTransform().rotate(turned);
    const QSizeF outline = turn.mapRect(QRectF(QPointF(), QSizeF(photo.size()))).size();
    paintTurned(painter, photo, turn, outline, fittedRect(outline.toSize(), format));
    return frame;
}

} // namespace velmora
