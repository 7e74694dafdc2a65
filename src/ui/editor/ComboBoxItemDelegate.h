// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/QPopupButton.h"
#include "ui/editor/SlideDelegate.h"

namespace velmora
{

/// Paints a cell as a value button and edits it by choosing from a list of values, which opens at
/// once. GUI thread.
class ComboBoxItemDelegate : public SlideDelegate
{
    Q_OBJECT
public:
    using SlideDelegate::SlideDelegate;

    void setValues(const QPopupButton::Values &values) { m_values = values; }

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
    SlideButton buttonAt(const QRect &cell, const QModelIndex &index,
                         const QPoint &position) const override;
    QString buttonText(SlideButton button, const QModelIndex &index) const override;

signals:
    /// The user chose a value. The model is not changed: the listener knows for which slides the
    /// choice holds.
    void valueChosen(const QModelIndex &index, const QVariant &value) const;

protected:
    void paintCell(QPainter &painter, const QStyleOptionViewItem &option,
                   const QModelIndex &index) const override;

private:
    QPopupButton::Values m_values;
};

} // namespace velmora
