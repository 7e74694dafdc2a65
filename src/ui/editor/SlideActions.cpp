// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/SlideActions.h"

#include "chrome/Theme.h"

#include <QAbstractButton>
#include <QMenu>
#include <QVariant>

namespace velmora
{

SlideActions::SlideActions(QWidget *page) : QObject(page), m_page(page)
{
    constexpr int kCtrlShift = Qt::CTRL + Qt::SHIFT;
    up = add("actUp", tr("Move up"), QStringLiteral("up"), Qt::ALT + Qt::Key_Up);
    down = add("actDown", tr("Move down"), QStringLiteral("down"), Qt::ALT + Qt::Key_Down);
    rotate = add("actRotate", tr("Rotate photo"), QStringLiteral("rotate"), Qt::CTRL + Qt::Key_R);
    rotateBack = add("actRotateBack", tr("Rotate photo to the left"), QStringLiteral("rotate-left"),
                     kCtrlShift + Qt::Key_R);
    shuffle =
        add("actShuffle", tr("Shuffle photos"), QStringLiteral("shuffle"), kCtrlShift + Qt::Key_H);
    sortByName = add("actSortByName", tr("Sort photos by name"), QStringLiteral("AB-down"),
                     kCtrlShift + Qt::Key_N);
    sortByDate = add("actSortByDate", tr("Sort photos by date taken"), QStringLiteral("clock"),
                     kCtrlShift + Qt::Key_D);
    caption = add("actCaption", tr("Edit text"), QStringLiteral("edit"), Qt::Key_F2);
    captionOfAll = add("actCaptionOfAll", tr("Edit text style of all slides"),
                       QStringLiteral("text"), Qt::SHIFT + Qt::Key_F2);
    time = add("actTime", tr("Set time"), QStringLiteral("clock"), Qt::ALT + Qt::Key_1);
    transition = add("actTransition", tr("Set transition"), QStringLiteral("transition"),
                     Qt::ALT + Qt::Key_2);
    preview = add("actPreview", tr("Preview transition"), QStringLiteral("preview"), {});
    relocate =
        add("actRelocate", tr("Relocate..."), QStringLiteral("search"), kCtrlShift + Qt::Key_L);
    restore = add("actRestore", tr("Show the title slide again"), QStringLiteral("restore-title"),
                  kCtrlShift + Qt::Key_U);
    remove = add("actDelete", tr("Delete slides"), QStringLiteral("delete"), Qt::Key_Delete);
    clear = add("actClear", tr("Clear list"), QStringLiteral("clear"), kCtrlShift + Qt::Key_Delete);
}

QAction *SlideActions::add(const char *name, const QString &text, const QString &icon,
                           const QKeySequence &key)
{
    auto *action = new QAction(Theme::icon(icon), text, this);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    action->setToolTip(toolTip(text, key));
    m_page->addAction(action);
    return action;
}

QString SlideActions::toolTip(const QString &text, const QKeySequence &key)
{
    if (key.isEmpty())
        return text;
    return tr("%1 (%2)", "an action and its key").arg(text, key.toString(QKeySequence::NativeText));
}

void SlideActions::bind(QAbstractButton *button, QAction *action)
{
    button->setIcon(action->icon());
    button->setToolTip(action->toolTip());
    button->setAccessibleName(action->text());
    button->setEnabled(action->isEnabled());
    connect(action, &QAction::changed, button,
            [button, action] { button->setEnabled(action->isEnabled()); });
}

void SlideActions::fillContextMenu(QMenu &menu, QMenu *times, QMenu *transitions) const
{
    const QList<QList<QAction *>> groups = {
        {caption, captionOfAll, preview},
        {times->menuAction(), transitions->menuAction(), rotate, rotateBack},
        {up, down},
        {sortByName, sortByDate, shuffle},
        {relocate, restore, remove}};
    for (const QList<QAction *> &group : groups) {
        menu.addSeparator();
        for (QAction *action : group) {
            if (action->isEnabled() || (action != relocate && action != restore))
                menu.addAction(action);
        }
    }
}

} // namespace velmora
