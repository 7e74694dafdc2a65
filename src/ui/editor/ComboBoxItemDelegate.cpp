// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/ComboBoxItemDelegate.h"

#include "chrome/Theme.h"
#include "ui/editor/ValueBox.h"

#include <QPainter>

namespace velmora
{

namespace
{

constexpr int kHeight = 36; // px
constexpr int kIndent = 11; // px, as the header
constexpr int kPadding = 8; // px
constexpr int kArrow = 16;  // px
constexpr int kVisibleValues = 16;

QRect buttonArea(const QRect &cell)
{
    return QRect(cell.left(), cell.top() + (cell.height() - kHeight) / 2, cell.width() - kPadding,
                 kHeight);
}

} // namespace

QWidget *ComboBoxItemDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                            const QModelIndex &index) const
{
    auto *box = new ValueBox(parent);
    box->setObjectName(QStringLiteral("cellValues"));
    box->setAccessibleName(index.model()->headerData(index.column(), Qt::Horizontal).toString());
    box->setMaxVisibleItems(kVisibleValues);
    for (const auto &value : m_values)
        box->addItem(value.first, value.second);
    const QVariant current = index.data(Qt::EditRole);
    if (box->findData(current) < 0)
        box->addItem(index.data().toString(), current);
    auto *self = const_cast<ComboBoxItemDelegate *>(this);
    connect(box, QOverload<int>::of(&QComboBox::activated), self,
            [self, box] { emit self->commitData(box); });
    connect(
        box, &ValueBox::closed, self, [self, box] { emit self->closeEditor(box); },
        Qt::QueuedConnection);
    QMetaObject::invokeMethod(box, &QComboBox::showPopup, Qt::QueuedConnection);
    return box;
}

void ComboBoxItemDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    auto *box = static_cast<QComboBox *>(editor);
    box->setCurrentIndex(box->findData(index.data(Qt::EditRole)));
}

void ComboBoxItemDelegate::setModelData(QWidget *editor, QAbstractItemModel *,
                                        const QModelIndex &index) const
{
    emit valueChosen(index, static_cast<QComboBox *>(editor)->currentData());
}

void ComboBoxItemDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                                const QModelIndex &) const
{
    editor->setGeometry(buttonArea(option.rect));
}

SlideButton ComboBoxItemDelegate::buttonAt(const QRect &cell, const QModelIndex &index,
                                           const QPoint &position) const
{
    const bool isButton = index.flags() & Qt::ItemIsEditable && buttonArea(cell).contains(position);
    return isButton ? SlideButton::Value : SlideButton::None;
}

QString ComboBoxItemDelegate::buttonText(SlideButton button, const QModelIndex &) const
{
    return button == SlideButton::Value ? tr("Choose for this slide, or for all selected ones")
                                        : QString();
}

void ComboBoxItemDelegate::paintCell(QPainter &painter, const QStyleOptionViewItem &option,
                                     const QModelIndex &index) const
{
    if (!(index.flags() & Qt::ItemIsEditable))
        return;
    const QRect area = buttonArea(option.rect);
    paintButtonFrame(painter, area, index, SlideButton::Value,
                     option.state & QStyle::State_HasFocus);
    painter.setPen(QColor(Theme::Text));
    const QRect arrow(area.right() + 1 - kPadding - kArrow,
                      area.top() + (area.height() - kArrow) / 2, kArrow, kArrow);
    const QRect text(area.left() + kIndent, area.top(), arrow.left() - area.left() - kIndent - 2,
                     area.height());
    painter.drawText(
        text, Qt::AlignLeft | Qt::AlignVCenter,
        painter.fontMetrics().elidedText(index.data().toString(), Qt::ElideRight, text.width()));
    if (!isRowHovered(index) && !(option.state & QStyle::State_Selected))
        painter.setOpacity(painter.opacity() * 0.5);
    Theme::icon(QStringLiteral("arrow-down")).paint(&painter, arrow);
}

} // namespace velmora
