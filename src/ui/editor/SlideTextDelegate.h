// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/editor/SlideDelegate.h"

namespace velmora
{

/// The column "Text": caption and name of a slide, with the buttons to edit its caption and to
/// delete it, and to find its photo again when that is gone. GUI thread.
class SlideTextDelegate : public SlideDelegate
{
    Q_OBJECT
public:
    /// @p view shows the cells, with its own font.
    explicit SlideTextDelegate(QWidget *view);

    SlideButton buttonAt(const QRect &cell, const QModelIndex &index,
                         const QPoint &position) const override;
    QString buttonText(SlideButton button, const QModelIndex &index) const override;

protected:
    void paintCell(QPainter &painter, const QStyleOptionViewItem &option,
                   const QModelIndex &index) const override;

private:
    struct Layout {
        QRect text;
        QRect relocate; ///< Null unless the photo is missing.
        QRect caption;
        QRect remove; ///< Also the button that shows a hidden title slide again.
    };
    /// @p active: all buttons are shown; otherwise the text has the room of the last one.
    Layout layOut(const QRect &cell, const QModelIndex &index, bool active = true) const;
    void paintTexts(QPainter &painter, const QRect &area, const QModelIndex &index) const;
    QString brokenName(const QString &name, int width) const;
    void paintMissing(QPainter &painter, const Layout &layout, const QModelIndex &index) const;
    void paintIcon(QPainter &painter, const QRect &area, const QString &name) const;

    const QWidget *m_view;
};

} // namespace velmora
