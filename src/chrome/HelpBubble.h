// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QAbstractButton;
class QWidget;

namespace velmora
{

/// Shows the long tooltips of settings in lines of a readable length, and at once when a "?" button
/// is pressed. GUI thread.
class HelpBubble : public QObject
{
    Q_OBJECT
public:
    HelpBubble(QWidget *control, QAbstractButton *help);

    /// @p help takes its tooltip from the control, and its accessible name from @p name, the
    /// control's label. To be called again after a change of the language.
    void setTexts(const QString &name);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void show(const QPoint &position, QWidget *widget) const;

    QWidget *m_control;
    QAbstractButton *m_help;
};

} // namespace velmora
