// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/frames/CaptionPainter.h"

#include "project/frames/CaptionFont.h"

#include <QPainter>
#include <QVector>

#include <algorithm>

namespace velmora
{

namespace
{

// Sizes are given for a frame of this width.
constexpr double kReferenceWidth = 1024;
constexpr int kReferenceMargin = 30;
// More could never be seen, and the font engine's coordinates have their limits.
constexpr int kMaximumLength = 50000;

int alignmentFor(int position)
{
    static const Qt::Alignment alignments[] = {
        Qt::AlignLeft | Qt::AlignTop,
        Qt::AlignHCenter | Qt::AlignTop,
        Qt::AlignRight | Qt::AlignTop,
        Qt::AlignLeft | Qt::AlignVCenter,
        Qt::AlignCenter,
        Qt::AlignRight | Qt::AlignVCenter,
        Qt::AlignLeft | Qt::AlignBottom,
        Qt::AlignHCenter | Qt::AlignBottom,
        Qt::AlignRight | Qt::AlignBottom,
    };
    return int(alignments[position >= 0 && position <= 8 ? position : 0]);
}

/// The font sizes to try at the reference width. A caption in the top left corner stays smaller.
const QVector<int> &candidatesFor(int position)
{
    static const QVector<int> corner = {32, 26, 21, 16, 12, 8, 4};
    static const QVector<int> elsewhere = {48, 40, 32, 24, 18, 12, 8, 4};
    return position >= 1 && position <= 8 ? elsewhere : corner;
}

/// Sets the first font size at which the text fits into @p area, or the last one, and returns
/// the text's rectangle.
QRect fitText(QPainter &painter, const QRect &area, const CaptionStyle &caption,
              const QString &text, double scale)
{
    QRect bounds;
    for (const int candidate : candidatesFor(caption.position)) {
        painter.setFont(captionFont(caption.fontFamily, std::max(1, int(candidate * scale))));
        bounds = painter.boundingRect(area, alignmentFor(caption.position), text);
        if (bounds.width() <= area.width() && bounds.height() <= area.height())
            break;
    }
    return bounds;
}

} // namespace

PaintedCaption paintCaption(QImage &frame, const CaptionStyle &caption)
{
    PaintedCaption painted;
    if (frame.isNull() || !caption.isVisible())
        return painted;
    const double scale = frame.width() / kReferenceWidth;
    const int margin = int(scale * kReferenceMargin);
    const QRect area = frame.rect().adjusted(2 * margin, 2 * margin, -2 * margin, -2 * margin);
    const QString text = caption.text.left(kMaximumLength);
    {
        QPainter painter(&frame);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        const QRect bounds = fitText(painter, area, caption, text, scale);
        const QRect box = bounds.adjusted(-margin, -margin, margin, margin);
        if (caption.backgroundColor.isValid())
            painter.fillRect(box, caption.backgroundColor);
        painter.setPen(caption.textColor);
        painter.drawText(area, alignmentFor(caption.position), text);
        painted.box = box.intersected(frame.rect());
    }
    if (!painted.box.isEmpty())
        painted.picture = frame.copy(painted.box);
    return painted;
}

} // namespace velmora
