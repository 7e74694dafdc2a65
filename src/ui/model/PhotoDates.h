// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QHash>
#include <QObject>
#include <QStringList>

#include <atomic>
#include <memory>

class QThread;

namespace velmora
{

/// Finds out when photos were taken, else when their files were last changed, on a thread of its
/// own. GUI thread; one search at a time.
class PhotoDates : public QObject
{
    Q_OBJECT
public:
    using Dates = QHash<QString, QDateTime>; ///< By file name.

    explicit PhotoDates(QObject *parent = nullptr);
    /// Cancels and waits for the file in work.
    ~PhotoDates() override;

    bool isRunning() const { return m_thread != nullptr; }
    /// False while a search is running.
    bool start(const QStringList &files);
    void cancel() { m_cancelled = true; }

signals:
    void progress(int done, int count);                    ///< Now and then.
    void finished(const QHash<QString, QDateTime> &dates); ///< Or cancelled().
    void cancelled();

private:
    void read(const QStringList &files);
    void end();

    std::unique_ptr<QThread> m_thread;
    std::atomic_bool m_cancelled{false};
    Dates m_dates; ///< The thread's while it runs.
};

} // namespace velmora
