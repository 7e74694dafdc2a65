// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVector>

namespace velmora
{

struct AudioItem {
    QString fileName; ///< Absolute path.
    QString duration; ///< The duration text that the audio list shows.
    friend bool operator==(const AudioItem &a, const AudioItem &b)
    {
        return a.fileName == b.fileName && a.duration == b.duration;
    }
};

/// The project's audio files in play order, with the start offset in seconds. A positive offset
/// skips that much of the joined music, a negative one puts that much silence before it.
struct AudioItemList {
    QVector<AudioItem> items;
    int offset = 0;
};

} // namespace velmora
