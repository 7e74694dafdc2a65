// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/TaskThread.h"

#include <QObject>
#include <QStringList>

#include <atomic>
#include <memory>

class QWidget;

namespace velmora
{

struct AppSettings;
class ProjectFile;

/// Turns an entry of the history into a project to go on with: looks which of its photos and sound
/// files are gone, off the GUI thread, and then asks whether to do without them. GUI thread; one at
/// a time.
class ProjectResume : public QObject
{
    Q_OBJECT
public:
    /// The question is shown above @p window.
    ProjectResume(const AppSettings &settings, QWidget *window);
    /// Gives up a search in work and waits for the file that it looks at.
    ~ProjectResume() override;

    /// Copies @p entry and looks for its files; ready() follows. False if the entry cannot be read.
    /// A search in work is given up.
    bool start(const ProjectFile &entry);
    /// Forgets what start() began with, without a ready().
    void cancel();
    /// Whether take() has something to give: ready() was the last that happened.
    bool isReady() const { return m_ready; }
    /// The project of ready(), less the missing files; null if the user does not want to go on
    /// without those.
    std::unique_ptr<ProjectFile> take();

    /// The photos and sound files of a project, each path once.
    static QStringList files(const ProjectFile &project);
    /// Takes the slides and sound files with these paths out of a project.
    static void removeFiles(ProjectFile *project, const QStringList &paths);

signals:
    void ready(); ///< The files were looked for.

private:
    const AppSettings &m_settings;
    QWidget *m_window;
    std::unique_ptr<ProjectFile> m_project;
    QStringList m_missing; ///< Of the project that is ready.
    bool m_ready = false;
    std::atomic_int m_search{0}; ///< The number of the latest search; another one ends it.
    TaskThread m_searcher;       ///< The last member: it uses the number.
};

} // namespace velmora
