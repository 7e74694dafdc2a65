// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/documents/ProjectFile.h"

#include <QString>

#include <memory>
#include <vector>

class QByteArray;

namespace velmora
{

struct AppSettings;

/// The slideshows that the user has produced, oldest first, as whole projects; kept in one JSON
/// file per user (Paths::historyFile()). Changes reach the file only through save(). Owns its
/// projects. Not thread-safe: one thread at a time.
class HistoryStore
{
public:
    using Projects = std::vector<std::unique_ptr<ProjectFile>>;

    /// Larger history files are refused unread, and none larger is written. Bytes.
    static constexpr qint64 kMaximumFileSize = 256LL * 1000 * 1000;

    /// An empty history; @p settings must outlive it.
    HistoryStore(const QString &path, const AppSettings &settings);
    ~HistoryStore();
    HistoryStore(const HistoryStore &) = delete;
    HistoryStore &operator=(const HistoryStore &) = delete;

    /// Replaces the list by the file's. A missing, damaged or foreign file leaves it empty and
    /// unusable projects are left out, each with log lines. False if the file could not be used.
    bool load();
    /// As load(), from the content of a history file.
    bool loadContent(const QByteArray &content);
    /// Replaces the file as a whole or not at all, with its folder if that is missing; false and
    /// a log line on failure, whose text is also put into @p error where given.
    bool save(QString *error = nullptr) const;

    const Projects &projects() const { return m_projects; }
    /// Appends a project and returns it.
    ProjectFile *add(std::unique_ptr<ProjectFile> project);
    /// The same at @p position, 0 being the oldest.
    ProjectFile *insert(int position, std::unique_ptr<ProjectFile> project);
    /// Takes a project out of the list; null if it is not in it.
    std::unique_ptr<ProjectFile> take(const ProjectFile *project);
    void clear();

private:
    void appendProject(const QJsonObject &object);

    QString m_path;
    const AppSettings &m_settings;
    Projects m_projects;
};

} // namespace velmora
