// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/TaskThread.h"

#include <QLockFile>
#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

class QSettings;

namespace velmora
{

struct AppSettings;
class ProjectDocument;
class ProjectEditor;
class ProjectFile;

/// Keeps a copy of the open project's unsaved changes in the data folder, so that they survive a
/// crash. Of several processes on one data folder only the first keeps and finds one. GUI thread;
/// the file is written on a thread of its own.
class Autosave : public QObject
{
    Q_OBJECT
public:
    /// What an earlier run left.
    struct Found {
        std::unique_ptr<ProjectFile> project; ///< Null: nothing usable was left.
        QString path;                         ///< The file that it was saved to; may be empty.
    };

    static constexpr int Interval = 30000; ///< ms
    /// The interval in ms that "autosaveSeconds" of @p store sets, otherwise the usual one.
    static int intervalOf(const QSettings &store);

    /// Looks at the project every @p interval ms. The references must outlive the object.
    Autosave(const ProjectDocument &document, ProjectEditor &editor, const QString &dataFolder,
             int interval = Interval);
    /// Waits for what is being written or removed; the file stays unless clear() was called.
    ~Autosave() override;

    /// What is damaged is put aside as "autosave.damaged.json". A file that cannot be read at the
    /// moment stays for the next start, and no copy is kept until then.
    Found find(const AppSettings &settings);
    QString fileName() const { return m_fileName; }
    /// Leaves the file to the next start of the program, as the end of this object does.
    void letGo();

public slots:
    /// Writes the project if it has changed since it was written last.
    void saveNow();
    /// Removes the file: nothing would be lost any more.
    void clear();

private:
    void onDocumentChanged();
    bool isKeeping() const { return m_lock.isLocked() && !m_isUnread; }
    void putAside();

    const ProjectDocument &m_document;
    const QString m_fileName;
    QLockFile m_lock; ///< Held by the process that keeps the file.
    QTimer m_timer;
    TaskThread m_writer; ///< Writing and removing keep their order.
    bool m_changed = false;
    bool m_isUnread = false; ///< The file has what nobody has seen yet.
};

} // namespace velmora
