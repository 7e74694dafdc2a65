// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QHash>
#include <QObject>
#include <QStringList>

#include <memory>

class QThread;

namespace velmora
{

/// Knows which of a project's files do not exist, and notices when one was written anew. The disk
/// is asked on a thread of its own, since a network folder may answer slowly. GUI thread.
class MissingFiles : public QObject
{
    Q_OBJECT
public:
    explicit MissingFiles(QObject *parent = nullptr);
    /// Waits for the file in work.
    ~MissingFiles() override;

    /// Looks for the files anew; changed() or touched() follow if the answer differs from the one
    /// before. A call during a search has it start again.
    void check(const QStringList &files);
    bool isMissing(const QString &file) const;

signals:
    void changed();
    void touched(const QStringList &files); ///< They came back or were written. Before changed().

private:
    using Times = QHash<QString, QDateTime>; ///< Of the last change; invalid: no file.

    void start();
    void end();
    void take(const Times &times);

    std::unique_ptr<QThread> m_thread;
    QStringList m_files; ///< To be looked for next.
    bool m_again = false;
    Times m_found; ///< The thread's while it runs.
    Times m_times; ///< Of all files that were ever looked for.
};

} // namespace velmora
