// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/DeletableLink.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <windows.h>

namespace velmora
{

namespace
{

const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

} // namespace

bool DeletableLink::create(const QString &file)
{
    // A link to a symbolic link would lead to the file itself again.
    const QFileInfo info(QFileInfo(file).canonicalFilePath());
    if (!info.isFile()) {
        m_error = ERROR_FILE_NOT_FOUND;
        return false;
    }
    const QString cache = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
    QDir().mkpath(cache);
    // Links share their attributes: one that is read-only could not be deleted without changing the
    // video.
    const bool mayLink = info.isWritable();
    return (mayLink && createIn(cache, info.filePath(), false)) ||
           (mayLink && createIn(info.path(), info.filePath(), false)) ||
           createIn(cache, info.filePath(), true);
}

bool DeletableLink::createIn(const QString &folder, const QString &file, bool copy)
{
    auto temporary = std::make_unique<QTemporaryDir>(folder + QStringLiteral("/burn-XXXXXX"));
    if (!temporary->isValid()) {
        m_error = ERROR_CANNOT_MAKE;
        return false;
    }
    const QString link = QDir::toNativeSeparators(temporary->filePath(QFileInfo(file).fileName()));
    const QString source = QDir::toNativeSeparators(file);
    const bool made = copy ? CopyFileW(wide(source), wide(link), TRUE)
                           : CreateHardLinkW(wide(link), wide(source), nullptr);
    if (!made) {
        m_error = GetLastError();
        return false;
    }
    m_folder = std::move(temporary);
    m_path = link;
    return true;
}

} // namespace velmora
