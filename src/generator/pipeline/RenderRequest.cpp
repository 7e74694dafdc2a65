// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/RenderRequest.h"

#include "app/AppSettings.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace velmora
{

namespace
{

constexpr int kLongestTransition = 600; // s

/// The project reader leaves "transition_time" to the render.
int transitionSecondsOf(const QString &path, int fallback)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fallback;
    const QJsonObject document = QJsonDocument::fromJson(file.readAll()).object();
    return document.value(QLatin1String("transition_time")).toInt(fallback);
}

} // namespace

bool RenderRequest::load(const QString &path, const AppSettings &settings, QString *error)
{
    project = ProjectFile::loadFromFile(path, settings, error);
    if (!project)
        return false;
    transitionSeconds =
        qBound(1, transitionSecondsOf(path, settings.transitionTime), kLongestTransition);
    parallel = settings.speedGeneration;
    profile = outputProfileFromKey(settings.outputProfile);
    return true;
}

} // namespace velmora
