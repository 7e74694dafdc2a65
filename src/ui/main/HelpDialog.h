// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/CorDialog.h"

#include <QList>

class QAction;

namespace velmora
{

/// The built-in help: how a slideshow is made, and every keyboard shortcut. GUI thread.
class HelpDialog : public CorDialog
{
    Q_OBJECT
public:
    /// Lists those actions that have keys. @p hasManual offers the manual's web page.
    HelpDialog(const QList<QAction *> &windowActions, const QList<QAction *> &editorActions,
               bool hasManual, QWidget *parent);

signals:
    void manualClicked();

private:
    static QWidget *createSteps();
    static QWidget *createShortcuts(const QList<QAction *> &windowActions,
                                    const QList<QAction *> &editorActions);
    QWidget *createButtons(bool hasManual);
};

} // namespace velmora
