// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QSet>
#include <QStringList>

#include <memory>

class QThread;

namespace velmora
{

/// Knows which of a project's files do not exist. The disk is asked on a thread of its own, since
/// a network folder may answer slowly. GUI thread.
class MissingFiles : public QObject
{
    Q_OBJECT
public:
    explicit MissingFiles(QObject *parent = nullptr);
    /// Waits for the file in work.
    ~MissingFiles() override;

    /// Looks for the files anew; changed() follows if the answer differs from the one before. A
    /// call during a search has it start again.
    void check(const QStringList &files);
    bool isMissing(const QString &file) const { return m_missing.contains(file); }

signals:
    void changed();

private:
    void start();
    void end();

    std::unique_ptr<QThread> m_thread;
    QStringList m_files; ///< To be looked for next.
    bool m_again = false;
    QSet<QString> m_found; ///< The thread's while it runs.
    QSet<QString> m_missing;
};

} // namespace velmora
