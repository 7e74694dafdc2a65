// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/SlideDelegate.h"

#include "chrome/Theme.h"
#include "ui/model/SlideTableModel.h"

#include <QPainter>

namespace velmora
{

namespace
{

constexpr int kBarWidth = 4;       // px
constexpr QRgb kLine = 0xffeef1f4; // between rows
constexpr double kAway = 0.45;     // opacity of what is not part of the video

QColor backgroundOf(bool selected, bool hovered)
{
    if (selected)
        return QColor(Theme::AccentPale);
    return QColor(hovered ? Theme::AccentFaint : Theme::Surface);
}

} // namespace

void SlideDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    painter->save();
    const bool enabled = option.state & QStyle::State_Enabled;
    const bool selected = option.state & QStyle::State_Selected;
    painter->fillRect(option.rect, backgroundOf(selected && enabled, isRowHovered(index)));
    painter->fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1),
                      QColor(kLine));
    if (selected && enabled && index.column() == 0)
        painter->fillRect(QRect(option.rect.topLeft(), QSize(kBarWidth, option.rect.height())),
                          QColor(Theme::Accent));
    if (!enabled || !index.data(SlideTableModel::ShownRole).toBool())
        painter->setOpacity(kAway);
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    paintCell(*painter, option, index);
    painter->restore();
}

SlideButton SlideDelegate::buttonAt(const QRect &, const QModelIndex &, const QPoint &) const
{
    return SlideButton::None;
}

QString SlideDelegate::buttonText(SlideButton, const QModelIndex &) const
{
    return {};
}

bool SlideDelegate::isRowHovered(const QModelIndex &index) const
{
    return m_pointer && m_pointer->index.isValid() && m_pointer->index.row() == index.row();
}

bool SlideDelegate::isHovered(const QModelIndex &index, SlideButton button) const
{
    return m_pointer && m_pointer->index == index && m_pointer->button == button;
}

bool SlideDelegate::isPressed(const QModelIndex &index, SlideButton button) const
{
    return isHovered(index, button) && m_pointer->pressed;
}

void SlideDelegate::paintButtonFrame(QPainter &painter, const QRect &area, const QModelIndex &index,
                                     SlideButton button, bool focused) const
{
    constexpr double kRadius = 6;
    const bool hovered = isHovered(index, button);
    if (!hovered && !focused)
        return;
    const double width = focused ? 2 : 1;
    const QRectF frame = QRectF(area).adjusted(width / 2, width / 2, -width / 2, -width / 2);
    painter.setPen(QPen(QColor(focused ? Theme::Accent : Theme::FieldBorder), width));
    if (hovered)
        painter.setBrush(QColor(isPressed(index, button) ? Theme::AccentPale : Theme::Surface));
    else
        painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(frame, kRadius, kRadius);
}

} // namespace velmora
