// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

namespace velmora
{

/// Where music, silence and fades lie in a sound track. Times in ms unless said otherwise.
struct SoundPlan {
    int skip = 0;       ///< Left out at the music's start, in s.
    qint64 silence = 0; ///< Before the music; never longer than the video.
    qint64 room = 0;    ///< What the silence leaves of the video.
    qint64 music = 0;   ///< What is heard of the music; 0: the track is silent.
    qint64 fade = 0;    ///< Length of each fade; at most half of the music.

    /// @p offset and @p fade in s as the project has them, @p length of the video, @p available
    /// music in all.
    static SoundPlan make(int offset, int fade, qint64 length, qint64 available);
};

} // namespace velmora
