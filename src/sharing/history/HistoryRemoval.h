// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPair>
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
/// last time it did so. The list changes at once; the history file is written each time, and
/// saved() or failed() follows. GUI thread.
class HistoryRemoval : public QObject
{
    Q_OBJECT
public:
    enum class Videos { Keep, Trash };

    explicit HistoryRemoval(HistoryStore &history, QObject *parent = nullptr);
    ~HistoryRemoval() override;

    /// Forgets what was removed before. Not while isSaving().
    void remove(const QVector<const ProjectFile *> &projects, Videos videos);
    /// Between a change and its saved() or failed().
    bool isSaving() const { return m_isSaving; }
    /// The videos that could not be moved to the trash; they are where they were.
    const QStringList &keptVideos() const { return m_kept; }

    bool canUndo() const { return !m_isSaving && !m_removed.empty(); }
    /// How many entries undo() brings back.
    int count() const { return static_cast<int>(m_removed.size()); }
    /// Brings entries and videos back. While canUndo().
    void undo();
    /// The entries can no longer be brought back. Not while isSaving().
    void forget();

signals:
    /// The history is written, and the videos have been moved.
    void saved();
    /// The history could not be written: the list is as it was before.
    void failed(const QString &error);

private:
    struct Removed {
        int position = 0; ///< In the history before the removal.
        std::shared_ptr<const ProjectFile> project;
    };

    void save(const std::function<void(bool isSaved)> &then);
    void putBack();
    void moveToTrash(const QStringList &videos);
    void restoreVideos();

    HistoryStore &m_history;
    std::vector<Removed> m_removed;           ///< Ascending by position.
    QVector<QPair<QString, QString>> m_trash; ///< Where a video was, and where it is in the trash.
    QStringList m_kept;
    bool m_isSaving = false;
};

} // namespace velmora
