// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <atomic>
#include <functional>

namespace velmora
{

/// Told how far an operation is; both values have the unit of the system's burning service. Called
/// on the thread that burns.
using DiscProgress = std::function<void(int current, int total)>;

/// One burn on one drive, which it keeps for itself from its creation to its destruction. The steps
/// are called in the order below, each once at most, on the thread that created the session; a step
/// that fails logs "'%1' failed, result: '%2'" and ends the burn. Nothing reaches the disc before
/// erase() and write(). The video is only read, and whatever happens it stays as it is.
class DiscSession
{
public:
    virtual ~DiscSession() = default;
    DiscSession(const DiscSession &) = delete;
    DiscSession &operator=(const DiscSession &) = delete;

    /// Erases a disc quickly. Cannot be cancelled.
    virtual bool erase(const DiscProgress &progress) = 0;
    /// Logs the media status and refuses discs that cannot be written ("Invalid media type").
    virtual bool checkMedia() = 0;
    /// Makes the file system to be written: the files that are on the disc, if it holds some, and
    /// the video under @p fileName in the root folder. A name that is taken is given a number.
    virtual bool createImage(const QString &video, const QString &fileName,
                             const QString &volumeName) = 0;
    /// Settles how the image is written; with @p finalize the disc takes no further session
    /// afterwards.
    virtual bool finishImage(bool finalize) = 0;
    /// Logs "Burn writing" and writes the image. Returns early, with failure, once @p cancelled is
    /// set.
    virtual bool write(const DiscProgress &progress, const std::atomic_bool &cancelled) = 0;

protected:
    DiscSession() = default;
};

} // namespace velmora
