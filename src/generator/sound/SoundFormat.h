// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVector>

namespace velmora
{

class MediaFileInfo;

/// What decides whether sound files can be joined by copying.
struct SoundFormat {
    QString container; ///< FFmpeg's short names.
    QString codec;
    int sampleRate = 0; ///< Hz
    int channels = 0;

    static SoundFormat of(const MediaFileInfo &info);
    /// True for WAV with 44.1 kHz, stereo, 16 bit.
    bool isNormal() const;
    friend bool operator==(const SoundFormat &a, const SoundFormat &b)
    {
        return a.container == b.container && a.codec == b.codec && a.sampleRate == b.sampleRate &&
               a.channels == b.channels;
    }
};

/// True when all files are plain WAV of one and the same usual form.
bool canJoinAsTheyAre(const QVector<SoundFormat> &formats);

} // namespace velmora
