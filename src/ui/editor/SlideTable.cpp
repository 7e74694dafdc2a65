// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/SlideTable.h"

#include "chrome/Theme.h"
#include "ui/editor/ComboBoxItemDelegate.h"
#include "ui/editor/SlideNumberDelegate.h"
#include "ui/editor/SlideTextDelegate.h"
#include "ui/model/SlideTableModel.h"
#include "ui/model/ValueLists.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainterPath>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int kRowHeight = 80;         // px
constexpr int kTimeWidth = 88;         // px
constexpr int kTransitionWidth = 160;  // px
constexpr int kNarrowTransition = 112; // px, rather than leave no room for the text
constexpr int kTextWidth = 240;        // px, with its buttons
constexpr int kStep = 40;              // px that a step of the scroll bar moves

} // namespace

SlideTable::SlideTable(QWidget *parent)
    : QTableViewEx(parent), m_times(new ComboBoxItemDelegate(this)),
      m_transitions(new ComboBoxItemDelegate(this))
{
    setEditTriggers(NoEditTriggers);
    setMouseTracking(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(kRowHeight);
    verticalHeader()->setDefaultSectionSize(kRowHeight);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionsClickable(false);
}

void SlideTable::setSlides(SlideTableModel *model)
{
    m_slides = model;
    setModel(model);
    verticalScrollBar()->setSingleStep(kStep);
    setColumnWidth(SlideTableModel::NumberColumn, SlideNumberDelegate::width());
    setColumnWidth(SlideTableModel::TimeColumn, kTimeWidth);
    connect(m_times, &ComboBoxItemDelegate::valueChosen, this,
            [this](const QModelIndex &index, const QVariant &value) {
                emit timeChosen(index.row(), value.toInt());
            });
    connect(m_transitions, &ComboBoxItemDelegate::valueChosen, this,
            [this](const QModelIndex &index, const QVariant &value) {
                emit transitionChosen(index.row(), value.toInt());
            });
    addDelegate(SlideTableModel::NumberColumn, new SlideNumberDelegate(this));
    addDelegate(SlideTableModel::TimeColumn, m_times);
    addDelegate(SlideTableModel::TransitionColumn, m_transitions);
    addDelegate(SlideTableModel::TextColumn, new SlideTextDelegate(this));
    retranslate();
    connect(model, &QAbstractItemModel::modelReset, this, &SlideTable::tellVisibleRows);
}

void SlideTable::retranslate()
{
    m_times->setValues(ValueLists::slideTimes());
    m_transitions->setValues(ValueLists::transitions());
    setEmptyState(Theme::icon(QStringLiteral("photos")).pixmap(208, 120),
                  tr("Drag & drop photos and folders to add them here"));
    horizontalHeader()->viewport()->update();
    viewport()->update();
}

void SlideTable::addDelegate(int column, SlideDelegate *delegate)
{
    delegate->setPointer(&m_pointer);
    setItemDelegateForColumn(column, delegate);
}

SlideDelegate *SlideTable::delegateOf(const QModelIndex &index) const
{
    return qobject_cast<SlideDelegate *>(itemDelegate(index));
}

void SlideTable::openValues(int column)
{
    const QModelIndex index = currentIndex().siblingAtColumn(column);
    if (!(index.flags() & Qt::ItemIsEditable))
        return;
    setCurrentIndex(index);
    edit(index);
}

void SlideTable::updateRow(const QModelIndex &index)
{
    if (index.isValid())
        viewport()->update(0, rowViewportPosition(index.row()), viewport()->width(),
                           rowHeight(index.row()));
}

void SlideTable::setPointer(const QPoint &position, bool inside)
{
    const QModelIndex index = inside ? indexAt(position) : QModelIndex();
    SlideButton button = SlideButton::None;
    if (index.isValid() && isEnabled())
        button = delegateOf(index)->buttonAt(visualRect(index), index, position);
    if (m_pointer.index == index && m_pointer.button == button)
        return;
    updateRow(m_pointer.index);
    m_pointer = {index, button, false};
    updateRow(index);
    viewport()->setCursor(button == SlideButton::None ? Qt::ArrowCursor : Qt::PointingHandCursor);
}

void SlideTable::mousePressEvent(QMouseEvent *event)
{
    setPointer(event->pos(), true);
    if (event->button() != Qt::LeftButton || m_pointer.button == SlideButton::None) {
        QTableViewEx::mousePressEvent(event);
        return;
    }
    // The selection stays, so that a choice can hold for all of it.
    m_pointer.pressed = true;
    updateRow(m_pointer.index);
}

void SlideTable::mouseMoveEvent(QMouseEvent *event)
{
    if (m_pointer.pressed)
        return;
    setPointer(event->pos(), true);
    QTableViewEx::mouseMoveEvent(event);
}

void SlideTable::mouseReleaseEvent(QMouseEvent *event)
{
    if (!m_pointer.pressed) {
        QTableViewEx::mouseReleaseEvent(event);
        return;
    }
    const QModelIndex index = m_pointer.index;
    const SlideButton button = m_pointer.button;
    m_pointer.pressed = false;
    updateRow(index);
    if (index.isValid() && index == indexAt(event->pos()) &&
        delegateOf(index)->buttonAt(visualRect(index), index, event->pos()) == button)
        click(button, index);
}

void SlideTable::mouseDoubleClickEvent(QMouseEvent *event)
{
    setPointer(event->pos(), true);
    if (m_pointer.button != SlideButton::None) {
        mousePressEvent(event); // the second click on a button is a click as well
        return;
    }
    QTableViewEx::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && indexAt(event->pos()).isValid())
        emit previewRequested();
}

void SlideTable::click(SlideButton button, const QModelIndex &index)
{
    if (!selectionModel()->isRowSelected(index.row(), {}))
        setCurrentIndex(index);
    else
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    if (button == SlideButton::Value)
        edit(index);
    else
        emit buttonClicked(button, index.row());
}

bool SlideTable::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::Leave)
        setPointer({}, false);
    if (event->type() == QEvent::ToolTip && showHelp(*static_cast<QHelpEvent *>(event)))
        return true;
    return QTableViewEx::viewportEvent(event);
}

bool SlideTable::showHelp(const QHelpEvent &event)
{
    const QModelIndex index = indexAt(event.pos());
    if (!index.isValid())
        return false;
    const SlideDelegate *delegate = delegateOf(index);
    const QString text =
        delegate->buttonText(delegate->buttonAt(visualRect(index), index, event.pos()), index);
    if (text.isEmpty())
        return false;
    QToolTip::showText(event.globalPos(), text, viewport());
    return true;
}

void SlideTable::keyPressEvent(QKeyEvent *event)
{
    const QModelIndex index = currentIndex();
    const bool plain = !(event->modifiers() & ~Qt::KeypadModifier);
    const bool opens = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (index.isValid() && plain && event->key() == Qt::Key_Space)
        emit previewRequested();
    else if (index.isValid() && plain && opens && index.flags() & Qt::ItemIsEditable)
        edit(index);
    else if (index.isValid() && plain && opens)
        emit buttonClicked(SlideButton::Caption, index.row());
    else
        QTableViewEx::keyPressEvent(event);
}

void SlideTable::scrollContentsBy(int dx, int dy)
{
    QTableViewEx::scrollContentsBy(dx, dy);
    tellVisibleRows();
}

void SlideTable::resizeEvent(QResizeEvent *event)
{
    QTableViewEx::resizeEvent(event);
    // Rows must not cover the round corners of the frame.
    const QRect area = viewport()->rect();
    const QRegion corners = QRegion(area) - QRegion(area.adjusted(0, 0, 0, -Theme::Radius));
    QPainterPath round;
    round.addRoundedRect(area.adjusted(0, -Theme::Radius, 0, 0), Theme::Radius, Theme::Radius);
    const QRegion rounded(round.toFillPolygon().toPolygon());
    viewport()->setMask((QRegion(area) - corners) + (corners & rounded));
    const int rest = area.width() - SlideNumberDelegate::width() - kTimeWidth - kTextWidth;
    setColumnWidth(SlideTableModel::TransitionColumn,
                   qBound(kNarrowTransition, rest, kTransitionWidth));
    tellVisibleRows();
}

void SlideTable::tellVisibleRows()
{
    if (!m_slides)
        return;
    const int last = rowAt(viewport()->height() - 1);
    m_slides->setVisibleRows(std::max(0, rowAt(0)), last < 0 ? m_slides->rowCount() - 1 : last);
}

} // namespace velmora
