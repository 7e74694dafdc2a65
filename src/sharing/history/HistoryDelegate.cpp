// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/history/HistoryDelegate.h"

#include "chrome/Theme.h"
#include "sharing/history/HistoryColumns.h"

#include <QPainter>
#include <QWidget>

namespace velmora
{

void HistoryDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &) const
{
    painter->save();
    const QRect area = option.rect;
    if (option.state & QStyle::State_Selected) {
        painter->fillRect(area, QColor(Theme::AccentPale));
        painter->fillRect(QRect(area.left(), area.top(), 3, area.height()), QColor(Theme::Accent));
    } else if (option.state & QStyle::State_MouseOver) {
        painter->fillRect(area, QColor(Theme::AccentFaint));
    }
    painter->fillRect(QRect(area.left(), area.bottom(), area.width(), 1), QColor(Theme::Border));
    painter->restore();
}

void HistoryDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                           const QModelIndex &) const
{
    editor->setGeometry(option.rect);
}

QSize HistoryDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return {320, HistoryColumns::RowHeight};
}

} // namespace velmora
