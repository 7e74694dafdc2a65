// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/history/HistoryListView.h"

#include "chrome/Theme.h"
#include "project/documents/ProjectFile.h"
#include "project/images/ThubnailProvider.h"
#include "project/slides/ProjectItemSimple.h"
#include "sharing/history/HistoryColumns.h"
#include "sharing/history/HistoryDelegate.h"
#include "sharing/history/HistoryRowWidget.h"

#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int kPictures = 200; ///< Kept in memory.

/// The first photo of a slideshow, which stands for it.
QString firstPhoto(const ProjectFile &project)
{
    for (const ProjectItem *item : project.items()) {
        if (const auto *photo = qobject_cast<const ProjectItemSimple *>(item))
            return photo->fileName();
    }
    return {};
}

} // namespace

HistoryListView::HistoryListView(QWidget *parent)
    : QListView(parent), m_pictures(new ThubnailProvider(this))
{
    setItemDelegate(new HistoryDelegate(this));
    setUniformItemSizes(true);
    setResizeMode(Adjust); // Otherwise rows keep the width that they had first.
    setMouseTracking(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    verticalScrollBar()->setSingleStep(HistoryColumns::RowHeight / 2);
    m_pictures->setPhotoBox(QSize(HistoryColumns::PictureWidth, HistoryColumns::PictureWidth) * 2);
    connect(m_pictures, &ThubnailProvider::thumbnailReady, this, &HistoryListView::onPictureReady);
    m_pictures->start();
}

HistoryListView::~HistoryListView() = default;

void HistoryListView::setHistory(HistoryModel *model)
{
    m_history = model;
    setModel(model);
    connect(model, &QAbstractItemModel::modelReset, this, &HistoryListView::updateRows);
    connect(model, &QAbstractItemModel::layoutChanged, this, &HistoryListView::updateRows);
    connect(model, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex &first, const QModelIndex &last) {
                refreshRows(first.row(), last.row());
            });
}

HistoryRowWidget *HistoryListView::rowWidget(int row) const
{
    return qobject_cast<HistoryRowWidget *>(indexWidget(m_history->index(row)));
}

void HistoryListView::updateRows()
{
    if (!m_history || !isVisible())
        return;
    executeDelayedItemsLayout();
    const int height = HistoryColumns::RowHeight;
    const int first = verticalScrollBar()->value() / height;
    const int last = std::min(first + viewport()->height() / height + 1, m_history->rowCount() - 1);
    // Rows that went out of sight give their widgets back, but not right at the edge.
    const auto outOfSight = [&](const QPersistentModelIndex &index) {
        const bool near = index.row() >= first - 2 && index.row() <= last + 2;
        if (index.isValid() && !near)
            setIndexWidget(index, nullptr);
        return !index.isValid() || !near;
    };
    m_rows.erase(std::remove_if(m_rows.begin(), m_rows.end(), outOfSight), m_rows.end());
    if (m_requests.size() > kPictures)
        forgetPictures();
    for (int row = first; row <= last; ++row) {
        if (!rowWidget(row))
            createRow(row);
    }
}

void HistoryListView::createRow(int row)
{
    auto *widget = new HistoryRowWidget(viewport());
    const QModelIndex index = m_history->index(row);
    const QPersistentModelIndex place = index;
    const auto select = [this, place] { setCurrentIndex(place); };
    connect(widget, &HistoryRowWidget::openProject, this, [=](const QString &fileName) {
        select();
        emit openProject(fileName);
    });
    connect(widget, &HistoryRowWidget::previewProject, this, [=](const QString &fileName) {
        select();
        emit previewProject(fileName);
    });
    connect(widget, &HistoryRowWidget::deleteProject, this, [=](const QString &fileName) {
        select();
        emit deleteProject(fileName);
    });
    connect(widget, &HistoryRowWidget::burnProject, this,
            [=](const QString &fileName, const QString &text) {
                select();
                emit burnProject(fileName, text);
            });
    widget->setEntry(m_history->entry(row));
    widget->setSelected(selectionModel()->isSelected(index));
    setIndexWidget(index, widget);
    m_rows.append(place);
    requestPicture(*widget);
    m_history->probe(row);
}

void HistoryListView::refreshRows(int first, int last)
{
    for (int row = first; row <= last; ++row) {
        if (HistoryRowWidget *widget = rowWidget(row)) {
            widget->setEntry(m_history->entry(row));
            m_history->probe(row);
        }
    }
}

void HistoryListView::requestPicture(HistoryRowWidget &row)
{
    const QString photo = firstPhoto(*row.entry().project);
    if (photo.isEmpty())
        return;
    const auto known = m_requests.constFind(photo);
    if (known == m_requests.constEnd()) {
        m_requests.insert(photo, m_pictures->request(photo));
        return;
    }
    const QImage picture = m_pictures->thumbnail(*known);
    if (!picture.isNull())
        row.setPicture(picture);
}

void HistoryListView::forgetPictures()
{
    m_pictures->clear();
    m_requests.clear();
    // Those that have a widget may still wait for theirs.
    for (const QPersistentModelIndex &index : qAsConst(m_rows)) {
        if (HistoryRowWidget *row = rowWidget(index.row()))
            requestPicture(*row);
    }
}

void HistoryListView::onPictureReady(const QUuid &id)
{
    const QImage picture = m_pictures->thumbnail(id);
    const QString photo = m_requests.key(id);
    for (const QPersistentModelIndex &index : qAsConst(m_rows)) {
        HistoryRowWidget *row = index.isValid() ? rowWidget(index.row()) : nullptr;
        if (row && firstPhoto(*row->entry().project) == photo)
            row->setPicture(picture);
    }
}

void HistoryListView::selectionChanged(const QItemSelection &selected,
                                       const QItemSelection &deselected)
{
    QListView::selectionChanged(selected, deselected);
    const auto show = [this](const QItemSelection &selection, bool on) {
        const QModelIndexList indexes = selection.indexes();
        for (const QModelIndex &index : indexes) {
            if (HistoryRowWidget *row = rowWidget(index.row()))
                row->setSelected(on);
        }
    };
    show(deselected, false);
    show(selected, true);
}

void HistoryListView::resizeEvent(QResizeEvent *event)
{
    QListView::resizeEvent(event);
    updateRows();
}

void HistoryListView::updateGeometries()
{
    QListView::updateGeometries();
    emit freeSpaceChanged(width() - viewport()->width());
}

void HistoryListView::showEvent(QShowEvent *event)
{
    QListView::showEvent(event);
    updateRows();
}

void HistoryListView::scrollContentsBy(int dx, int dy)
{
    QListView::scrollContentsBy(dx, dy);
    updateRows();
}

void HistoryListView::paintEvent(QPaintEvent *event)
{
    QListView::paintEvent(event);
    if (m_history && m_history->rowCount() == 0)
        paintEmptyState();
}

void HistoryListView::paintEmptyState()
{
    constexpr int kWidth = 160;
    constexpr int kHeight = 120;
    constexpr int kGap = 16;
    QPainter painter(viewport());
    const QRect all = viewport()->rect();
    const QRect picture((all.width() - kWidth) / 2, std::max(0, all.height() / 2 - kHeight), kWidth,
                        kHeight);
    Theme::icon(QStringLiteral("history-empty")).paint(&painter, picture);
    painter.setPen(QColor(Theme::SecondaryText));
    painter.drawText(QRect(all.left(), picture.bottom() + kGap, all.width(), 48),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                     tr("Your finished slideshows appear here."));
}

} // namespace velmora
