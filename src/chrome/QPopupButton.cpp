// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/QPopupButton.h"

#include "chrome/Theme.h"

#include <QKeyEvent>
#include <QMenu>
#include <QStyleOptionButton>
#include <QStylePainter>

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

/// The style sheet would draw a left-aligned text without padding, and not elide it.
void QPopupButton::paintEvent(QPaintEvent *)
{
    constexpr int kMargin = 12; // px
    constexpr int kArrow = 16;  // px
    QStyleOptionButton option;
    initStyleOption(&option);
    const QString text = option.text;
    option.features &= ~QStyleOptionButton::ButtonFeatures(QStyleOptionButton::HasMenu);
    option.text.clear();
    option.icon = {};
    QStylePainter painter(this);
    painter.drawControl(QStyle::CE_PushButton, option);

    const QRect arrow(width() - kArrow - 8, (height() - kArrow) / 2, kArrow, kArrow);
    const QRect area = rect().adjusted(kMargin, 0, arrow.left() - 4 - width(), 0);
    constexpr int kFlags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic;
    style()->drawItemText(&painter, visualRect(area), kFlags, option.palette, isEnabled(),
                          fontMetrics().elidedText(text, Qt::ElideRight, area.width()),
                          QPalette::ButtonText);
    Theme::icon(isEnabled() ? QStringLiteral("arrow-down") : QStringLiteral("arrow-down-disabled"))
        .paint(&painter, visualRect(arrow));
}

QRect QPopupButton::visualRect(const QRect &area) const
{
    return QStyle::visualRect(layoutDirection(), rect(), area);
}

} // namespace velmora
