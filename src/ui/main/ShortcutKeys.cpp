// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/ShortcutKeys.h"

namespace velmora
{

QKeySequence ShortcutKeys::newProject()
{
    return Qt::CTRL + Qt::Key_N;
}

QKeySequence ShortcutKeys::open()
{
    return Qt::CTRL + Qt::Key_O;
}

QKeySequence ShortcutKeys::save()
{
    return Qt::CTRL + Qt::Key_S;
}

QKeySequence ShortcutKeys::saveAs()
{
    return Qt::CTRL + Qt::SHIFT + Qt::Key_S;
}

QKeySequence ShortcutKeys::title()
{
    return Qt::CTRL + Qt::Key_T;
}

QKeySequence ShortcutKeys::addPhoto()
{
    return Qt::CTRL + Qt::Key_I;
}

QKeySequence ShortcutKeys::addFolder()
{
    return Qt::CTRL + Qt::SHIFT + Qt::Key_I;
}

QKeySequence ShortcutKeys::history()
{
    return Qt::CTRL + Qt::Key_H;
}

QKeySequence ShortcutKeys::back()
{
    return Qt::ALT + Qt::Key_Left;
}

QKeySequence ShortcutKeys::settings()
{
    return Qt::CTRL + Qt::Key_Comma;
}

QKeySequence ShortcutKeys::help()
{
    return Qt::Key_F1;
}

QKeySequence ShortcutKeys::fullScreen()
{
    return Qt::Key_F11;
}

QKeySequence ShortcutKeys::quit()
{
    return Qt::CTRL + Qt::Key_Q;
}

QString ShortcutKeys::withKeys(const QString &text, const QKeySequence &keys)
{
    return QStringLiteral("%1 (%2)").arg(text, keys.toString(QKeySequence::NativeText));
}

} // namespace velmora
