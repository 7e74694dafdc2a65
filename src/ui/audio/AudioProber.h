// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/TaskThread.h"

#include <QObject>
#include <QStringList>
#include <QVector>

#include <atomic>
#include <deque>
#include <functional>
#include <mutex>

namespace velmora
{

/// The music that was found under the paths of one request.
struct AudioImport {
    struct Track {
        QString path; ///< Absolute.
        qint64 milliseconds;
    };
    QVector<Track> tracks; ///< In the order of the paths.
    QStringList refused;   ///< As given, or found in a folder.
};

/// The length of a sound file in ms; -1 when it cannot be used as music. Any thread but the GUI's:
/// reads the file.
qint64 soundDuration(const QString &path);

/// Looks at sound files on a thread of its own, one after another in the order of the requests.
/// GUI thread.
class AudioProber : public QObject
{
    Q_OBJECT
public:
    explicit AudioProber(QObject *parent = nullptr);
    /// Cancels and waits for the file in work.
    ~AudioProber() override;

    /// Files are taken in the order given; folders with their subfolders and in natural order, only
    /// files with the suffixes of music. Ends with found(), in the order of the calls.
    void add(const QStringList &paths);
    /// Ends with measured(). Waits for the paths of add().
    void measure(const QString &path);
    /// Drops the requests of add(); nothing more is told of them.
    void cancelAdding();
    /// Drops all requests.
    void cancel();
    bool isAdding() const { return m_adding > 0; }

signals:
    void progress(int looked); ///< Files of the current add() that were looked at so far.
    void found(const velmora::AudioImport &import);
    void measured(const QString &path, qint64 milliseconds); ///< -1: unreadable.
    void lookedAt(int generation, int looked); ///< From the thread: one more file of an add().

private:
    class Search;

    /// Runs on the thread; what it returns, on the GUI thread unless it was cancelled meanwhile.
    using Request = std::function<TaskThread::Report(int generation)>;

    /// Requests of one kind, guarded by the lock.
    struct Queue {
        std::deque<Request> requests;
        std::atomic_int generation{0}; ///< Another one drops what is in work. Changed under lock.
    };

    void run(Queue *queue, Request request);
    void drop(Queue *queue);
    /// On the thread: the request that comes next.
    TaskThread::Report next();

    int m_adding = 0;
    std::mutex m_mutex;
    Queue m_additions;
    Queue m_measurements;
    TaskThread m_thread; ///< The last member: it uses the others.
};

} // namespace velmora
