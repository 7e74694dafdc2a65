// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QVector>

namespace velmora
{

/// The frames of one slide in a player's ring.
struct FrameBuffer {
    struct Frame {
        QImage picture;      ///< Null until it is delivered, and again once it was shown or passed.
        double start = 0;    ///< ms
        double duration = 0; ///< ms
    };
    QVector<Frame> frames;
    int slide = -1;    ///< Whose frames these are; -1: nobody's.
    int delivered = 0; ///< The first so many frames were delivered.
    int expected = 0;  ///< So many must have been delivered for the clock to go on; 1 at least.

    bool isComplete() const { return delivered >= expected; }
    /// The first frame that ends after @p position ms; -1 when all have ended.
    int frameAt(double position) const
    {
        for (int i = 0; i < frames.size(); ++i) {
            if (frames.at(i).start + frames.at(i).duration > position)
                return i;
        }
        return -1;
    }
};

} // namespace velmora
