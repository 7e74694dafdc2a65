// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DiscSession.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

namespace velmora
{

/// A drive that can write discs.
struct DiscRecorder {
    QString id;          ///< Unique and stable while the drive is connected.
    QString productId;   ///< The drive's own name.
    QStringList volumes; ///< Where the user finds it: "D:\", "/dev/sr0".
};

/// What lies in a drive.
struct DiscMedia {
    bool present = false;    ///< There is a disc that can be written, erased or added to.
    bool blank = false;      ///< It holds no data.
    bool appendable = false; ///< It holds data and takes a further session.
    bool erasable = false;   ///< It holds data and can be erased.
    /// Room for a new or further session; on a disc that takes none, what it has once it is erased.
    qint64 freeBytes = 0;
    QString volumeName; ///< Of the file system on it; may be empty.
};

/// The system's disc burning service. Any thread; calls wait for each other, and for a session to
/// end. Drives may take seconds to answer, so not on the thread of the windows.
class DiscWriter
{
public:
    virtual ~DiscWriter() = default;
    DiscWriter(const DiscWriter &) = delete;
    DiscWriter &operator=(const DiscWriter &) = delete;

    /// Why this copy of the program can write no disc at all, as a text for the user; empty if it
    /// can.
    virtual QString hindrance() const { return {}; }
    /// The longest beginning of @p title that a disc can be given as its title, with whole
    /// characters. Waits for nothing.
    virtual QString fittingTitle(const QString &title) const = 0;
    /// The connected drives that can write. Those that fail are logged and left out.
    virtual QVector<DiscRecorder> recorders() = 0;
    /// What lies in a drive; nothing is present when it cannot be asked.
    virtual DiscMedia media(const QString &recorderId) = 0;
    /// Takes hold of a drive; null, with a log line, when that fails.
    virtual std::unique_ptr<DiscSession> openSession(const QString &recorderId) = 0;

protected:
    DiscWriter() = default;
};

/// The writer of this system. On Linux the environment variable VELMORA_DISC_IMAGES can name files,
/// separated by colons, that are offered as drives beside the real ones.
std::unique_ptr<DiscWriter> createDiscWriter();

/// Removes what burns have left whose programs were killed; those of running programs are left
/// alone. Any thread.
void removeBurnLeftovers();

} // namespace velmora
