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
    /// @p help takes its tooltip from @p control, and its accessible name from @p name, the label
    /// of the control.
    HelpBubble(QWidget *control, QAbstractButton *help, const QString &name);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void show(const QPoint &position, QWidget *widget) const;

    QString m_text;
};

} // namespace velmora
