// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/CorWindow.h"

namespace velmora
{

/// A window with every control of the program's look, on two pages.
class Gallery : public CorWindow
{
    Q_OBJECT
public:
    Gallery();

    /// A message dialog as it looks; ownership goes to the caller.
    static QWidget *createMessage(QWidget *parent);

private:
    static QWidget *createButtons();
    static QWidget *createFields();
    static QWidget *createTables();
    static QWidget *createStart();
};

} // namespace velmora
