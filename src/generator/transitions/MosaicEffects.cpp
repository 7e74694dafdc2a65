// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/MosaicEffects.h"

#include "generator/GeneratorLog.h"
#include "generator/transitions/Card.h"
#include "generator/transitions/CardMotion.h"
#include "generator/transitions/Easing.h"
#include "generator/transitions/TileGrid.h"

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int kTilesDown = 9;
constexpr int kCheckersDown = 6;
constexpr QRgb kGap = 0xff16181d; ///< seen behind tiles that turn

/// When a tile moves, as a share of the whole transition.
struct Moment {
    double begin;
    double end;
};

/// The moment of number @p index of @p count tiles that start one after another, each moving for
/// @p duration.
Moment momentOf(int index, int count, double duration)
{
    const double begin = (1 - duration) * index / std::max(1, count - 1);
    return {begin, begin + duration};
}

void logStep(const EffectFrame &frame, const TileGrid &grid, const QPoint &newest)
{
    qCDebug(generatorLog).nospace()
        << "Frame #" << frame.frame << " cols=" << grid.columns() << ", rows=" << grid.rows()
        << ", col=" << newest.x() << ", row=" << newest.y();
}

/// Puts the target's tile over the frame at share @p t of its own movement.
using TileMove = void (*)(const EffectFrame &frame, const QRect &tile, double t);

void placeTile(const EffectFrame &frame, const QRect &tile, double t, TileMove move)
{
    if (t >= 1)
        copyArea(frame.target.cut(tile), frame.to.cut(tile));
    else if (t > 0)
        move(frame, tile, t);
}

/// Grows out of the middle of its place.
void popUp(const EffectFrame &frame, const QRect &tile, double t)
{
    const double scale = easing::between(0.3, 1, easing::out(t));
    const Card card = {frame.to.cut(tile),
                       turnedPlacement(tile.size(), QRectF(tile).center(), scale, 0),
                       weightOf(easing::within(t, 0, 0.5))};
    drawCardShadow(frame.target, card.shape(), tile.height() * 0.25, 0.4 * (1 - t));
    drawCard(frame.target, card);
}

/// Unfolds from one of its upright sides to the other.
void unfold(const EffectFrame &frame, const QRect &tile, double t, bool toRight)
{
    const double scale = std::max(0.02, easing::out(t));
    const double left = toRight ? tile.left() : tile.left() + tile.width() * (1 - scale);
    Card card = {frame.to.cut(tile), QTransform(scale, 0, 0, 1, left, tile.top())};
    card.light = weightOf(0.55 + 0.45 * t);
    drawCard(frame.target, card);
}

void unfoldRight(const EffectFrame &frame, const QRect &tile, double t)
{
    unfold(frame, tile, t, true);
}

void unfoldLeft(const EffectFrame &frame, const QRect &tile, double t)
{
    unfold(frame, tile, t, false);
}

void followPath(const EffectFrame &frame, const TileGrid &grid, const std::vector<QPoint> &path)
{
    copyArea(frame.target, frame.from);
    const int count = static_cast<int>(path.size());
    QPoint newest = path.front();
    for (int i = 0; i < count; ++i) {
        const Moment moment = momentOf(i, count, 0.16);
        const QPoint &place = path[static_cast<size_t>(i)];
        const double t = easing::within(frame.progress(), moment.begin, moment.end);
        placeTile(frame, grid.tile(place.x(), place.y()), t, popUp);
        if (t > 0)
            newest = place;
    }
    logStep(frame, grid, newest);
}

/// Turns a square over like a card: the outgoing picture is its face, the target its back.
void turnSquare(const EffectFrame &frame, const QRect &square, double t)
{
    const double turn = easing::inOut(t);
    const bool front = turn < 0.5;
    const SourceArea &picture = front ? frame.from : frame.to;
    fillArea(frame.target.cut(square), kGap);
    Card card = {picture.cut(square), swungPlacement(square.size(), QRectF(square).center(),
                                                     180 * (front ? turn : turn - 1))};
    card.light = weightOf(0.5 + std::abs(turn - 0.5));
    drawCard(frame.target, card);
}

} // namespace

void composeMosaicSpiralIn(const EffectFrame &frame)
{
    const TileGrid grid(frame.target.rect().size(), kTilesDown);
    followPath(frame, grid, grid.spiral());
}

void composeMosaicSpiralOut(const EffectFrame &frame)
{
    const TileGrid grid(frame.target.rect().size(), kTilesDown);
    std::vector<QPoint> path = grid.spiral();
    std::reverse(path.begin(), path.end());
    followPath(frame, grid, path);
}

void composeMosaicStrips(const EffectFrame &frame)
{
    const TileGrid grid(frame.target.rect().size(), kTilesDown);
    copyArea(frame.target, frame.from);
    QPoint newest;
    for (int row = 0; row < grid.rows(); ++row) {
        // Neighbouring strips run against each other and start one after another.
        const bool toRight = row % 2 == 0;
        const Moment strip = momentOf(row, grid.rows(), 0.7);
        const double progress = easing::within(frame.progress(), strip.begin, strip.end);
        for (int i = 0; i < grid.columns(); ++i) {
            const int column = toRight ? i : grid.columns() - 1 - i;
            const Moment moment = momentOf(i, grid.columns(), 0.25);
            const double t = easing::within(progress, moment.begin, moment.end);
            placeTile(frame, grid.tile(column, row), t, toRight ? unfoldRight : unfoldLeft);
            if (t > 0)
                newest = QPoint(column, row);
        }
    }
    logStep(frame, grid, newest);
}

void composeCheckerboard(const EffectFrame &frame)
{
    const TileGrid grid(frame.target.rect().size(), kCheckersDown);
    copyArea(frame.target, frame.from);
    QPoint newest;
    for (int row = 0; row < grid.rows(); ++row) {
        for (int column = 0; column < grid.columns(); ++column) {
            // The dark squares turn in the first phase, the light ones in the second; each phase
            // runs over the board from one corner to the other.
            const double phase = (row + column) % 2 == 0 ? 0 : 0.5;
            const Moment moment = momentOf(row + column, grid.rows() + grid.columns() - 1, 0.55);
            const double t =
                easing::within(frame.progress(), phase + moment.begin / 2, phase + moment.end / 2);
            placeTile(frame, grid.tile(column, row), t, turnSquare);
            if (t > 0)
                newest = QPoint(column, row);
        }
    }
    logStep(frame, grid, newest);
}

} // namespace velmora
