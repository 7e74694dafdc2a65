// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/QPopupButton.h"

#include <QStyledItemDelegate>

namespace velmora
{

/// Edits a cell by choosing from a list of values. A choice is written at once. GUI thread.
class ComboBoxItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    explicit ComboBoxItemDelegate(const QPopupButton::Values &values, QObject *parent = nullptr);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;

private:
    QPopupButton::Values m_values;
};

} // namespace velmora
