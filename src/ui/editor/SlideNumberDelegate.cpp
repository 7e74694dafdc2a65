// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/SlideNumberDelegate.h"

#include "chrome/Theme.h"
#include "ui/model/SlideTableModel.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>

namespace velmora
{

namespace
{

constexpr int kIndent = 11;      // px, as the header
constexpr int kNumberWidth = 40; // px, with the bar of the selection
constexpr int kGap = 8;          // px
constexpr double kRadius = 4;    // px
constexpr QRgb kEmptyPhoto = 0xffe9edf1;

} // namespace

int SlideNumberDelegate::width()
{
    return kNumberWidth + SlideTableModel::kThumbnailBox.width() + kGap;
}

void SlideNumberDelegate::paintCell(QPainter &painter, const QStyleOptionViewItem &option,
                                    const QModelIndex &index) const
{
    if (option.state & QStyle::State_HasFocus)
        paintFocus(painter, option.rect);
    painter.setPen(QColor(Theme::SecondaryText));
    const QRect number(option.rect.left() + kIndent, option.rect.top(), kNumberWidth - kIndent,
                       option.rect.height());
    painter.drawText(number, Qt::AlignLeft | Qt::AlignVCenter, index.data().toString());
    const QSize box = SlideTableModel::kThumbnailBox;
    const QRect area(
        QPoint(number.right() + 1, option.rect.top() + (option.rect.height() - box.height()) / 2),
        box);
    paintThumbnail(painter, area, index);
}

/// Clear of the selection's bar, the number and the photo.
void SlideNumberDelegate::paintFocus(QPainter &painter, const QRect &cell) const
{
    constexpr int kBeside = 6; // px
    constexpr int kAbove = 3;  // px
    const double opacity = painter.opacity();
    painter.setOpacity(1);
    painter.setPen(QPen(QColor(Theme::Accent), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(cell).adjusted(kBeside, kAbove, -1, -kAbove - 1), kRadius,
                            kRadius);
    painter.setOpacity(opacity);
}

void SlideNumberDelegate::paintThumbnail(QPainter &painter, const QRect &area,
                                         const QModelIndex &index) const
{
    const auto image = index.data(Qt::DecorationRole).value<QImage>();
    QSizeF size(area.size());
    if (!image.isNull())
        size = QSizeF(image.size()).scaled(size, Qt::KeepAspectRatio);
    QRectF frame(QPointF(), size);
    frame.moveCenter(QRectF(area).center());
    QPainterPath outline;
    outline.addRoundedRect(frame, kRadius, kRadius);
    painter.save();
    painter.setClipPath(outline);
    if (image.isNull())
        painter.fillRect(frame, QColor(kEmptyPhoto));
    else
        painter.drawImage(frame, image);
    painter.restore();
    painter.setPen(QColor(0, 0, 0, 28));
    painter.drawRoundedRect(frame.adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
    if (image.isNull()) {
        const bool missing = index.data(SlideTableModel::MissingRole).toBool();
        QRect icon(0, 0, 24, 24);
        icon.moveCenter(area.center());
        Theme::icon(missing ? QStringLiteral("missing") : QStringLiteral("photo"))
            .paint(&painter, icon);
    }
}

} // namespace velmora
