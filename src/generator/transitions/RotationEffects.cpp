// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/RotationEffects.h"

#include "generator/transitions/Backdrop.h"
#include "generator/transitions/Card.h"
#include "generator/transitions/CardMotion.h"
#include "generator/transitions/Easing.h"

#include <QtMath>

#include <cmath>

namespace velmora
{

namespace
{

/// Whole turns on the way between the full frame and the vanishing point.
constexpr double kTurns = 1.0;

/// A single picture, @p size (0 to 1) of its way to the full frame, spins over the other one,
/// which lies darker below it the larger the picture is.
void drawSpin(const TargetArea &target, const SourceArea &ground, const SourceArea &picture,
              double size, double degrees)
{
    const QPointF centre(target.width / 2.0, target.height / 2.0);
    const Card card = {picture, turnedPlacement(target.rect().size(), centre, size, degrees)};
    const QuadShape shape = card.shape();
    const int light = weightOf(1 - 0.45 * size);
    for (int y = 0; y < target.height; ++y) {
        const ColumnSpan hidden = shape.isEmpty() ? ColumnSpan() : shape.span(y, 0.5, target.width);
        const int gapBegin = hidden.begin < hidden.end ? hidden.begin : target.width;
        const int gapEnd = hidden.begin < hidden.end ? hidden.end : target.width;
        darkenRow(target.row(y), ground.row(y), gapBegin, light);
        darkenRow(target.row(y) + gapEnd, ground.row(y) + gapEnd, target.width - gapEnd, light);
    }
    drawCardShadow(target, shape, target.height * 0.07 * (0.3 + 0.7 * size), 0.55);
    drawCard(target, card);
}

} // namespace

void composeRotateSingleOut(const EffectFrame &frame)
{
    const double t = easing::inOut(frame.progress());
    drawSpin(frame.target, frame.to, frame.from, 1 - t, 360 * kTurns * t);
}

void composeRotateSingleIn(const EffectFrame &frame)
{
    const double t = easing::inOut(frame.progress());
    drawSpin(frame.target, frame.from, frame.to, t, 360 * kTurns * (t - 1));
}

void composeFlipOver(const EffectFrame &frame)
{
    const double t = easing::inOut(frame.progress());
    const bool front = t < 0.5;
    const double degrees = front ? 180 * t : 180 * (t - 1);
    const TargetArea &target = frame.target;
    const QPointF centre(target.width / 2.0, target.height / 2.0);
    Card card = {front ? frame.from : frame.to,
                 swungPlacement(target.rect().size(), centre, degrees)};
    card.light = weightOf(0.45 + 0.55 * std::cos(qDegreesToRadians(degrees)));
    const QuadShape shape = card.shape();
    drawBackdrop(target, frame.from, frame.to, weightOf(t), shape);
    drawCardShadow(target, shape, target.height * 0.08, 0.5);
    drawCard(target, card);
}

} // namespace velmora
