// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/QPopupButton.h"

#include <QKeyEvent>
#include <QMenu>

#include <algorithm>

namespace velmora
{

namespace
{

/// A text as it is, where "&" would mark a keyboard shortcut.
QString plain(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

QPopupButton::QPopupButton(QWidget *parent) : QPushButton(parent), m_menu(new QMenu(this))
{
    setProperty("popup", true);
    setAutoDefault(false);
    setMenu(m_menu);
    connect(m_menu, &QMenu::triggered, this, [this](QAction *action) { select(action->data()); });
    connect(m_menu, &QMenu::aboutToShow, this, &QPopupButton::showCurrent);
}

void QPopupButton::setValues(const Values &values)
{
    m_values = values;
    m_menu->clear();
    for (const auto &entry : values) {
        QAction *action = m_menu->addAction(plain(entry.first));
        action->setData(entry.second);
        action->setCheckable(true);
    }
    if (m_value.isValid())
        setValue(m_value);
}

void QPopupButton::setValue(const QVariant &value, const QString &text)
{
    m_value = value;
    const auto found = std::find_if(m_values.cbegin(), m_values.cend(),
                                    [&value](const auto &entry) { return entry.second == value; });
    if (found != m_values.cend())
        setText(plain(found->first));
    else
        setText(plain(text.isEmpty() ? value.toString() : text));
}

/// Marks the current value and puts the keyboard on it.
void QPopupButton::showCurrent()
{
    m_menu->setMinimumWidth(width());
    const QList<QAction *> actions = m_menu->actions();
    for (QAction *action : actions) {
        action->setChecked(action->data() == m_value);
        if (action->isChecked())
            m_menu->setActiveAction(action);
    }
}

void QPopupButton::select(const QVariant &value)
{
    setValue(value);
    emit valueSelected(value);
}

void QPopupButton::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
    case Qt::Key_F4:
        showMenu();
        return;
    default:
        QPushButton::keyPressEvent(event);
    }
}

} // namespace velmora
