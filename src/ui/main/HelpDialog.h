// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/CorDialog.h"

class QGridLayout;

namespace velmora
{

/// The built-in help: how a slideshow is made, and every keyboard shortcut. GUI thread.
class HelpDialog : public CorDialog
{
    Q_OBJECT
public:
    /// @p hasManual offers the manual's web page.
    HelpDialog(bool hasManual, QWidget *parent);

signals:
    void manualClicked();

private:
    QWidget *createPage();
    QWidget *createSteps();
    QWidget *createShortcuts();
    QWidget *createButtons(bool hasManual);
};

} // namespace velmora
