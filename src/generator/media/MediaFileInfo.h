// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <memory>

namespace velmora
{

class MediaFileInfoPrivate;

/// Facts about a media file, read in process with libavformat. Any thread; construction reads the
/// file and may block on a slow disk, so not on the GUI thread. Unreadable files yield zeros.
class MediaFileInfo
{
public:
    explicit MediaFileInfo(const QString &path);
    ~MediaFileInfo();
    MediaFileInfo(const MediaFileInfo &) = delete;
    MediaFileInfo &operator=(const MediaFileInfo &) = delete;

    bool isValid() const;
    QString errorText() const; ///< Plain reason when not valid.
    qint64 duration() const;   ///< ms; 0 when unknown.
    bool hasAudio() const;
    bool hasVideo() const; ///< Cover art does not count.
    int audioChannels() const;
    int audioSampleRate() const;        ///< Hz
    QString audioChannelLayout() const; ///< As FFmpeg writes it: "mono", "stereo", "5.1".
    QString audioCodecName() const;     ///< Short: "mp3", "pcm_s16le".
    QString audioCodecLongName() const; ///< In words, for the log.
    QString containerName() const;      ///< FFmpeg's short name: "wav", "mp3".

private:
    std::unique_ptr<MediaFileInfoPrivate> d;
};

} // namespace velmora
