// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/editor/SlideDelegate.h"

namespace velmora
{

/// The column "#": number and photo of a slide. GUI thread.
class SlideNumberDelegate : public SlideDelegate
{
    Q_OBJECT
public:
    using SlideDelegate::SlideDelegate;

    /// px that the column needs.
    static int width();

protected:
    void paintCell(QPainter &painter, const QStyleOptionViewItem &option,
                   const QModelIndex &index) const override;

private:
    void paintFocus(QPainter &painter, const QRect &cell) const;
    void paintThumbnail(QPainter &painter, const QRect &area, const QModelIndex &index) const;
};

} // namespace velmora
