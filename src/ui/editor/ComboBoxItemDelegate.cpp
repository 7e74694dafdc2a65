// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/ComboBoxItemDelegate.h"

#include <QComboBox>

namespace velmora
{

ComboBoxItemDelegate::ComboBoxItemDelegate(const QPopupButton::Values &values, QObject *parent)
    : QStyledItemDelegate(parent), m_values(values)
{
}

QWidget *ComboBoxItemDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                            const QModelIndex &index) const
{
    auto *box = new QComboBox(parent);
    for (const auto &value : m_values)
        box->addItem(value.first, value.second);
    const QVariant current = index.data(Qt::EditRole);
    if (box->findData(current) < 0)
        box->addItem(index.data().toString(), current);
    connect(box, QOverload<int>::of(&QComboBox::activated), this, [this, box] {
        auto *self = const_cast<ComboBoxItemDelegate *>(this);
        emit self->commitData(box);
        emit self->closeEditor(box);
    });
    return box;
}

void ComboBoxItemDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    auto *box = static_cast<QComboBox *>(editor);
    box->setCurrentIndex(box->findData(index.data(Qt::EditRole)));
}

void ComboBoxItemDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                        const QModelIndex &index) const
{
    model->setData(index, static_cast<QComboBox *>(editor)->currentData(), Qt::EditRole);
}

} // namespace velmora
