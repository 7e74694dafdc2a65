// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/pipeline/RenderError.h"

#include <QLockFile>
#include <QString>
#include <QStringList>

#include <memory>

namespace velmora
{

/// The video to be made: written under a hidden temporary name in its own folder and renamed when
/// complete, so that an older video of that name stays whole until then. Holds a lock, so that no
/// second render writes the same video. The temporary file is removed with the object. One thread
/// at a time.
class OutputTarget
{
public:
    OutputTarget() = default;
    ~OutputTarget();
    OutputTarget(const OutputTarget &) = delete;
    OutputTarget &operator=(const OutputTarget &) = delete;

    /// Chooses the container: by the suffix of @p fileName where that is a known one, else by
    /// @p format, whose suffix is then appended to the name. Checks that the folder can be written,
    /// takes the lock (below @p lockFolder, which all renders of a user share) and removes what
    /// killed renders of this video left. Writes to the disk, so not on the GUI thread.
    RenderError prepare(const QString &fileName, const QString &format, const QString &lockFolder);

    const QString &fileName() const { return m_fileName; }   ///< Absolute path of the video.
    const QString &extension() const { return m_extension; } ///< Lower case, without a dot.
    const QString &temporaryFile() const { return m_temporaryFile; }

    /// Puts the finished temporary file in place. When that is not possible, for example while a
    /// player has the older video open, it is kept beside it under a free name, which the error
    /// then tells.
    RenderError commit();
    /// Removes the temporary file, if any, and gives up the lock.
    void release();

    /// The suffixes of the containers that can be written, in lower case, without a dot.
    static const QStringList &knownSuffixes();
    /// Whether a file name is one that a render gives to unfinished videos.
    static bool isTemporaryName(const QString &name);

private:
    void chooseName(const QString &fileName, const QString &format);
    RenderError checkName() const;
    RenderError tryWriting() const;
    RenderError lock(const QString &lockFolder);
    void removeStrays() const;
    QString keepUnderFreeName();

    QString m_fileName;
    QString m_extension;
    QString m_folder;
    QString m_temporaryStem; ///< The temporary name up to its random part.
    QString m_temporaryFile;
    std::unique_ptr<QLockFile> m_lock;
};

} // namespace velmora
