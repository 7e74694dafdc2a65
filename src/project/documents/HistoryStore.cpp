// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/documents/HistoryStore.h"

#include "app/AppSettings.h"
#include "project/ProjectLog.h"
#include "project/documents/JsonFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace velmora
{

namespace
{

const QLatin1String kVersion("version");
const QLatin1String kProjects("projects");
const QLatin1String kCurrentVersion("1.0");

} // namespace

HistoryStore::HistoryStore(const QString &path, const AppSettings &settings)
    : m_path(path), m_settings(settings)
{
}

HistoryStore::~HistoryStore() = default;

bool HistoryStore::load()
{
    m_projects.clear();
    QByteArray content;
    QString reason;
    if (!JsonFile::readAll(m_path, kMaximumFileSize, &content, &reason)) {
        qCWarning(lcProject).noquote()
            << QStringLiteral("Open file '%1' failed:'%2'").arg(m_path, reason);
        return false;
    }
    qCInfo(lcProject).noquote() << QStringLiteral("Open history file '%1' [OK]").arg(m_path);
    return loadContent(content);
}

bool HistoryStore::loadContent(const QByteArray &content)
{
    m_projects.clear();
    const QJsonDocument document = QJsonDocument::fromJson(content);
    if (document.isNull()) {
        qCWarning(lcProject).noquote()
            << QStringLiteral("Parse json from file '%1' failed").arg(m_path);
        return false;
    }
    const QJsonObject history = document.object();
    if (history.value(kVersion).toString() != kCurrentVersion) {
        qCWarning(lcProject).noquote()
            << QStringLiteral("Invalid history version in file '%1'").arg(m_path);
        return false;
    }
    const QJsonArray projects = history.value(kProjects).toArray();
    m_projects.reserve(static_cast<size_t>(projects.size()));
    for (const QJsonValue &project : projects) {
        appendProject(project.toObject());
    }
    return true;
}

void HistoryStore::appendProject(const QJsonObject &object)
{
    QStringList errors;
    std::unique_ptr<ProjectFile> project = ProjectFile::fromJson(object, m_settings, &errors);
    if (project) {
        m_projects.push_back(std::move(project));
        return;
    }
    for (const QString &error : qAsConst(errors)) {
        qCWarning(lcProject).noquote()
            << QStringLiteral("Failed to parse history, error field: '%1'").arg(error);
    }
    qCWarning(lcProject).noquote() << QStringLiteral("Parse history file '%1' failed").arg(m_path);
}

bool HistoryStore::save(QString *error) const
{
    QJsonArray projects;
    for (const auto &project : m_projects) {
        QJsonObject object;
        project->toJson(object);
        projects.append(object);
    }
    const QJsonDocument document(
        QJsonObject{{kVersion, QString(kCurrentVersion)}, {kProjects, projects}});
    const QByteArray content = document.toJson(QJsonDocument::Compact);
    QString reason;
    if (content.size() > kMaximumFileSize) {
        // It could not be read back, and the file on disk still can.
        reason = QCoreApplication::translate("HistoryStore", "The history has become too large.");
    } else {
        // If the folder cannot be made, writing fails and says why.
        QDir().mkpath(QFileInfo(m_path).absolutePath());
        if (JsonFile::write(m_path, content, &reason)) {
            return true;
        }
    }
    qCCritical(lcProject).noquote()
        << QStringLiteral("Save file '%1' failed:'%2'").arg(m_path, reason);
    if (error) {
        *error = reason;
    }
    return false;
}

ProjectFile *HistoryStore::add(std::unique_ptr<ProjectFile> project)
{
    m_projects.push_back(std::move(project));
    return m_projects.back().get();
}

ProjectFile *HistoryStore::insert(int position, std::unique_ptr<ProjectFile> project)
{
    const int count = static_cast<int>(m_projects.size());
    const auto place = m_projects.begin() + qBound(0, position, count);
    return m_projects.insert(place, std::move(project))->get();
}

std::unique_ptr<ProjectFile> HistoryStore::take(const ProjectFile *project)
{
    const auto found =
        std::find_if(m_projects.begin(), m_projects.end(),
                     [project](const auto &candidate) { return candidate.get() == project; });
    if (found == m_projects.end()) {
        return nullptr;
    }
    std::unique_ptr<ProjectFile> taken = std::move(*found);
    m_projects.erase(found);
    return taken;
}

void HistoryStore::clear()
{
    m_projects.clear();
}

} // namespace velmora
