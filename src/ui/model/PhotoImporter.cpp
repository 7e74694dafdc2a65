// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/model/PhotoImporter.h"

#include "platform/ShortcutResolver.h"
#include "project/documents/MediaSuffixes.h"
#include "project/images/ImageLoader.h"
#include "ui/UiLog.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QThread>

#include <filesystem>

namespace velmora
{

namespace
{

/// Whether the files of a folder can be found.
bool isOpen(const QFileInfo &folder)
{
    // Permissions do not tell everything, and QDir takes a closed folder for an empty one.
    std::error_code problem;
    const auto path = std::filesystem::u8path(folder.absoluteFilePath().toStdString());
    const std::filesystem::directory_iterator entries(path, problem);
    return !problem;
}

} // namespace

PhotoImporter::PhotoImporter(QObject *parent) : QObject(parent) {}

PhotoImporter::~PhotoImporter()
{
    cancel();
    if (m_thread)
        m_thread->wait();
}

bool PhotoImporter::start(const QStringList &paths, int row)
{
    if (isRunning())
        return false;
    m_cancelled = false;
    m_import = PhotoImport();
    m_import.row = row;
    m_looked = 0;
    m_thread.reset(QThread::create([this, paths] { search(paths); }));
    connect(m_thread.get(), &QThread::finished, this, &PhotoImporter::end);
    m_thread->start(QThread::LowPriority);
    return true;
}

void PhotoImporter::end()
{
    m_thread->wait();
    m_thread.release()->deleteLater(); // its signal led here
    m_import.cancelled = m_cancelled;
    const PhotoImport import = std::move(m_import);
    emit finished(import);
}

void PhotoImporter::search(const QStringList &paths)
{
    for (const QString &path : paths) {
        if (m_cancelled)
            return;
        const QString target = resolveShortcut(path);
        if (target != path)
            qCDebug(lcUi) << "File" << path << "is shortcut";
        if (target.isEmpty() || !QFileInfo::exists(target))
            m_import.refused.append({path, tr("does not exist")});
        else if (QFileInfo(target).isDir())
            searchFolder(target);
        else if (!isPhotoPath(target))
            m_import.refused.append({path, tr("is not a photo")});
        else
            look(QFileInfo(target).absoluteFilePath());
    }
}

void PhotoImporter::searchFolder(const QString &folder)
{
    if (!isOpen(QFileInfo(folder))) {
        m_import.refused.append({folder, tr("cannot be read")});
        return;
    }
    // Links to folders are not followed, so a search always ends.
    QStringList photos;
    bool isComplete = true;
    QDirIterator entries(QFileInfo(folder).absoluteFilePath(),
                         QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext() && !m_cancelled) {
        const QString path = entries.next();
        const QFileInfo info = entries.fileInfo();
        if (info.isFile() && isPhotoPath(path)) {
            photos.append(path);
        } else if (info.isDir() && !info.isSymLink() && !isOpen(info)) {
            m_import.refused.append({path, tr("cannot be read")});
            isComplete = false;
        }
    }
    if (photos.isEmpty() && isComplete && !m_cancelled)
        m_import.refused.append({folder, tr("holds no photos")});
    sortByFolder(&photos);
    for (const QString &path : qAsConst(photos)) {
        if (m_cancelled)
            return;
        look(path);
    }
}

void PhotoImporter::look(const QString &path)
{
    constexpr int kReportEvery = 10; // photos
    const QString problem = ImageLoader::checkEnd(path);
    if (problem.isEmpty())
        m_import.photos.append(path);
    else
        m_import.refused.append({path, problem});
    if (++m_looked % kReportEvery == 0)
        emit progress(m_looked);
}

} // namespace velmora
