// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/QTableViewEx.h"

#include "chrome/BalancedText.h"
#include "chrome/LocalFiles.h"
#include "chrome/RowsMimeData.h"
#include "chrome/Theme.h"

#include <QDrag>
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QPainter>

#include <algorithm>

namespace velmora
{

const RowsMimeData *QTableViewEx::s_dragged = nullptr;

QTableViewEx::QTableViewEx(QWidget *parent) : QTableView(parent)
{
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDragDropMode(DragDrop);
    setDropIndicatorShown(false);
    setShowGrid(false);
    setAlternatingRowColors(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setVerticalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void QTableViewEx::setEmptyState(const QPixmap &picture, const QString &text)
{
    m_emptyPicture = picture;
    m_emptyText = text;
    viewport()->update();
}

void QTableViewEx::setFixedRows(int count)
{
    m_fixedRows = std::max(0, count);
}

QVector<int> QTableViewEx::movableSelection() const
{
    QVector<int> rows;
    if (!selectionModel())
        return rows;
    const QModelIndexList selected = selectionModel()->selectedRows();
    for (const QModelIndex &index : selected) {
        if (index.row() >= m_fixedRows)
            rows.append(index.row());
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

int QTableViewEx::rowCount() const
{
    return model() ? model()->rowCount(rootIndex()) : 0;
}

int QTableViewEx::rowBeforeDrop(const QPoint &position) const
{
    int row = rowAt(position.y());
    if (row < 0)
        row = position.y() < 0 ? 0 : rowCount();
    else if (position.y() >= rowViewportPosition(row) + rowHeight(row) / 2)
        ++row;
    return std::min(std::max(row, m_fixedRows), rowCount());
}

/// Files are placed by the row that they follow, so there is no place before the first row.
int QTableViewEx::dropRow(const QDropEvent &event, bool files) const
{
    const int row = rowBeforeDrop(event.pos());
    return files && rowCount() > 0 ? std::max(row, 1) : row;
}

bool QTableViewEx::accepts(const QDropEvent &event) const
{
    return !RowsMimeData::rowsFrom(event.mimeData(), this).isEmpty() ||
           !localFiles(*event.mimeData()).isEmpty();
}

void QTableViewEx::showDropRow(int row)
{
    if (row == m_dropRow)
        return;
    m_dropRow = row;
    viewport()->update();
}

void QTableViewEx::startDrag(Qt::DropActions)
{
    const QVector<int> rows = movableSelection();
    if (rows.isEmpty())
        return;
    auto *drag = new QDrag(this);
    auto *dragged = new RowsMimeData(this, rows);
    connect(dragged, &RowsMimeData::outdated, this, [dragged] {
        // A drop that changes the rows itself has ended the drag already.
        if (dragged == s_dragged)
            QDrag::cancel();
    });
    drag->setMimeData(dragged);
    drag->setPixmap(dragPicture(rows));
    drag->setHotSpot({16, 16});
    s_dragged = dragged;
    drag->exec(Qt::MoveAction);
    s_dragged = nullptr;
}

/// The first dragged row, half transparent, with the number of rows where there are more.
QPixmap QTableViewEx::dragPicture(const QVector<int> &rows) const
{
    const int row = rows.first();
    const QRect area(0, rowViewportPosition(row), std::min(viewport()->width(), 320),
                     rowHeight(row));
    QPixmap picture(area.size() * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(0.85);
    painter.drawPixmap(0, 0, viewport()->grab(area));
    painter.setOpacity(1);
    painter.setPen(QColor(Theme::Accent));
    painter.drawRect(QRect(QPoint(0, 0), area.size()).adjusted(0, 0, -1, -1));
    if (rows.size() > 1) {
        const QRectF badge(area.width() - 36, (area.height() - 24) / 2, 28, 24);
        painter.setBrush(QColor(Theme::Primary));
        painter.setPen(Qt::NoPen);
        painter.drawRoundedRect(badge, 12, 12);
        painter.setPen(QColor(Theme::OnPrimary));
        painter.drawText(badge, Qt::AlignCenter, QString::number(rows.size()));
    }
    return picture;
}

void QTableViewEx::dragEnterEvent(QDragEnterEvent *event)
{
    event->setAccepted(accepts(*event));
}

void QTableViewEx::dragMoveEvent(QDragMoveEvent *event)
{
    // The base scrolls at the edges; where a drop is allowed is decided here.
    QTableView::dragMoveEvent(event);
    const bool reorder = !RowsMimeData::rowsFrom(event->mimeData(), this).isEmpty();
    if (!accepts(*event)) {
        event->ignore();
        showDropRow(-1);
        return;
    }
    event->setDropAction(reorder ? Qt::MoveAction : Qt::CopyAction);
    event->accept();
    showDropRow(dropRow(*event, !reorder));
}

void QTableViewEx::dragLeaveEvent(QDragLeaveEvent *event)
{
    QTableView::dragLeaveEvent(event);
    showDropRow(-1);
    emit dropEnd();
}

void QTableViewEx::dropEvent(QDropEvent *event)
{
    stopAutoScroll();
    setState(NoState);
    showDropRow(-1);
    s_dragged = nullptr;
    const QVector<int> rows = RowsMimeData::rowsFrom(event->mimeData(), this);
    const QStringList files = localFiles(*event->mimeData());
    if (!rows.isEmpty()) {
        const int before = dropRow(*event, false);
        event->setDropAction(Qt::MoveAction);
        event->accept();
        const bool adjoining = rows.last() - rows.first() == rows.size() - 1;
        if (!adjoining || before < rows.first() || before > rows.last() + 1)
            emit rowsMoved(rows, before);
    } else if (!files.isEmpty()) {
        const int before = dropRow(*event, true);
        event->setDropAction(Qt::CopyAction);
        event->accept();
        emit filesDropped(files, before >= rowCount() ? -1 : before - 1);
    } else {
        event->ignore();
    }
    emit dropEnd();
}

void QTableViewEx::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (rowCount() == 0)
        paintEmptyState();
    if (m_dropRow >= 0)
        paintDropLine();
}

void QTableViewEx::paintEmptyState()
{
    constexpr int kGap = 12; // px
    QPainter painter(viewport());
    const QSize picture = m_emptyPicture.isNull()
                              ? QSize()
                              : m_emptyPicture.size() / m_emptyPicture.devicePixelRatio();
    const QRect area = BalancedText::part(
        fontMetrics(), viewport()->rect().adjusted(kGap, kGap, -kGap, -kGap), m_emptyText);
    constexpr int kFlags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
    const QRect text = fontMetrics().boundingRect(area, kFlags, m_emptyText);
    int y = area.top();
    if (picture.height() > 0 && picture.height() + kGap + text.height() <= area.height()) {
        y += (area.height() - picture.height() - kGap - text.height()) / 2;
        painter.drawPixmap((viewport()->width() - picture.width()) / 2, y, m_emptyPicture);
        y += picture.height() + kGap;
    } else {
        y += std::max(0, (area.height() - text.height()) / 2);
    }
    painter.setPen(QColor(Theme::SecondaryText));
    painter.drawText(QRect(area.left(), y, area.width(), area.bottom() - y + 1), kFlags,
                     m_emptyText);
}

void QTableViewEx::paintDropLine()
{
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    const QPen pen(QColor(Theme::Accent), 2);
    painter.setPen(pen);
    if (rowCount() == 0) {
        painter.drawRoundedRect(viewport()->rect().adjusted(3, 3, -3, -3), 4, 4);
        return;
    }
    const int last = rowCount() - 1;
    int y = m_dropRow <= last ? rowViewportPosition(m_dropRow)
                              : rowViewportPosition(last) + rowHeight(last);
    y = std::min(std::max(y, 4), viewport()->height() - 4);
    painter.drawLine(11, y, viewport()->width() - 4, y);
    painter.setBrush(QColor(Theme::Surface));
    painter.drawEllipse(QPoint(7, y), 3, 3);
}

} // namespace velmora
