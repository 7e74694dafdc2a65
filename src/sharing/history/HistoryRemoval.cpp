// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/history/HistoryRemoval.h"

#include "project/documents/HistoryStore.h"
#include "sharing/SharingLog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <utility>

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

HistoryRemoval::~HistoryRemoval()
{
    m_thread.finish();
}

void HistoryRemoval::remove(const QVector<const ProjectFile *> &projects, Videos videos)
{
    forget();
    ++m_removal;
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
    ++m_tasks;
    m_thread.add([this, videos, removal = m_removal]() -> TaskThread::Report {
        QVector<Trashed> moved;
        QStringList kept;
        for (const QString &video : videos) {
            QString place;
            if (!QFile::exists(video))
                continue;
            if (QFile::moveToTrash(video, &place)) {
                moved.append({video, place});
                continue;
            }
            qCWarning(lcSharing).noquote() << "Cannot be moved to the trash:" << video;
            kept.append(video);
        }
        return [this, moved, kept, removal] {
            --m_tasks;
            if (removal == m_removal && !m_removed.empty())
                m_trash = moved;
            emit trashed(kept);
        };
    });
}

void HistoryRemoval::putBack()
{
    for (Removed &removed : m_removed)
        m_history.insert(removed.position, std::move(removed.project));
    m_removed.clear();
}

void HistoryRemoval::restoreVideos()
{
    if (m_trash.isEmpty())
        return;
    ++m_tasks;
    m_thread.add([this, trash = std::exchange(m_trash, {})]() -> TaskThread::Report {
        QStringList lost;
        for (const auto &[video, place] : trash) {
            // A new video of that name stays; the old one is still in the trash.
            if (!place.isEmpty() && QFile::rename(place, video)) {
                QFile::remove(trashNote(place));
                continue;
            }
            qCWarning(lcSharing).noquote() << "Cannot be taken out of the trash:" << video;
            lost.append(video);
        }
        return [this, lost] {
            --m_tasks;
            emit restored(lost);
        };
    });
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
}

} // namespace velmora
