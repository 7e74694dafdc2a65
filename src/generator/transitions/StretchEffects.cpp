// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/StretchEffects.h"

#include "generator/transitions/Easing.h"
#include "generator/transitions/PixelRows.h"
#include "generator/transitions/ReducedPicture.h"

#include <algorithm>
#include <cmath>

namespace velmora
{

namespace
{

/// How often a side can be halved before it gets smaller than it is shown.
int halvings(int pixels, double shown)
{
    int level = 0;
    while (level < ReducedPicture::kMaxLevel && pixels >> (level + 1) >= shown)
        ++level;
    return level;
}

/// A position in a side of a picture that is squeezed into a part of the frame, in 1/65536 pixel
/// of a source that was halved @p level times.
struct Squeeze {
    Squeeze(int pixels, double begin, double end, int level)
        : step(pixels / std::max(end - begin, 1e-3) / (1 << level)), start(begin)
    {
    }
    qint64 at(double place) const
    {
        return static_cast<qint64>(std::floor(((place + 0.5 - start) * step - 0.5) * 65536));
    }
    double step;
    double start;
};

/// Squeezes the whole picture into the columns between @p begin and @p end.
void squeezeColumns(const TargetArea &target, const SourceArea &picture, double begin, double end)
{
    const int first = static_cast<int>(std::lround(begin));
    const int last = static_cast<int>(std::lround(end));
    if (first >= last)
        return;
    const ReducedPicture reduced(picture, halvings(picture.width, end - begin), 0);
    const SourceArea &source = reduced.area();
    const Squeeze squeeze(picture.width, begin, end, halvings(picture.width, end - begin));
    for (int y = 0; y < target.height; ++y) {
        scaleRow(target.row(y) + first, last - first, source.row(y), source.width,
                 squeeze.at(first), static_cast<qint64>(squeeze.step * 65536));
    }
}

/// Squeezes the whole picture into the rows between @p begin and @p end.
void squeezeRows(const TargetArea &target, const SourceArea &picture, double begin, double end)
{
    const int first = static_cast<int>(std::lround(begin));
    const int last = static_cast<int>(std::lround(end));
    if (first >= last)
        return;
    const int level = halvings(picture.height, end - begin);
    const ReducedPicture reduced(picture, 0, level);
    const SourceArea &source = reduced.area();
    const Squeeze squeeze(picture.height, begin, end, level);
    for (int y = first; y < last; ++y) {
        const qint64 position =
            std::clamp<qint64>(squeeze.at(y), 0, qint64(source.height - 1) << 16);
        const auto above = static_cast<int>(position >> 16);
        const int below = std::min(above + 1, source.height - 1);
        mixRow(target.row(y), source.row(above), source.row(below), target.width,
               static_cast<int>(position >> 8 & 0xff));
    }
}

} // namespace

void composeStretchHorizontal(const EffectFrame &frame)
{
    const double width = frame.target.width;
    const double seam = easing::inOut(frame.progress()) * width;
    squeezeColumns(frame.target, frame.to, 0, seam);
    squeezeColumns(frame.target, frame.from, seam, width);
}

void composeStretchVertical(const EffectFrame &frame)
{
    const double height = frame.target.height;
    const double seam = easing::inOut(frame.progress()) * height;
    squeezeRows(frame.target, frame.to, 0, seam);
    squeezeRows(frame.target, frame.from, seam, height);
}

} // namespace velmora
