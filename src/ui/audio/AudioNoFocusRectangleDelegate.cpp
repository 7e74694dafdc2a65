// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/audio/AudioNoFocusRectangleDelegate.h"

#include "chrome/Theme.h"
#include "ui/audio/AudioFilesController.h"

#include <QAbstractItemView>
#include <QCursor>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

namespace velmora
{

namespace
{

constexpr int kRowHeight = 40;  // px
constexpr int kButtonSize = 28; // px
constexpr int kIconSize = 20;   // px
constexpr int kMargin = 8;      // px
constexpr int kEdge = 4;        // px

bool isSelected(const QStyleOptionViewItem &option)
{
    return option.state.testFlag(QStyle::State_Selected);
}

/// The picture that stands out from the row's background.
QIcon rowIcon(const char *name, const char *variant)
{
    return Theme::icon(QLatin1String(name) + QLatin1String(variant));
}

QRect centred(const QSize &size, const QRect &area)
{
    return QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, area);
}

} // namespace

AudioNoFocusRectangleDelegate::AudioNoFocusRectangleDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{
}

QRect AudioNoFocusRectangleDelegate::buttonRect(const QRect &row, Button button,
                                                Qt::LayoutDirection direction)
{
    const int right = row.right() + 1 - kEdge - (ButtonCount - 1 - button) * kButtonSize;
    const QRect area(right - kButtonSize, row.top() + (row.height() - kButtonSize) / 2, kButtonSize,
                     kButtonSize);
    return QStyle::visualRect(direction, row, area);
}

AudioNoFocusRectangleDelegate::Button
AudioNoFocusRectangleDelegate::buttonAt(const QStyleOptionViewItem &option, const QPoint &position)
{
    for (int button = 0; button < ButtonCount; ++button) {
        if (buttonRect(option.rect, Button(button), option.direction).contains(position))
            return Button(button);
    }
    return NoButton;
}

void AudioNoFocusRectangleDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                          const QModelIndex &index) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (isSelected(option))
        painter->fillRect(option.rect, QColor(Theme::Accent));
    else if (option.state.testFlag(QStyle::State_MouseOver))
        painter->fillRect(option.rect, QColor(Theme::AccentFaint));
    paintTexts(*painter, option, index);
    paintButtons(*painter, option, index);
    if (index.data(AudioFilesController::PlayingRole).toBool()) {
        constexpr int kLine = 3; // px
        const double progress = index.data(AudioFilesController::ProgressRole).toDouble();
        const QRectF line(option.rect.left(), option.rect.bottom() + 1 - kLine,
                          option.rect.width() * progress, kLine);
        painter->fillRect(line, QColor(isSelected(option) ? Theme::AccentText : Theme::Accent));
    }
    painter->restore();
}

void AudioNoFocusRectangleDelegate::paintTexts(QPainter &painter,
                                               const QStyleOptionViewItem &option,
                                               const QModelIndex &index) const
{
    const bool isBroken = index.data(AudioFilesController::BrokenRole).toBool();
    const bool isPlaying = index.data(AudioFilesController::PlayingRole).toBool();
    const char *variant = isSelected(option) ? "-selected" : (isPlaying ? "-accent" : "");
    const QRect icon(option.rect.left() + kMargin,
                     option.rect.top() + (option.rect.height() - kIconSize) / 2, kIconSize,
                     kIconSize);
    rowIcon("audio-toogle", variant)
        .paint(&painter, QStyle::visualRect(option.direction, option.rect, icon));

    QFont font = option.font;
    font.setBold(isPlaying);
    painter.setFont(font);
    const QString duration =
        isBroken ? tr("missing") : index.data(AudioFilesController::DurationRole).toString();
    const int buttonsLeft = option.rect.right() + 1 - kEdge - ButtonCount * kButtonSize;
    const int durationWidth = option.fontMetrics.horizontalAdvance(duration);
    const QRect time(buttonsLeft - kEdge - durationWidth, option.rect.top(), durationWidth,
                     option.rect.height());
    QRect name = option.rect;
    name.setLeft(icon.right() + 1 + kMargin);
    name.setRight(time.left() - kMargin);

    const QRgb quiet = isBroken ? Theme::Danger : Theme::SecondaryText;
    painter.setPen(QColor(isSelected(option) ? Theme::AccentText : Theme::Text));
    const QString text =
        QFontMetrics(font).elidedText(index.data().toString(), Qt::ElideRight, name.width());
    painter.drawText(QStyle::visualRect(option.direction, option.rect, name),
                     int(QStyle::visualAlignment(option.direction, Qt::AlignLeft) |
                         Qt::AlignVCenter | Qt::TextSingleLine),
                     text);
    painter.setFont(option.font);
    painter.setPen(QColor(isSelected(option) ? Theme::AccentText : quiet));
    painter.drawText(QStyle::visualRect(option.direction, option.rect, time),
                     Qt::AlignCenter | Qt::TextSingleLine, duration);
}

void AudioNoFocusRectangleDelegate::paintButtons(QPainter &painter,
                                                 const QStyleOptionViewItem &option,
                                                 const QModelIndex &index) const
{
    static const char *const names[ButtonCount] = {"audio-play", "audio-st", "audio-del"};
    const bool isPlaying = index.data(AudioFilesController::PlayingRole).toBool();
    Button hot = NoButton;
    if (option.widget && option.state.testFlag(QStyle::State_MouseOver))
        hot = buttonAt(option, option.widget->mapFromGlobal(QCursor::pos()));
    for (int i = 0; i < ButtonCount; ++i) {
        const QRect area = buttonRect(option.rect, Button(i), option.direction);
        if (hot == i) {
            QColor shade(Theme::AccentText);
            shade.setAlpha(28);
            painter.setPen(Qt::NoPen);
            painter.setBrush(shade);
            painter.drawRoundedRect(area, 6, 6);
        }
        // There is nothing to stop in a row that does not play.
        painter.setOpacity(i == StopButton && !isPlaying ? 0.4 : 1);
        rowIcon(names[i], isSelected(option) ? "-selected" : "")
            .paint(&painter, centred({kIconSize, kIconSize}, area));
        painter.setOpacity(1);
    }
}

QSize AudioNoFocusRectangleDelegate::sizeHint(const QStyleOptionViewItem &,
                                              const QModelIndex &) const
{
    return {kRowHeight, kRowHeight};
}

bool AudioNoFocusRectangleDelegate::editorEvent(QEvent *event, QAbstractItemModel *,
                                                const QStyleOptionViewItem &option,
                                                const QModelIndex &index)
{
    if (event->type() != QEvent::MouseButtonRelease)
        return false;
    const auto *mouse = static_cast<QMouseEvent *>(event);
    if (mouse->button() != Qt::LeftButton || mouse->modifiers() != Qt::NoModifier)
        return false;
    switch (buttonAt(option, mouse->pos())) {
    case PlayButton:
        emit playClicked(index.row());
        return true;
    case StopButton:
        emit stopClicked(index.row());
        return true;
    case DeleteButton:
        emit deleteClicked(index.row());
        return true;
    case NoButton:
        break;
    }
    return false;
}

bool AudioNoFocusRectangleDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                              const QStyleOptionViewItem &option,
                                              const QModelIndex &index)
{
    QString text;
    if (event->type() == QEvent::ToolTip) {
        switch (buttonAt(option, event->pos())) {
        case PlayButton:
            text = tr("Listen (Space)");
            break;
        case StopButton:
            text = tr("Stop (Space)");
            break;
        case DeleteButton:
            text = tr("Delete (Del)");
            break;
        case NoButton:
            break;
        }
    }
    if (text.isEmpty())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), text, view, option.rect);
    return true;
}

} // namespace velmora
