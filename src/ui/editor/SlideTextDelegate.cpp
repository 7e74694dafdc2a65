// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/SlideTextDelegate.h"

#include "chrome/Theme.h"
#include "ui/model/SlideTableModel.h"

#include <QFontMetrics>
#include <QPainter>
#include <QTextLayout>
#include <QWidget>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int kIndent = 11; // px, as the header
constexpr int kMargin = 8;  // px
constexpr int kButton = 32; // px
constexpr int kIcon = 20;   // px

bool isHiddenTitle(const QModelIndex &index)
{
    return !index.data(SlideTableModel::ShownRole).toBool();
}

SlideButton removeButton(const QModelIndex &index)
{
    return isHiddenTitle(index) ? SlideButton::Restore : SlideButton::Delete;
}

} // namespace

SlideTextDelegate::SlideTextDelegate(QWidget *view) : SlideDelegate(view), m_view(view) {}

SlideTextDelegate::Layout SlideTextDelegate::layOut(const QRect &cell, const QModelIndex &index,
                                                    bool active) const
{
    Layout layout;
    const int top = cell.top() + (cell.height() - kButton) / 2;
    layout.caption = QRect(cell.right() + 1 - kMargin - kButton, top, kButton, kButton);
    layout.remove = layout.caption.translated(-kButton, 0);
    const int right = active ? layout.remove.left() : layout.caption.left();
    layout.text = QRect(cell.left() + kIndent, cell.top() + kMargin,
                        right - kMargin - cell.left() - kIndent, cell.height() - 2 * kMargin);
    if (index.data(SlideTableModel::MissingRole).toBool()) {
        // The style sheet gives the view a font of its own.
        const QFontMetrics metrics = m_view->fontMetrics();
        const int width = metrics.horizontalAdvance(tr("Relocate...")) + 2 * kMargin;
        layout.relocate = QRect(layout.text.left() - kMargin, layout.text.center().y() + 1,
                                std::min(width, layout.text.width() + kMargin), 28);
    }
    return layout;
}

SlideButton SlideTextDelegate::buttonAt(const QRect &cell, const QModelIndex &index,
                                        const QPoint &position) const
{
    const Layout layout = layOut(cell, index);
    if (layout.remove.contains(position))
        return removeButton(index);
    if (layout.caption.contains(position))
        return SlideButton::Caption;
    return layout.relocate.contains(position) ? SlideButton::Relocate : SlideButton::None;
}

QString SlideTextDelegate::buttonText(SlideButton button, const QModelIndex &) const
{
    switch (button) {
    case SlideButton::Caption:
        return tr("Edit the text of this slide (F2)");
    case SlideButton::Delete:
        return tr("Delete this slide (Del)");
    case SlideButton::Restore:
        return tr("Show the title slide again");
    case SlideButton::Relocate:
        return tr("Choose the file again");
    case SlideButton::None:
    case SlideButton::Value:
        break;
    }
    return {};
}

void SlideTextDelegate::paintCell(QPainter &painter, const QStyleOptionViewItem &option,
                                  const QModelIndex &index) const
{
    const bool focused = option.state & QStyle::State_HasFocus;
    const bool marked = isRowHovered(index) || option.state & QStyle::State_Selected;
    const bool active = option.state & QStyle::State_Enabled && (marked || isHiddenTitle(index));
    const Layout layout = layOut(option.rect, index, active);
    if (layout.relocate.isNull())
        paintTexts(painter, layout.text, index);
    else
        paintMissing(painter, layout, index);
    paintButtonFrame(painter, layout.caption, index, SlideButton::Caption, focused);
    if (!active)
        painter.setOpacity(painter.opacity() * 0.5);
    paintIcon(painter, layout.caption, QStringLiteral("edit"));
    if (!active)
        return;
    painter.setOpacity(1);
    const SlideButton button = removeButton(index);
    paintButtonFrame(painter, layout.remove, index, button, false);
    paintIcon(painter, layout.remove,
              button == SlideButton::Restore ? QStringLiteral("restore-title")
                                             : QStringLiteral("delete"));
}

void SlideTextDelegate::paintIcon(QPainter &painter, const QRect &area, const QString &name) const
{
    QRect icon(0, 0, kIcon, kIcon);
    icon.moveCenter(area.center());
    Theme::icon(name).paint(&painter, icon);
}

/// A name that is too long for one line takes two; what does not fit into those lacks its middle.
QString SlideTextDelegate::brokenName(const QString &name, int width) const
{
    const QFontMetrics metrics = m_view->fontMetrics();
    if (metrics.horizontalAdvance(name) <= width)
        return name;
    QTextLayout text(name, m_view->font());
    text.beginLayout();
    QTextLine line = text.createLine();
    line.setLineWidth(width);
    const int end = line.textLength();
    text.endLayout();
    return name.left(end).trimmed() + QLatin1Char('\n') +
           metrics.elidedText(name.mid(end), Qt::ElideMiddle, width);
}

/// The caption above the slide's name; the name alone, in the middle, without a caption.
void SlideTextDelegate::paintTexts(QPainter &painter, const QRect &area,
                                   const QModelIndex &index) const
{
    const QString caption = index.data().toString();
    QString name = index.data(SlideTableModel::TitleRole).toString();
    if (isHiddenTitle(index))
        name = tr("Not part of the video");
    else if (index.data(SlideTableModel::TitleSlideRole).toBool())
        name = tr("Title slide");
    const QFontMetrics metrics = painter.fontMetrics();
    QRect below = area;
    if (!caption.isEmpty()) {
        const QRect above(area.left(), area.top(), area.width(), area.height() / 2);
        below.setTop(above.bottom() + 1);
        painter.setPen(QColor(Theme::Text));
        painter.drawText(above, Qt::AlignLeft | Qt::AlignBottom,
                         metrics.elidedText(caption, Qt::ElideRight, area.width()));
    }
    painter.setPen(QColor(Theme::SecondaryText));
    if (caption.isEmpty())
        painter.drawText(below, Qt::AlignLeft | Qt::AlignVCenter, brokenName(name, area.width()));
    else
        painter.drawText(below, Qt::AlignLeft | Qt::AlignTop,
                         metrics.elidedText(name, Qt::ElideMiddle, area.width()));
}

void SlideTextDelegate::paintMissing(QPainter &painter, const Layout &layout,
                                     const QModelIndex &index) const
{
    const QFontMetrics metrics = painter.fontMetrics();
    const QRect above(layout.text.left(), layout.text.top(), layout.text.width(),
                      layout.text.height() / 2);
    painter.setPen(QColor(Theme::Danger));
    const QString text = tr("Missing: %1").arg(index.data(SlideTableModel::TitleRole).toString());
    painter.drawText(above, Qt::AlignLeft | Qt::AlignBottom,
                     metrics.elidedText(text, Qt::ElideMiddle, above.width()));
    paintButtonFrame(painter, layout.relocate, index, SlideButton::Relocate, false);
    painter.setPen(QColor(Theme::Primary));
    const QRect label = layout.relocate.adjusted(kMargin, 0, -kMargin, 0);
    painter.drawText(label, Qt::AlignLeft | Qt::AlignVCenter,
                     metrics.elidedText(tr("Relocate..."), Qt::ElideRight, label.width()));
}

} // namespace velmora
