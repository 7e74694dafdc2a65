// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/Autosave.h"

#include "app/Paths.h"
#include "project/documents/JsonFile.h"
#include "project/documents/ProjectFile.h"
#include "ui/UiLog.h"
#include "ui/main/ProjectDocument.h"
#include "ui/model/ProjectEditor.h"

#include <QFile>
#include <QJsonDocument>
#include <QSettings>
#include <QUndoStack>

namespace velmora
{

namespace
{

const QLatin1String kPath("path");
const QLatin1String kProject("project");

QString lockFile(const QString &folder)
{
    Paths::ensureFolder(folder);
    return folder + QStringLiteral("/autosave.lock");
}

bool write(const QString &fileName, const QJsonObject &content)
{
    QString error;
    const QByteArray text = QJsonDocument(content).toJson(QJsonDocument::Compact);
    const bool written = JsonFile::write(fileName, text, &error);
    if (!written)
        qCWarning(lcUi).noquote() << "Cannot keep the unsaved changes:" << error;
    return written;
}

} // namespace

Autosave::Autosave(const ProjectDocument &document, ProjectEditor &editor,
                   const QString &dataFolder, int interval)
    : m_document(document), m_fileName(dataFolder + QStringLiteral("/autosave.json")),
      m_lock(lockFile(dataFolder))
{
    // A lock never grows old: only the end of its process frees it.
    m_lock.setStaleLockTime(0);
    if (!m_lock.tryLock()) {
        qCInfo(lcUi) << "Another process keeps the unsaved changes of its project here";
        return;
    }
    connect(editor.undoStack(), &QUndoStack::indexChanged, this, [this] { m_changed = true; });
    connect(&document, &ProjectDocument::replaced, this, [this] { m_changed = true; });
    connect(&document, &ProjectDocument::stateChanged, this, &Autosave::onDocumentChanged);
    connect(&m_timer, &QTimer::timeout, this, &Autosave::saveNow);
    m_timer.start(interval);
}

Autosave::~Autosave()
{
    m_writer.finish();
}

int Autosave::intervalOf(const QSettings &store)
{
    constexpr int kSecond = 1000;  // ms
    constexpr int kLongest = 3600; // s
    const int seconds = store.value(QStringLiteral("autosaveSeconds")).toInt();
    return seconds > 0 && seconds <= kLongest ? seconds * kSecond : Interval;
}

Autosave::Found Autosave::find(const AppSettings &settings) const
{
    QByteArray content;
    QString error;
    if (!m_lock.isLocked() || !QFile::exists(m_fileName))
        return {};
    if (!JsonFile::readAll(m_fileName, ProjectFile::kMaximumFileSize, &content, &error)) {
        qCWarning(lcUi).noquote() << "Cannot read the unsaved changes:" << error;
        return {};
    }
    const QJsonObject object = QJsonDocument::fromJson(content).object();
    Found found;
    found.project = ProjectFile::fromJson(object.value(kProject).toObject(), settings);
    found.path = object.value(kPath).toString();
    if (!found.project)
        qCWarning(lcUi) << "The unsaved changes of an earlier run are damaged";
    return found;
}

void Autosave::saveNow()
{
    // What is typed into a caption is not told.
    const bool changed = m_changed || m_document.hasUnsavedText();
    if (!changed || !m_lock.isLocked() || !m_document.isModified())
        return;
    m_changed = false;
    QJsonObject project;
    m_document.toJson(project);
    const QJsonObject content = {{kPath, m_document.path()}, {kProject, project}};
    m_writer.add([this, content]() -> TaskThread::Report {
        const bool written = write(m_fileName, content);
        return [this, written] {
            // The next look tries again.
            if (!written)
                m_changed = true;
        };
    });
}

void Autosave::clear()
{
    m_changed = false;
    if (!m_lock.isLocked())
        return;
    m_writer.add([this]() -> TaskThread::Report {
        QFile::remove(m_fileName);
        return [] {};
    });
}

void Autosave::onDocumentChanged()
{
    if (!m_document.isModified())
        clear();
}

} // namespace velmora
