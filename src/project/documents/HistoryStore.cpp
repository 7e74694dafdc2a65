// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/documents/HistoryStore.h"

#include "app/AppSettings.h"
#include "project/ProjectLog.h"
#include "project/documents/HistoryWriter.h"
#include "project/documents/JsonFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QThread>

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
    : m_path(path), m_settings(settings), m_thread(QThread::currentThread())
{
}

HistoryStore::~HistoryStore() = default;

void HistoryStore::finish() const
{
    if (m_writer) {
        m_writer->finish();
    }
}

QString HistoryStore::copyPath() const
{
    return m_path + QStringLiteral(".bak");
}

bool HistoryStore::load()
{
    finish();
    m_projects.clear();
    QByteArray content;
    QString reason;
    m_unread = QFileInfo(m_path).isFile() ? Unread::Everything : Unread::Nothing;
    if (!JsonFile::readAll(m_path, kMaximumFileSize, &content, &reason)) {
        qCWarning(lcProject).noquote()
            << QStringLiteral("Open file '%1' failed:'%2'").arg(m_path, reason);
        return false;
    }
    qCInfo(lcProject).noquote() << QStringLiteral("Open history file '%1' [OK]").arg(m_path);
    m_unread = Unread::Part;
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
    bool isWhole = history.value(kProjects).isArray();
    for (const QJsonValue &project : projects) {
        isWhole = appendProject(project.toObject()) && isWhole;
    }
    if (isWhole) {
        m_unread = Unread::Nothing;
    }
    return true;
}

bool HistoryStore::appendProject(const QJsonObject &object)
{
    QStringList errors;
    std::unique_ptr<ProjectFile> project = ProjectFile::fromJson(object, m_settings, &errors);
    if (project) {
        project->moveToThread(m_thread);
        m_projects.push_back(std::move(project));
        return true;
    }
    for (const QString &error : qAsConst(errors)) {
        qCWarning(lcProject).noquote()
            << QStringLiteral("Failed to parse history, error field: '%1'").arg(error);
    }
    qCWarning(lcProject).noquote() << QStringLiteral("Parse history file '%1' failed").arg(m_path);
    return false;
}

bool HistoryStore::save(QString *error) const
{
    finish();
    const QString reason = write(m_projects, m_settings.transitionTime);
    if (error && !reason.isEmpty()) {
        *error = reason;
    }
    return reason.isEmpty();
}

void HistoryStore::saveLater(QObject *context, Done done)
{
    if (!m_writer) {
        m_writer = std::make_unique<HistoryWriter>();
    }
    const int transitionTime = m_settings.transitionTime;
    m_writer->add(
        [this, projects = m_projects, transitionTime] { return write(projects, transitionTime); },
        context, std::move(done));
}

/// Writes the file; a reason for the user on failure.
QString HistoryStore::write(const Projects &projects, int transitionTime) const
{
    QJsonArray array;
    for (const auto &project : projects) {
        QJsonObject object;
        project->toJson(object, transitionTime);
        array.append(object);
    }
    const QJsonDocument document(
        QJsonObject{{kVersion, QString(kCurrentVersion)}, {kProjects, array}});
    const QByteArray content = document.toJson(QJsonDocument::Compact);
    QString reason;
    if (content.size() > kMaximumFileSize) {
        // It could not be read back, and the file on disk still can.
        reason = QCoreApplication::translate("HistoryStore", "The history has become too large.");
    } else if (keepCopy(&reason)) {
        // If the folder cannot be made, writing fails and says why.
        QDir().mkpath(QFileInfo(m_path).absolutePath());
        if (JsonFile::write(m_path, content, &reason)) {
            return QString();
        }
    }
    qCCritical(lcProject).noquote()
        << QStringLiteral("Save file '%1' failed:'%2'").arg(m_path, reason);
    return reason;
}

/// Copies a file that was not read whole; false with a reason when that fails.
bool HistoryStore::keepCopy(QString *error) const
{
    if (m_unread == Unread::Nothing) {
        return true;
    }
    QFile file(m_path);
    QFile::remove(copyPath());
    // What cannot be read cannot be copied either.
    const bool isKept =
        m_unread == Unread::Everything ? file.rename(copyPath()) : file.copy(copyPath());
    if (!isKept) {
        *error = file.errorString();
        return false;
    }
    m_unread = Unread::Nothing;
    qCWarning(lcProject).noquote()
        << QStringLiteral("History file '%1' kept as '%2'").arg(m_path, copyPath());
    return true;
}

const ProjectFile *HistoryStore::add(std::unique_ptr<ProjectFile> project)
{
    m_projects.push_back(std::move(project));
    return m_projects.back().get();
}

const ProjectFile *HistoryStore::insert(int position, std::shared_ptr<const ProjectFile> project)
{
    const int count = static_cast<int>(m_projects.size());
    const auto place = m_projects.begin() + qBound(0, position, count);
    return m_projects.insert(place, std::move(project))->get();
}

std::shared_ptr<const ProjectFile> HistoryStore::take(const ProjectFile *project)
{
    const auto found =
        std::find_if(m_projects.begin(), m_projects.end(),
                     [project](const auto &candidate) { return candidate.get() == project; });
    if (found == m_projects.end()) {
        return nullptr;
    }
    std::shared_ptr<const ProjectFile> taken = std::move(*found);
    m_projects.erase(found);
    return taken;
}

void HistoryStore::clear()
{
    m_projects.clear();
}

} // namespace velmora
