// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/ZoomEffects.h"

#include "generator/transitions/Card.h"
#include "generator/transitions/CardMotion.h"
#include "generator/transitions/Easing.h"

namespace velmora
{

namespace
{

QPointF centreOf(const TargetArea &target)
{
    return QPointF(target.width / 2.0, target.height / 2.0);
}

/// A small picture flies over a large one that moves in the same direction. The large one is
/// painted only where the small one does not hide it.
struct Flight {
    SourceArea large;
    double largeScale;
    SourceArea small;
    double smallScale;
    double smallOpacity;
};

void drawFlight(const TargetArea &target, const Flight &flight)
{
    const QSize size = target.rect().size();
    const Card ground = {flight.large,
                         turnedPlacement(size, centreOf(target), flight.largeScale, 0)};
    const Card card = {flight.small, turnedPlacement(size, centreOf(target), flight.smallScale, 0),
                       weightOf(flight.smallOpacity)};
    if (card.opacity == kFullWeight)
        drawCardAround(target, ground, card.shape());
    else
        drawCard(target, ground);
    drawCardShadow(target, card.shape(), target.height * 0.06, 0.45 * flight.smallOpacity);
    drawCard(target, card);
}

constexpr double kNearScale = 1.6;

} // namespace

void composeZoomIn(const EffectFrame &frame)
{
    const double t = easing::inOut(frame.progress());
    drawFlight(frame.target, {frame.from, easing::between(1, kNearScale, t), frame.to, t,
                              easing::within(t, 0, 0.35)});
}

void composeZoomOut(const EffectFrame &frame)
{
    const double t = easing::inOut(frame.progress());
    drawFlight(frame.target, {frame.to, easing::between(kNearScale, 1, t), frame.from, 1 - t,
                              easing::within(1 - t, 0, 0.35)});
}

} // namespace velmora
