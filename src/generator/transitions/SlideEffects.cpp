// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/SlideEffects.h"

#include "generator/transitions/Easing.h"
#include "generator/transitions/PixelRows.h"

#include <algorithm>
#include <cmath>

namespace velmora
{

namespace
{

/// The whole pixels that a push along a side of @p length has moved: equal steps, at least one
/// pixel each, held at the end.
int pushed(const EffectFrame &frame, int length)
{
    const qint64 step = std::max(1, length / frame.count);
    return static_cast<int>(std::min<qint64>(length, step * frame.frame));
}

/// Shows @p first from the left up to column @p seam and @p second behind it, each moved so that
/// its own edge meets the seam.
void joinColumns(const TargetArea &target, const SourceArea &first, const SourceArea &second,
                 int seam)
{
    const int width = target.width;
    const int height = target.height;
    copyArea(target.cut({0, 0, seam, height}), first.cut({width - seam, 0, seam, height}));
    copyArea(target.cut({seam, 0, width - seam, height}), second.cut({0, 0, width - seam, height}));
}

void joinRows(const TargetArea &target, const SourceArea &first, const SourceArea &second, int seam)
{
    const int width = target.width;
    const int height = target.height;
    copyArea(target.cut({0, 0, width, seam}), first.cut({0, height - seam, width, seam}));
    copyArea(target.cut({0, seam, width, height - seam}), second.cut({0, 0, width, height - seam}));
}

void copyMirrored(QRgb *target, const QRgb *source, int count)
{
    std::reverse_copy(source, source + count, target);
}

/// Brightness of the mirror images beside a picture that is pushed diagonally.
constexpr double kMirrorLight = 0.55;

/// One row of the outgoing picture pushed right by @p right pixels; the free pixels continue it
/// as a darker mirror image. A row of the mirror image above is dark as a whole.
void pushedRow(QRgb *target, const QRgb *source, int width, int right, bool mirrored)
{
    copyMirrored(target, source, right);
    std::copy_n(source, width - right, target + right);
    darkenRow(target, target, mirrored ? width : right, weightOf(kMirrorLight));
}

/// Darkens what lies right of and below the corner (@p right, @p down) of the incoming picture.
void shadeCorner(const TargetArea &target, int right, int down)
{
    const double reach = std::max(2.0, target.height * 0.03);
    const int xEnd = std::min(target.width, right + static_cast<int>(reach));
    const int yEnd = std::min(target.height, down + static_cast<int>(reach));
    for (int y = 0; y < yEnd; ++y) {
        QRgb *row = target.row(y);
        for (int x = y < down ? right : 0; x < xEnd; ++x) {
            const double distance = std::hypot(std::max(0, x - right), std::max(0, y - down));
            const double shade = 0.5 * easing::inOut(1 - distance / reach);
            row[x] = mixPixels(row[x], 0xff000000u, weightOf(shade));
        }
    }
}

} // namespace

void composeSlideFromLeft(const EffectFrame &frame)
{
    joinColumns(frame.target, frame.to, frame.from, pushed(frame, frame.target.width));
}

void composeSlideFromRight(const EffectFrame &frame)
{
    const int width = frame.target.width;
    joinColumns(frame.target, frame.from, frame.to, width - pushed(frame, width));
}

void composeSlideFromTop(const EffectFrame &frame)
{
    joinRows(frame.target, frame.to, frame.from, pushed(frame, frame.target.height));
}

void composeSlideFromBottom(const EffectFrame &frame)
{
    const int height = frame.target.height;
    joinRows(frame.target, frame.from, frame.to, height - pushed(frame, height));
}

void composeSlideFromTopLeft(const EffectFrame &frame)
{
    const int width = frame.target.width;
    const int height = frame.target.height;
    const double way = easing::gentle(frame.progress());
    const int right = static_cast<int>(std::lround(way * width));
    const int down = static_cast<int>(std::lround(way * height));
    // A diagonal push leaves two corners that neither picture covers: the outgoing picture goes on
    // there as its own mirror image, so that it has no end.
    for (int y = 0; y < height; ++y) {
        const int sourceRow = y < down ? down - 1 - y : y - down;
        pushedRow(frame.target.row(y), frame.from.row(sourceRow), width, right, y < down);
    }
    shadeCorner(frame.target, right, down);
    copyArea(frame.target.cut({0, 0, right, down}),
             frame.to.cut({width - right, height - down, right, down}));
}

} // namespace velmora
