// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>
#include <vector>

namespace velmora
{

class HistoryStore;
class ProjectFile;

/// Takes entries out of the history, their videos to the trash if that is wanted, and undoes the
/// last time it did so. The history file is written each time. GUI thread.
class HistoryRemoval
{
public:
    enum class Videos { Keep, Trash };

    explicit HistoryRemoval(HistoryStore &history);
    ~HistoryRemoval();

    /// Forgets what was removed before. When the history cannot be written, nothing is removed and
    /// the result is false with a reason in @p error.
    bool remove(const QVector<const ProjectFile *> &projects, Videos videos, QString *error);
    /// The videos that could not be moved to the trash; they are where they were.
    const QStringList &keptVideos() const { return m_kept; }

    bool canUndo() const { return !m_removed.empty(); }
    /// How many entries undo() brings back.
    int count() const { return static_cast<int>(m_removed.size()); }
    /// Brings entries and videos back; false as above, and then it can be tried again.
    bool undo(QString *error);
    /// The entries can no longer be brought back.
    void forget();

private:
    struct Removed {
        int position = 0; ///< In the history before the removal.
        std::unique_ptr<ProjectFile> project;
    };

    void putBack();
    void moveToTrash(const QStringList &videos);
    void restoreVideos();

    HistoryStore &m_history;
    std::vector<Removed> m_removed;           ///< Ascending by position.
    QVector<QPair<QString, QString>> m_trash; ///< Where a video was, and where it is in the trash.
    QStringList m_kept;
};

} // namespace velmora
