// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/Autosave.h"

#include "app/Paths.h"
#include "project/documents/JsonFile.h"
#include "project/documents/ProjectFile.h"
#include "ui/UiLog.h"
#include "ui/main/ProjectDocument.h"
#include "ui/model/ProjectEditor.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
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
    letGo();
}

void Autosave::letGo()
{
    m_timer.stop();
    m_writer.finish();
    m_lock.unlock();
}

int Autosave::intervalOf(const QSettings &store)
{
    constexpr int kSecond = 1000;  // ms
    constexpr int kLongest = 3600; // s
    const int seconds = store.value(QStringLiteral("autosaveSeconds")).toInt();
    return seconds > 0 && seconds <= kLongest ? seconds * kSecond : Interval;
}

Autosave::Found Autosave::find(const AppSettings &settings)
{
    QByteArray content;
    QString error;
    const QFileInfo file(m_fileName);
    if (!m_lock.isLocked() || !file.exists())
        return {};
    if (!JsonFile::readAll(m_fileName, ProjectFile::kMaximumFileSize, &content, &error)) {
        qCWarning(lcUi).noquote() << "Cannot read the unsaved changes:" << error;
        m_isUnread = file.isFile() && file.size() <= ProjectFile::kMaximumFileSize;
        if (!m_isUnread)
            putAside();
        return {};
    }
    const QJsonObject object = QJsonDocument::fromJson(content).object();
    Found found;
    found.project = ProjectFile::fromJson(object.value(kProject).toObject(), settings);
    found.path = object.value(kPath).toString();
    if (!found.project)
        putAside();
    return found;
}

void Autosave::putAside()
{
    const QFileInfo file(m_fileName);
    const QString damaged = file.dir().filePath(QStringLiteral("autosave.damaged.json"));
    qCWarning(lcUi).noquote() << "The unsaved changes of an earlier run are damaged, see"
                              << damaged;
    QFile::remove(damaged);
    if (!QFile::rename(m_fileName, damaged))
        qCWarning(lcUi).noquote() << "Cannot rename" << m_fileName;
}

void Autosave::saveNow()
{
    // What is typed into a caption is not told.
    const bool changed = m_changed || m_document.hasUnsavedText();
    if (!changed || !isKeeping() || !m_document.isModified())
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
    if (!isKeeping())
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
