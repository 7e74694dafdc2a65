// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

namespace velmora
{

/// Paints the rows of the playlist: name, length, and buttons to play, stop and delete, which it
/// also makes work with the mouse. Never paints the focus rectangle. GUI thread.
class AudioNoFocusRectangleDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    enum Button { PlayButton, StopButton, DeleteButton, ButtonCount, NoButton = ButtonCount };

    explicit AudioNoFocusRectangleDelegate(QObject *parent = nullptr);

    /// Where a button lies in a row that covers @p row.
    static QRect buttonRect(const QRect &row, Button button, Qt::LayoutDirection direction);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

signals:
    void playClicked(int row);
    void stopClicked(int row);
    void deleteClicked(int row);

private:
    void paintButtons(QPainter &painter, const QStyleOptionViewItem &option,
                      const QModelIndex &index) const;
    void paintTexts(QPainter &painter, const QStyleOptionViewItem &option,
                    const QModelIndex &index) const;
    static Button buttonAt(const QStyleOptionViewItem &option, const QPoint &position);
};

} // namespace velmora
