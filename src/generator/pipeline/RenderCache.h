// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLockFile>
#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace velmora
{

/// The private cache folder of one render, with "images/" and "video/" in it. Removed with the
/// object; locked until then, see CacheSweeper.
class RenderCache
{
public:
    /// Makes the folder below @p cacheFolder.
    explicit RenderCache(const QString &cacheFolder);

    bool isValid() const { return m_valid; }
    /// Why there is no cache.
    const QString &errorText() const { return m_errorText; }
    QString path() const { return m_folder.path(); }
    QString file(const QString &name) const { return m_folder.filePath(name); }
    /// The wished path, where the folder could not be made.
    const QString &wantedPath() const { return m_template; }

    /// Notes the unfinished video outside of the cache, to be removed should this process die.
    void noteOutput(const QString &temporaryFile) const;

private:
    bool prepare();

    QString m_template;
    QTemporaryDir m_folder;
    std::unique_ptr<QLockFile> m_lock;
    bool m_valid = false;
    QString m_errorText;
};

} // namespace velmora
