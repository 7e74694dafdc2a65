// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/history/HistoryRemoval.h"

#include "project/documents/HistoryStore.h"
#include "sharing/SharingLog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace velmora
{

namespace
{

/// The note that the trash of the desktop keeps about a file in it.
QString trashNote(const QString &trashed)
{
    const QFileInfo file(trashed);
    return QDir(file.absolutePath())
        .absoluteFilePath(QStringLiteral("../info/%1.trashinfo").arg(file.fileName()));
}

} // namespace

HistoryRemoval::HistoryRemoval(HistoryStore &history) : m_history(history) {}

HistoryRemoval::~HistoryRemoval() = default;

bool HistoryRemoval::remove(const QVector<const ProjectFile *> &projects, Videos videos,
                            QString *error)
{
    forget();
    QStringList files;
    const auto &all = m_history.projects();
    std::vector<std::pair<int, const ProjectFile *>> found;
    for (size_t i = 0; i < all.size(); ++i) {
        if (projects.contains(all[i].get()))
            found.emplace_back(static_cast<int>(i), all[i].get());
    }
    for (const auto &[position, project] : found) {
        files.append(project->fileName());
        m_removed.push_back({position, m_history.take(project)});
    }
    if (!m_history.save(error)) {
        putBack();
        return false;
    }
    if (videos == Videos::Trash)
        moveToTrash(files);
    return true;
}

void HistoryRemoval::moveToTrash(const QStringList &videos)
{
    for (const QString &video : videos) {
        QString trashed;
        if (!QFile::exists(video))
            continue;
        if (QFile::moveToTrash(video, &trashed)) {
            m_trash.append({video, trashed});
            continue;
        }
        qCWarning(lcSharing).noquote() << "Cannot be moved to the trash:" << video;
        m_kept.append(video);
    }
}

void HistoryRemoval::putBack()
{
    for (Removed &removed : m_removed)
        m_history.insert(removed.position, std::move(removed.project));
    m_removed.clear();
}

void HistoryRemoval::restoreVideos()
{
    for (const auto &[video, trashed] : qAsConst(m_trash)) {
        // A new video of that name stays; the old one is still in the trash.
        if (trashed.isEmpty() || !QFile::rename(trashed, video))
            qCWarning(lcSharing).noquote() << "Cannot be taken out of the trash:" << video;
        else
            QFile::remove(trashNote(trashed));
    }
    m_trash.clear();
}

bool HistoryRemoval::undo(QString *error)
{
    std::vector<std::pair<int, const ProjectFile *>> back;
    for (const Removed &removed : m_removed)
        back.emplace_back(removed.position, removed.project.get());
    putBack();
    if (m_history.save(error)) {
        restoreVideos();
        return true;
    }
    for (const auto &[position, project] : back)
        m_removed.push_back({position, m_history.take(project)});
    return false;
}

void HistoryRemoval::forget()
{
    m_removed.clear();
    m_trash.clear();
    m_kept.clear();
}

} // namespace velmora
