// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/ProjectResume.h"

#include "chrome/MessageDialog.h"
#include "project/documents/ProjectFile.h"
#include "project/slides/ProjectItemSimple.h"
#include "ui/UiLog.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace velmora
{

namespace
{

/// Incomplete when @p latest is not @p search any more.
QStringList missingFiles(const QStringList &paths, const std::atomic_int &latest, int search)
{
    QStringList missing;
    for (const QString &path : paths) {
        if (latest != search)
            break;
        if (!QFileInfo(path).isFile())
            missing.append(path);
    }
    return missing;
}

bool wantsToResume(QWidget *window, const QStringList &missing)
{
    enum Button { Cancel, Resume };
    QStringList names;
    for (const QString &path : missing)
        names.append(QDir::toNativeSeparators(path));
    MessageDialog::Message message;
    message.kind = MessageDialog::Kind::Question;
    message.title = ProjectResume::tr("Not all files exist");
    message.text = ProjectResume::tr("Not all files exist, do you want to resume the project?");
    message.details = names.join(QLatin1Char('\n'));
    message.buttons = QStringList{ProjectResume::tr("CANCEL"), ProjectResume::tr("RESUME")};
    message.defaultButton = Resume;
    message.cancelButton = Cancel;
    return MessageDialog::ask(window, message).button == Resume;
}

} // namespace

ProjectResume::ProjectResume(const AppSettings &settings, QWidget *window)
    : m_settings(settings), m_window(window)
{
}

ProjectResume::~ProjectResume()
{
    ++m_search;
}

bool ProjectResume::start(const ProjectFile &entry)
{
    QJsonObject document;
    entry.toJson(document);
    QStringList errors;
    std::unique_ptr<ProjectFile> project = ProjectFile::fromJson(document, m_settings, &errors);
    if (!project) {
        qCWarning(lcUi).noquote() << "Cannot resume" << entry.name() << ':'
                                  << errors.join(QStringLiteral(", "));
        return false;
    }
    cancel();
    m_project = std::move(project);
    const int search = m_search;
    m_searcher.add([this, search, paths = files(*m_project)]() -> TaskThread::Report {
        const QStringList missing = missingFiles(paths, m_search, search);
        return [this, search, missing] {
            if (search != m_search)
                return;
            m_missing = missing;
            m_ready = true;
            emit ready();
        };
    });
    return true;
}

void ProjectResume::cancel()
{
    ++m_search;
    m_ready = false;
    m_project.reset();
}

std::unique_ptr<ProjectFile> ProjectResume::take()
{
    m_ready = false;
    std::unique_ptr<ProjectFile> project = std::move(m_project);
    const QStringList missing = std::exchange(m_missing, {});
    if (!project || missing.isEmpty())
        return project;
    if (!wantsToResume(m_window, missing))
        return nullptr;
    removeFiles(project.get(), missing);
    return project;
}

QStringList ProjectResume::files(const ProjectFile &project)
{
    QStringList paths;
    for (const ProjectItem *slide : project.items()) {
        if (const auto *photo = qobject_cast<const ProjectItemSimple *>(slide))
            paths.append(photo->fileName());
    }
    for (const AudioItem &audio : project.audio().items)
        paths.append(audio.fileName);
    paths.removeDuplicates();
    return paths;
}

void ProjectResume::removeFiles(ProjectFile *project, const QStringList &paths)
{
    const QSet<QString> gone(paths.begin(), paths.end());
    const QVector<ProjectItem *> slides = project->items();
    for (ProjectItem *slide : slides) {
        const auto *photo = qobject_cast<const ProjectItemSimple *>(slide);
        if (photo && gone.contains(photo->fileName()))
            delete project->takeItem(slide);
    }
    AudioItemList audio = project->audio();
    audio.items.erase(
        std::remove_if(audio.items.begin(), audio.items.end(),
                       [&gone](const AudioItem &item) { return gone.contains(item.fileName); }),
        audio.items.end());
    project->setAudio(audio);
}

} // namespace velmora
