// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLockFile>
#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace velmora
{

/// A second name of a file, which can be deleted while the file stays under its first one. The link
/// is gone at the end at the latest. Where the disk knows no such links, it is a copy.
class DeletableLink
{
public:
    /// The lock file beside a link, which tells that a program still uses it.
    static inline const QLatin1String kLockFile{"burn.lock"};

    /// Makes the link; false when even a copy is impossible, for which lastError() is the reason.
    bool create(const QString &file);

    /// With native separators, and short enough for every function of the system.
    QString path() const { return m_path; }
    /// A code of the system.
    quint32 lastError() const { return m_error; }

    /// Removes the links and copies in the user's cache that programs have left which were killed.
    /// Any thread.
    static void sweep();

private:
    bool createIn(const QString &folder, const QString &file, bool copy);

    std::unique_ptr<QTemporaryDir> m_folder; ///< Takes along what is left in it.
    std::unique_ptr<QLockFile> m_lock;       ///< In the folder.
    QString m_path;
    quint32 m_error = 0;
};

} // namespace velmora
