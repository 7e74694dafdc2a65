// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QStringList>
#include <QTableView>
#include <QVector>

namespace velmora
{

class RowsMimeData;

/// A table of rows into which files can be dropped and whose rows can be reordered by dragging one
/// or several of them. It changes nothing in the model itself: it only tells what the user wants.
/// Rows that can be dragged have Qt::ItemIsDragEnabled. GUI thread.
class QTableViewEx : public QTableView
{
    Q_OBJECT
public:
    explicit QTableViewEx(QWidget *parent = nullptr);

    /// What is painted while there are no rows.
    void setEmptyState(const QPixmap &picture, const QString &text);
    /// The first @p count rows keep their place: they are not dragged, and nothing is dropped
    /// before them. 0 at first.
    void setFixedRows(int count);
    int fixedRows() const { return m_fixedRows; }

    /// The selected rows that can be moved, in ascending order.
    QVector<int> movableSelection() const;
    /// The row before which something dropped at @p position of the viewport goes; the number of
    /// rows at the end.
    int rowBeforeDrop(const QPoint &position) const;
    /// Whether the user drags rows of any table right now.
    static bool isDragging() { return s_dragged; }

signals:
    /// Files or folders of this computer were dropped, to go after the row @p newRow; -1 where they
    /// go to the end. What is dropped above the first row goes after it.
    void filesDropped(const QStringList &files, int newRow);
    /// The user dragged @p rows (ascending) to directly before @p beforeRow, both as they were
    /// counted before the move. Not emitted when that changes nothing.
    void rowsMoved(const QVector<int> &rows, int beforeRow);
    /// A drag over the table ended: by a drop, after the signals above, or by leaving.
    void dropEnd();

protected:
    void startDrag(Qt::DropActions supportedActions) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    int rowCount() const;
    int dropRow(const QDropEvent &event, bool files) const;
    bool accepts(const QDropEvent &event) const;
    void showDropRow(int row);
    QPixmap dragPicture(const QVector<int> &rows) const;
    void paintEmptyState();
    void paintDropLine();

    QPixmap m_emptyPicture;
    QString m_emptyText;
    int m_fixedRows = 0;
    int m_dropRow = -1; ///< Where the line of a running drag lies; -1 without one.
    /// From the start of a drag of rows to its drop or end. Only compared.
    static const RowsMimeData *s_dragged;
};

} // namespace velmora
