// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAction>
#include <QMenu>
#include <QToolButton>

namespace velmora
{

/// The actions of the main window with their shortcuts, and the menu button of the title bar that
/// lists them. The button is a child of the title bar; the actions work without it. GUI thread.
class MainMenu : public QToolButton
{
    Q_OBJECT
public:
    /// The shortcuts are those of @p window.
    explicit MainMenu(QWidget *window);

    // In the order of the menu.
    QAction *const newProject;
    QAction *const open;
    QAction *const save;
    QAction *const saveAs;
    QAction *const title;
    QAction *const addPhoto;
    QAction *const addFolder;
    QAction *const history;
    QAction *const back; ///< Only a shortcut.
    QAction *const settings;
    QAction *const fullScreen;
    QAction *const help;
    QAction *const shortcuts;
    QAction *const site;
    QAction *const quit;

    /// Without a slideshow there is nothing to save or to name. None is open at first.
    void setProjectOpen(bool isOpen);
    /// During a render nothing may change the project or leave the editor page.
    void setGenerating(bool generating);
    /// While a caption is edited no photos are added.
    void setTextEditing(bool editing);

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void updateActions();

    QMenu m_menu;
    bool m_projectOpen = false;
    bool m_generating = false;
    bool m_textEditing = false;
};

} // namespace velmora
