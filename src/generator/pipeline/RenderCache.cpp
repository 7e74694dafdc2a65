// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/RenderCache.h"

#include "app/Paths.h"
#include "generator/GeneratorLog.h"
#include "generator/pipeline/CacheSweeper.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

namespace velmora
{

namespace
{

/// The template of the folder's name, after its parents were made.
QString makeTemplate(const QString &cacheFolder)
{
    Paths::ensureFolder(cacheFolder);
    return QDir(cacheFolder)
        .absoluteFilePath(QString(CacheSweeper::kFolderPrefix) + QStringLiteral("XXXXXX"));
}

/// Why nothing can be made in @p folder; that it is not there would only be a consequence.
QString folderFault(const QString &folder, const QString &consequence)
{
    std::error_code failure;
    std::filesystem::create_directories(std::filesystem::u8path(folder.toStdString()), failure);
    return failure ? QString::fromStdString(failure.message()) : consequence;
}

} // namespace

RenderCache::RenderCache(const QString &cacheFolder)
    : m_template(makeTemplate(cacheFolder)), m_folder(m_template)
{
    m_folder.setAutoRemove(true);
    m_valid = prepare();
}

void RenderCache::noteOutput(const QString &temporaryFile) const
{
    QFile note(file(CacheSweeper::kOutputNote));
    const QByteArray text = temporaryFile.toUtf8();
    if (!note.open(QIODevice::WriteOnly) || note.write(text) != text.size())
        qCWarning(generatorLog) << "The unfinished video could not be noted:" << note.errorString();
}

bool RenderCache::prepare()
{
    if (!m_folder.isValid()) {
        m_errorText = folderFault(QFileInfo(m_template).path(), m_folder.errorString());
        return false;
    }
    m_lock = std::make_unique<QLockFile>(file(CacheSweeper::kLockFile));
    m_lock->setStaleLockTime(0);
    const QDir folder(m_folder.path());
    if (m_lock->tryLock(0) && folder.mkpath(QStringLiteral("images")) &&
        folder.mkpath(QStringLiteral("video")))
        return true;
    m_errorText = qt_error_string();
    return false;
}

} // namespace velmora
