// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

namespace velmora
{

/// What a cell of the slide table has under the pointer.
enum class SlideButton { None, Value, Caption, Delete, Restore, Relocate };

/// Where the pointer is in the slide table.
struct SlidePointer {
    QPersistentModelIndex index;
    SlideButton button = SlideButton::None;
    bool pressed = false;
};

/// Paints the rows of the slide table: background, selection, the line below. Subclasses paint the
/// cells of one column and know where its painted buttons are. GUI thread.
class SlideDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    explicit SlideDelegate(QObject *parent = nullptr) : QStyledItemDelegate(parent) {}

    /// The table's pointer, which must outlive the delegate.
    void setPointer(const SlidePointer *pointer) { m_pointer = pointer; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const final;
    virtual SlideButton buttonAt(const QRect &cell, const QModelIndex &index,
                                 const QPoint &position) const;
    /// What the button does, for a tooltip.
    virtual QString buttonText(SlideButton button, const QModelIndex &index) const;

protected:
    virtual void paintCell(QPainter &painter, const QStyleOptionViewItem &option,
                           const QModelIndex &index) const = 0;

    bool isRowHovered(const QModelIndex &index) const;
    /// Whether the pointer is on @p button of the cell.
    bool isHovered(const QModelIndex &index, SlideButton button) const;
    bool isPressed(const QModelIndex &index, SlideButton button) const;
    /// The frame of a painted button below the pointer or with the keyboard focus.
    void paintButtonFrame(QPainter &painter, const QRect &area, const QModelIndex &index,
                          SlideButton button, bool focused) const;

private:
    const SlidePointer *m_pointer = nullptr;
};

} // namespace velmora

Q_DECLARE_METATYPE(velmora::SlideButton)
