// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/RenderRequest.h"

#include "app/AppSettings.h"
#include "project/documents/JsonFile.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace velmora
{

namespace
{

constexpr int kLongestTransition = 600; // s

const QLatin1String kTransitionTime("transition_time");
const QLatin1String kProfile("output_profile");
const QLatin1String kParallel("speed_generation");

QJsonObject documentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

} // namespace

bool RenderRequest::load(const QString &path, const AppSettings &settings, QString *error)
{
    project = ProjectFile::loadFromFile(path, settings, error);
    if (!project)
        return false;
    // The project reader leaves these to the render.
    const QJsonObject document = documentOf(path);
    transitionSeconds = qBound(1, document.value(kTransitionTime).toInt(settings.transitionTime),
                               kLongestTransition);
    parallel = document.value(kParallel).toBool(settings.speedGeneration);
    profile = outputProfileFromKey(document.value(kProfile).toString(settings.outputProfile));
    return true;
}

bool RenderRequest::save(const ProjectFile &project, const AppSettings &settings,
                         const QString &path, QString *error)
{
    QJsonObject document;
    project.toJson(document);
    document.insert(kTransitionTime, settings.transitionTime);
    document.insert(kProfile, outputProfileKey(outputProfileFromKey(settings.outputProfile)));
    document.insert(kParallel, settings.speedGeneration);
    return JsonFile::write(path, QJsonDocument(document).toJson(QJsonDocument::Indented), error);
}

} // namespace velmora
