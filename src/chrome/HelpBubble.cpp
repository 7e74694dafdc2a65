// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/HelpBubble.h"

#include "chrome/Theme.h"

#include <QAbstractButton>
#include <QHelpEvent>
#include <QToolTip>
#include <QVariant>

namespace velmora
{

HelpBubble::HelpBubble(QWidget *control, QAbstractButton *help)
    : QObject(help), m_control(control), m_help(help)
{
    help->setProperty("help", true);
    help->setIcon(Theme::icon(QStringLiteral("help")));
    help->setIconSize({20, 20});
    help->setFixedSize(24, 24);
    help->setFocusPolicy(Qt::TabFocus);
    control->installEventFilter(this);
    help->installEventFilter(this);
    connect(help, &QAbstractButton::clicked, this,
            [this] { show(m_help->mapToGlobal(m_help->rect().bottomLeft()), m_help); });
}

void HelpBubble::setTexts(const QString &name)
{
    const QString text = m_control->toolTip();
    m_control->setAccessibleDescription(text);
    m_help->setToolTip(text);
    m_help->setAccessibleName(tr("Help for %1").arg(name));
    m_help->setAccessibleDescription(text);
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
    QToolTip::showText(
        position, QStringLiteral("<p>%1</p>").arg(m_control->toolTip().toHtmlEscaped()), widget);
}

} // namespace velmora
