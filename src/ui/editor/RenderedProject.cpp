// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/RenderedProject.h"

#include "app/AppSettings.h"
#include "app/Paths.h"
#include "generator/pipeline/RenderRequest.h"
#include "project/documents/HistoryStore.h"
#include "project/documents/Timeline.h"

#include <QFile>

namespace velmora
{

RenderedProject::~RenderedProject()
{
    removeRequest();
}

RenderedProject::Writer RenderedProject::begin(const ProjectFile &project,
                                               const AppSettings &settings, const QString &name)
{
    m_request = QStringLiteral("%1/%2.json").arg(Paths::cacheFolder(), name);
    m_project = QJsonObject();
    project.toJson(m_project);
    m_videoLength = Timeline::ofProject(project, settings.transitionTime).totalLength();
    return [document = m_project, settings, path = m_request](QString *error) {
        *error = tr("The folder %1 cannot be made.").arg(Paths::cacheFolder());
        if (!Paths::ensureFolder(Paths::cacheFolder()))
            return false;
        QStringList problems;
        const std::unique_ptr<ProjectFile> taken =
            ProjectFile::fromJson(document, settings, &problems);
        *error = problems.join(QStringLiteral(", "));
        return taken && RenderRequest::save(*taken, settings, path, error);
    };
}

void RenderedProject::removeRequest()
{
    if (!m_request.isEmpty())
        QFile::remove(m_request);
    m_request.clear();
}

bool RenderedProject::isSameAs(const ProjectFile &project) const
{
    QJsonObject now;
    project.toJson(now);
    return now == m_project;
}

void RenderedProject::keepIn(HistoryStore &history, const AppSettings &settings,
                             const QString &fileName, QObject *context,
                             const std::function<void(const QString &error)> &done) const
{
    QStringList problems;
    std::unique_ptr<ProjectFile> entry = ProjectFile::fromJson(m_project, settings, &problems);
    if (!entry) {
        done(problems.join(QStringLiteral(", ")));
        return;
    }
    entry->setFileName(fileName);
    history.add(std::move(entry));
    history.saveLater(context, done);
}

} // namespace velmora
