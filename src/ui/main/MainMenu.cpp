// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/MainMenu.h"

#include "chrome/Theme.h"
#include "ui/main/ShortcutKeys.h"

#include <QEvent>

namespace velmora
{

namespace
{

QAction *createAction(QWidget *window, const char *name, const QKeySequence &keys,
                      const char *icon = nullptr)
{
    auto *action = new QAction(window);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(keys);
    if (icon)
        action->setIcon(Theme::icon(QLatin1String(icon)));
    window->addAction(action);
    return action;
}

} // namespace

MainMenu::MainMenu(QWidget *window)
    : QToolButton(window),
      newProject(createAction(window, "actNew", ShortcutKeys::newProject(), "photo")),
      open(createAction(window, "actOpen", ShortcutKeys::open(), "folder-open")),
      save(createAction(window, "actSave", ShortcutKeys::save(), "save")),
      saveAs(createAction(window, "actSaveAs", ShortcutKeys::saveAs())),
      title(createAction(window, "actTitle", ShortcutKeys::title(), "text")),
      addPhoto(createAction(window, "actAddPhoto", ShortcutKeys::addPhoto(), "add-photo")),
      addFolder(createAction(window, "actAddFolder", ShortcutKeys::addFolder(), "add-folder")),
      history(createAction(window, "actHistory", ShortcutKeys::history(), "history")),
      back(createAction(window, "actBack", ShortcutKeys::back())),
      settings(createAction(window, "actSettings", ShortcutKeys::settings(), "settings")),
      fullScreen(createAction(window, "actFullScreen", ShortcutKeys::fullScreen(), "fullscreen")),
      help(createAction(window, "actHelp", ShortcutKeys::help(), "help")),
      shortcuts(createAction(window, "actShortcuts", {})),
      site(createAction(window, "actSite", {}, "link-out")),
      quit(createAction(window, "actQuit", ShortcutKeys::quit()))
{
    setObjectName(QStringLiteral("btnMenu"));
    setIcon(Theme::icon(QStringLiteral("menu")));
    setIconSize({16, 16});
    setFixedSize(36, 28);
    setAutoRaise(true);
    setPopupMode(QToolButton::InstantPopup);
    m_menu.setObjectName(QStringLiteral("mainMenu"));
    m_menu.addActions({newProject, open, save, saveAs, title});
    m_menu.addSeparator();
    m_menu.addActions({addPhoto, addFolder});
    m_menu.addSeparator();
    m_menu.addActions({history, settings, fullScreen});
    m_menu.addSeparator();
    m_menu.addActions({help, shortcuts, site});
    m_menu.addSeparator();
    m_menu.addAction(quit);
    setMenu(&m_menu);
    retranslate();
    updateActions();
}

void MainMenu::setProjectOpen(bool isOpen)
{
    m_projectOpen = isOpen;
    updateActions();
}

void MainMenu::setGenerating(bool generating)
{
    m_generating = generating;
    updateActions();
}

void MainMenu::setTextEditing(bool editing)
{
    m_textEditing = editing;
    updateActions();
}

void MainMenu::updateActions()
{
    for (QAction *action : {newProject, open, history, settings})
        action->setEnabled(!m_generating);
    for (QAction *action : {save, saveAs, title})
        action->setEnabled(m_projectOpen && !m_generating);
    for (QAction *action : {addPhoto, addFolder})
        action->setEnabled(!m_generating && !m_textEditing);
}

void MainMenu::retranslate()
{
    newProject->setText(tr("New slideshow"));
    open->setText(tr("Open..."));
    save->setText(tr("Save"));
    saveAs->setText(tr("Save as..."));
    title->setText(tr("Set video title..."));
    addPhoto->setText(tr("Add Photo"));
    addFolder->setText(tr("Add Folder"));
    history->setText(tr("History"));
    back->setText(tr("Back"));
    settings->setText(tr("Settings"));
    fullScreen->setText(tr("Full screen"));
    help->setText(tr("Help"));
    shortcuts->setText(tr("Keyboard shortcuts"));
    site->setText(tr("Home page"));
    quit->setText(tr("Quit"));
    setToolTip(tr("Menu"));
    setAccessibleName(tr("Menu"));
}

void MainMenu::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QToolButton::changeEvent(event);
}

} // namespace velmora
