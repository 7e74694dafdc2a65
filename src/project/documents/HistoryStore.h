// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/documents/ProjectFile.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

class QByteArray;
class QThread;

namespace velmora
{

struct AppSettings;
class HistoryWriter;

/// The slideshows that the user has produced, oldest first, as whole projects; kept in one JSON
/// file per user (Paths::historyFile()). Changes reach the file only through save() and
/// saveLater(). What a file holds beyond what could be read of it stays in a copy beside it
/// (copyPath()). Not thread-safe: one thread at a time; the projects belong to the thread on which
/// the store was made, whichever loads them.
class HistoryStore
{
public:
    /// Projects do not change any more once they are in the history, so that a thread can write
    /// them while the list goes on changing.
    using Projects = std::vector<std::shared_ptr<const ProjectFile>>;
    /// Gets a reason for the user, empty on success.
    using Done = std::function<void(const QString &error)>;

    /// Larger history files are refused unread, and none larger is written. Bytes.
    static constexpr qint64 kMaximumFileSize = 256LL * 1000 * 1000;

    /// An empty history; @p settings must outlive it.
    HistoryStore(const QString &path, const AppSettings &settings);
    /// Waits for what saveLater() has begun.
    ~HistoryStore();
    HistoryStore(const HistoryStore &) = delete;
    HistoryStore &operator=(const HistoryStore &) = delete;

    /// Replaces the list by the file's. A missing, damaged or foreign file leaves it empty and
    /// unusable projects are left out, each with log lines. False if the file could not be used.
    bool load();
    /// As load(), from the content of a history file.
    bool loadContent(const QByteArray &content);
    /// Replaces the file as a whole or not at all, with its folder if that is missing; false and
    /// a log line on failure, whose text is also put into @p error where given. Blocks.
    bool save(QString *error = nullptr) const;
    /// The same on a thread of its own, with the list as it is now: the last one to be saved is
    /// what the file holds in the end. @p done is called by the event loop, unless @p context is
    /// gone by then.
    void saveLater(QObject *context, Done done);
    /// Waits for what saveLater() has begun.
    void finish() const;

    /// The copy of a file that was not read whole, made before that is replaced.
    QString copyPath() const;

    const Projects &projects() const { return m_projects; }
    /// Appends a project and returns it.
    const ProjectFile *add(std::unique_ptr<ProjectFile> project);
    /// The same at @p position, 0 being the oldest.
    const ProjectFile *insert(int position, std::shared_ptr<const ProjectFile> project);
    /// Takes a project out of the list; null if it is not in it.
    std::shared_ptr<const ProjectFile> take(const ProjectFile *project);
    void clear();

private:
    enum class Unread { Nothing, Part, Everything };

    bool appendProject(const QJsonObject &object);
    QString write(const Projects &projects, int transitionTime) const;
    bool keepCopy(QString *error) const;

    const QString m_path;
    const AppSettings &m_settings;
    QThread *const m_thread;
    Projects m_projects;
    /// What of the file is not in the list. Whoever reads or writes the file uses it, and nobody
    /// else does meanwhile.
    mutable Unread m_unread = Unread::Nothing;
    std::unique_ptr<HistoryWriter> m_writer; ///< From the first saveLater() on.
};

} // namespace velmora
