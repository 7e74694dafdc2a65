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

HistoryRemoval::HistoryRemoval(HistoryStore &history, QObject *parent)
    : QObject(parent), m_history(history)
{
}

HistoryRemoval::~HistoryRemoval() = default;

void HistoryRemoval::remove(const QVector<const ProjectFile *> &projects, Videos videos)
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
    save([this, videos, files](bool isSaved) {
        if (!isSaved)
            putBack();
        else if (videos == Videos::Trash)
            moveToTrash(files);
    });
}

void HistoryRemoval::save(const std::function<void(bool isSaved)> &then)
{
    m_isSaving = true;
    m_history.saveLater(this, [this, then](const QString &error) {
        m_isSaving = false;
        then(error.isEmpty());
        if (error.isEmpty())
            emit saved();
        else
            emit failed(error);
    });
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

void HistoryRemoval::undo()
{
    std::vector<std::pair<int, const ProjectFile *>> back;
    for (const Removed &removed : m_removed)
        back.emplace_back(removed.position, removed.project.get());
    putBack();
    save([this, back](bool isSaved) {
        if (isSaved) {
            restoreVideos();
            return;
        }
        for (const auto &[position, project] : back)
            m_removed.push_back({position, m_history.take(project)});
    });
}

void HistoryRemoval::forget()
{
    m_removed.clear();
    m_trash.clear();
    m_kept.clear();
}

} // namespace velmora
