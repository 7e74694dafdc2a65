// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/TaskThread.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <memory>
#include <vector>

namespace velmora
{

class HistoryStore;
class ProjectFile;

/// Takes entries out of the history, their videos to the trash if that is wanted, and undoes the
/// last time it did so. The list changes at once; the history file is written on a thread, and the
/// videos follow on another. GUI thread.
class HistoryRemoval : public QObject
{
    Q_OBJECT
public:
    enum class Videos { Keep, Trash };

    explicit HistoryRemoval(HistoryStore &history, QObject *parent = nullptr);
    /// Waits for the videos that are on their way.
    ~HistoryRemoval() override;

    /// Forgets what was removed before. Not while isSaving().
    void remove(const QVector<const ProjectFile *> &projects, Videos videos);
    /// Between a change and its saved() or failed().
    bool isSaving() const { return m_isSaving; }

    /// Not while the file is written or videos are on their way.
    bool canUndo() const { return !m_isSaving && !m_removed.empty() && m_tasks == 0; }
    /// How many entries undo() brings back.
    int count() const { return static_cast<int>(m_removed.size()); }
    /// Brings entries and videos back. While canUndo().
    void undo();
    /// The entries can no longer be brought back. Not while isSaving().
    void forget();

signals:
    /// The history is written. Where videos go along, trashed() or restored() follows.
    void saved();
    /// The history could not be written: the list is as it was before.
    void failed(const QString &error);
    /// The videos are in the trash, but for the files @p kept, which are where they were.
    void trashed(const QStringList &kept);
    /// The videos are back, but for the files @p lost, which are in the trash.
    void restored(const QStringList &lost);

private:
    struct Removed {
        int position = 0; ///< In the history before the removal.
        std::shared_ptr<const ProjectFile> project;
    };
    struct Trashed {
        QString video; ///< Where it was.
        QString place; ///< In the trash; empty where the trash does not tell.
    };

    void save(const std::function<void(bool isSaved)> &then);
    void putBack();
    void moveToTrash(const QStringList &videos);
    void restoreVideos();

    HistoryStore &m_history;
    std::vector<Removed> m_removed; ///< Ascending by position.
    QVector<Trashed> m_trash;       ///< Of the entries in m_removed.
    int m_removal = 0;              ///< Counts the times that something was removed.
    bool m_isSaving = false;
    int m_tasks = 0; ///< On the thread.
    TaskThread m_thread;
};

} // namespace velmora
