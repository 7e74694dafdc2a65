// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>
#include <QVector>

#include <functional>

namespace velmora
{

/// Keeps back what arrives by itself, such as files from a second start of the program, while a
/// dialog or a menu is open, rows are being dragged or a video is being made: whoever waits for
/// their end relies on the project that is open. GUI thread.
class QuietMoment : public QObject
{
    Q_OBJECT
public:
    using Task = std::function<void()>;

    explicit QuietMoment(QObject *parent);

    /// Runs @p task at once if it is quiet, otherwise later; one after the other, in their order.
    void run(const Task &task);
    void setGenerating(bool generating);
    /// A dialog may have been closed; tasks follow from the event loop.
    void lookSoon() { m_soon.start(0); }

private:
    bool isQuiet() const;
    void look();

    QVector<Task> m_waiting;
    QTimer m_soon;
    bool m_generating = false;
    bool m_inTask = false;
};

} // namespace velmora
