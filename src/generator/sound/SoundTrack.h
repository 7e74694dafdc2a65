// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/encoding/VideoUtil.h"
#include "project/documents/AudioItemList.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace velmora
{

struct SoundPlan;

/// Makes the one sound track of a video from the project's music, step by step, each leaving its
/// file behind. Runs programs and waits for them; one thread.
class SoundTrack
{
    Q_DECLARE_TR_FUNCTIONS(velmora::SoundTrack)
public:
    /// @p folder takes the converted music, the folder "video" of @p cachePath the track.
    SoundTrack(VideoUtil &util, const QString &cachePath, const QString &folder);

    /// Offset and fade in s, length of the video in ms. Returns the track's path, empty with
    /// errorText() on failure. The track is never longer than the video; music shorter than the
    /// video, or than the offset, is no failure.
    QString prepare(const AudioItemList &list, int offset, int fade, int length);
    /// Names the music file where one is the reason.
    const QString &errorText() const { return m_errorText; }
    VideoUtil::Failure failure() const { return m_failure; }

private:
    bool convertAll(const AudioItemList &list, QStringList &files);
    bool convert(const QString &source, int index, QString &file);
    bool normaliseWhereNeeded(const QStringList &sources, QStringList &files);
    bool join(const QStringList &files, const QString &joined);
    bool cutAndFade(const QString &joined, const SoundPlan &plan);
    bool prependSilence(qint64 length);
    bool run(const QStringList &arguments, const QString &output);
    bool move(const QString &from, const QString &to);
    bool fail(const QString &reason);
    bool failWithTool(); ///< For the reason of the last run.
    bool failToRead(const QString &source, const QString &reason);
    /// Blames @p source unless the last run ended for a reason that has nothing to do with it.
    bool failToConvert(const QString &source);
    QString trackFile(const char *name) const;

    VideoUtil &m_util;
    QString m_cachePath;
    QString m_folder;
    QString m_errorText;
    VideoUtil::Failure m_failure = VideoUtil::Failure::None;
};

} // namespace velmora
