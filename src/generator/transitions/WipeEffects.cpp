// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/WipeEffects.h"

#include "generator/transitions/Easing.h"
#include "generator/transitions/PixelRows.h"

#include <cmath>
#include <vector>

namespace velmora
{

namespace
{

/// Width of the soft edge as a share of the way that the edge goes.
constexpr double kSoftness = 0.08;

/// The share of the target at a place that lies @p distance (0 to 1) from where the wipe begins.
/// The edge begins before the picture and ends behind it, so that neither end shows a jump.
int uncovered(double distance, double progress)
{
    const double edge = easing::gentle(progress) * (1 + kSoftness);
    return weightOf(easing::inOut((edge - distance) / kSoftness));
}

using Distance = double (*)(double place);

double fromStart(double place)
{
    return place;
}
double fromEnd(double place)
{
    return 1 - place;
}
double fromBothEnds(double place)
{
    return 1 - std::abs(2 * place - 1);
}
double fromMiddle(double place)
{
    return std::abs(2 * place - 1);
}

/// The shares of the target along one side of @p length pixels.
std::vector<quint16> shares(int length, double progress, Distance distance)
{
    std::vector<quint16> result(static_cast<size_t>(length));
    for (int i = 0; i < length; ++i) {
        const double place = (i + 0.5) / length;
        result[static_cast<size_t>(i)] = static_cast<quint16>(uncovered(distance(place), progress));
    }
    return result;
}

void wipeColumns(const EffectFrame &frame, Distance distance)
{
    const int width = frame.target.width;
    const auto weights = shares(width, frame.progress(), distance);
    // Only the soft edge needs mixing; both sides of it are copied.
    int begin = 0;
    while (begin < width && weights[static_cast<size_t>(begin)] == weights.front())
        ++begin;
    int end = width;
    while (end > begin && weights[static_cast<size_t>(end) - 1] == weights.back())
        --end;
    for (int y = 0; y < frame.target.height; ++y) {
        QRgb *target = frame.target.row(y);
        const QRgb *from = frame.from.row(y);
        const QRgb *to = frame.to.row(y);
        mixRow(target, from, to, begin, weights.front());
        mixRow(target + begin, from + begin, to + begin, end - begin, weights.data() + begin);
        mixRow(target + end, from + end, to + end, width - end, weights.back());
    }
}

void wipeRows(const EffectFrame &frame, Distance distance)
{
    const auto weights = shares(frame.target.height, frame.progress(), distance);
    for (int y = 0; y < frame.target.height; ++y) {
        mixRow(frame.target.row(y), frame.from.row(y), frame.to.row(y), frame.target.width,
               weights[static_cast<size_t>(y)]);
    }
}

} // namespace

void composeWipeLeftToRight(const EffectFrame &frame)
{
    wipeColumns(frame, fromStart);
}
void composeWipeRightToLeft(const EffectFrame &frame)
{
    wipeColumns(frame, fromEnd);
}
void composeWipeTopToBottom(const EffectFrame &frame)
{
    wipeRows(frame, fromStart);
}
void composeWipeBottomToTop(const EffectFrame &frame)
{
    wipeRows(frame, fromEnd);
}
void composeWipeVerticalIn(const EffectFrame &frame)
{
    wipeRows(frame, fromBothEnds);
}
void composeWipeVerticalOut(const EffectFrame &frame)
{
    wipeRows(frame, fromMiddle);
}

} // namespace velmora
