// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>
#include <QTimer>

class QLabel;
class QProgressBar;
class QPushButton;

namespace velmora
{

/// A line that tells of a job going on in the background, with a button to cancel it. A short one
/// does not show it. Jobs that may go on at the same time have a note each. GUI thread.
class BusyNote : public QFrame
{
    Q_OBJECT
public:
    explicit BusyNote(QWidget *parent = nullptr);

    /// Work began; the note appears a moment later.
    void begin(const QString &text);
    /// @p count 0: unknown.
    void setProgress(const QString &text, int done, int count);
    void end();

signals:
    void cancelClicked();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    QLabel *m_text;
    QProgressBar *m_bar;
    QPushButton *m_cancel;
    QTimer m_delay;
};

} // namespace velmora
