// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/QTextEditEx.h"

#include <QKeyEvent>

namespace velmora
{

QTextEditEx::QTextEditEx(QWidget *parent) : QTextEdit(parent)
{
    setAcceptRichText(false);
    setTabChangesFocus(true);
}

void QTextEditEx::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && event->modifiers().testFlag(Qt::ControlModifier))
        emit accepted();
    else
        QTextEdit::keyPressEvent(event);
}

} // namespace velmora
