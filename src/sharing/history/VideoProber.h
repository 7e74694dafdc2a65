// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/TaskThread.h"
#include "sharing/history/VideoFacts.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QStringList>

#include <atomic>

namespace velmora
{

/// Learns about video files on a thread of its own, and keeps what it has learnt until the file
/// changes. GUI thread.
class VideoProber : public QObject
{
    Q_OBJECT
public:
    explicit VideoProber(QObject *parent = nullptr);
    /// Gives up a look in work and waits for the file that it is at.
    ~VideoProber() override;

    /// Looks for all files; looked() follows. Earlier looks that have not been reported are given
    /// up.
    void look(const QStringList &fileNames);
    /// Reads a video's duration; probed() follows, unless that was asked for before.
    void probe(const QString &fileName);
    /// The duration found by probe() for the file as @p facts describe it; -1 as long as there is
    /// none.
    qint64 duration(const QString &fileName, const VideoFacts &facts) const;

signals:
    void looked(const QHash<QString, VideoFacts> &facts);
    /// @p facts are those of the file that was read, or show that it is gone.
    void probed(const QString &fileName, const VideoFacts &facts);

private:
    struct Probe {
        VideoFacts facts;
        qint64 duration = 0;
    };

    void onProbed(const QString &fileName, const VideoFacts &facts, qint64 duration);

    QHash<QString, Probe> m_probes;
    QSet<QString> m_asked;
    std::atomic_int m_look{0}; ///< The number of the latest look; another one ends it.
    TaskThread m_thread;       ///< One disk, one reader. The last member: it uses the number.
};

} // namespace velmora
