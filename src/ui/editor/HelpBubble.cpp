// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/HelpBubble.h"

#include "chrome/Theme.h"

#include <QAbstractButton>
#include <QHelpEvent>
#include <QToolTip>
#include <QVariant>

namespace velmora
{

HelpBubble::HelpBubble(QWidget *control, QAbstractButton *help, const QString &name)
    : QObject(help), m_text(control->toolTip())
{
    help->setProperty("help", true);
    help->setIcon(Theme::icon(QStringLiteral("help")));
    help->setIconSize({20, 20});
    help->setFixedSize(24, 24);
    help->setFocusPolicy(Qt::TabFocus);
    help->setToolTip(m_text);
    help->setAccessibleName(tr("Help for %1").arg(name));
    help->setAccessibleDescription(m_text);
    control->setAccessibleDescription(m_text);
    control->installEventFilter(this);
    help->installEventFilter(this);
    connect(help, &QAbstractButton::clicked, this,
            [this, help] { show(help->mapToGlobal(help->rect().bottomLeft()), help); });
}

bool HelpBubble::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QObject::eventFilter(watched, event);
    show(static_cast<QHelpEvent *>(event)->globalPos(), qobject_cast<QWidget *>(watched));
    return true;
}

void HelpBubble::show(const QPoint &position, QWidget *widget) const
{
    // Only rich text is broken into lines.
    QToolTip::showText(position, QStringLiteral("<p>%1</p>").arg(m_text.toHtmlEscaped()), widget);
}

} // namespace velmora
