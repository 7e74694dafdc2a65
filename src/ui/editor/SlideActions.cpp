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
    up = add("actUp", QT_TR_NOOP("Move up"), QStringLiteral("up"), Qt::ALT + Qt::Key_Up);
    down = add("actDown", QT_TR_NOOP("Move down"), QStringLiteral("down"), Qt::ALT + Qt::Key_Down);
    rotate = add("actRotate", QT_TR_NOOP("Rotate photo"), QStringLiteral("rotate"),
                 Qt::CTRL + Qt::Key_R);
    rotateBack = add("actRotateBack", QT_TR_NOOP("Rotate photo to the left"),
                     QStringLiteral("rotate-left"), kCtrlShift + Qt::Key_R);
    shuffle = add("actShuffle", QT_TR_NOOP("Shuffle photos"), QStringLiteral("shuffle"),
                  kCtrlShift + Qt::Key_H);
    sortByName = add("actSortByName", QT_TR_NOOP("Sort photos by name"), QStringLiteral("AB-down"),
                     kCtrlShift + Qt::Key_N);
    sortByDate = add("actSortByDate", QT_TR_NOOP("Sort photos by date taken"),
                     QStringLiteral("clock"), kCtrlShift + Qt::Key_D);
    caption = add("actCaption", QT_TR_NOOP("Edit text"), QStringLiteral("edit"), Qt::Key_F2);
    captionOfAll = add("actCaptionOfAll", QT_TR_NOOP("Edit text style of all slides"),
                       QStringLiteral("text"), Qt::SHIFT + Qt::Key_F2);
    time = add("actTime", QT_TR_NOOP("Set time"), QStringLiteral("clock"), Qt::ALT + Qt::Key_1);
    transition = add("actTransition", QT_TR_NOOP("Set transition"), QStringLiteral("transition"),
                     Qt::ALT + Qt::Key_2);
    preview = add("actPreview", QT_TR_NOOP("Preview transition"), QStringLiteral("preview"), {});
    relocate = add("actRelocate", QT_TR_NOOP("Relocate..."), QStringLiteral("search"),
                   kCtrlShift + Qt::Key_L);
    restore = add("actRestore", QT_TR_NOOP("Show the title slide again"),
                  QStringLiteral("restore-title"), kCtrlShift + Qt::Key_U);
    remove =
        add("actDelete", QT_TR_NOOP("Delete slides"), QStringLiteral("delete"), Qt::Key_Delete);
    clear = add("actClear", QT_TR_NOOP("Clear list"), QStringLiteral("clear"),
                kCtrlShift + Qt::Key_Delete);
    retranslate();
}

QAction *SlideActions::add(const char *name, const char *text, const QString &icon,
                           const QKeySequence &key)
{
    auto *action = new QAction(Theme::icon(icon), QString(), this);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_texts.append({action, text});
    m_page->addAction(action);
    return action;
}

void SlideActions::retranslate()
{
    for (const auto &entry : qAsConst(m_texts)) {
        const QString text = tr(entry.second);
        entry.first->setText(text);
        entry.first->setToolTip(toolTip(text, entry.first->shortcut()));
    }
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
    const auto follow = [button, action] {
        button->setEnabled(action->isEnabled());
        button->setToolTip(action->toolTip());
        button->setAccessibleName(action->text());
    };
    follow();
    connect(action, &QAction::changed, button, follow);
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
