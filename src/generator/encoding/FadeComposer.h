// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/encoding/JpegBlocks.h"
#include "generator/transitions/Fade.h"

#include <QString>

#include <array>

class QImage;

namespace velmora
{

class FrameWriter;

/// Makes the frames of fades out of the blocks of their pictures. Keeps the blocks of the last two
/// pictures, which serve all frames of a fade; one object per thread.
class FadeComposer
{
public:
    /// The frame of a fade between two pictures of one size. Null, with a plain reason in @p error,
    /// when a picture cannot be compressed; valid until the next call.
    const JpegBlocks *compose(const Fade &fade, const QImage &from, const QImage &to,
                              FrameWriter &writer, QString *error);

private:
    struct Kept {
        qint64 key = 0; ///< of the picture; the colours have keys below 0
        JpegBlocks blocks;
    };
    const Kept *find(qint64 key, const QSize &size) const;

    std::array<Kept, 2> m_kept;
    JpegBlocks m_frame;
};

} // namespace velmora
