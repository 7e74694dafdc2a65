// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVector>

namespace velmora
{

/// The transition effects, by the number under which documents store them.
/// An integer from a document may hold any value: convert with transitionFromInt().
enum class TransitionType : int {
    None = 0,
    Random = 1,
    Pixelate = 2,
    MosaicSpiralIn = 3,
    MosaicSpiralOut = 4,
    MosaicStrips = 5,
    MosaicWall = 6,
    Checkerboard = 7,
    RotateSingleOut = 8,
    RotateSingleIn = 9,
    FlipOver = 10,
    WipeLeftToRight = 11,
    WipeRightToLeft = 12,
    WipeTopToBottom = 13,
    WipeBottomToTop = 14,
    WipeVerticalIn = 15,
    WipeVerticalOut = 16,
    StretchHorizontal = 17,
    StretchVertical = 18,
    ZoomIn = 19,
    ZoomOut = 20,
    SlideFromBottom = 21,
    SlideFromLeft = 22,
    SlideFromRight = 23,
    SlideFromTop = 24,
    SlideFromTopLeft = 25,
    FadeToBlack = 26,
    CrossFade = 27,
    FadeToWhite = 28,
};

constexpr int kTransitionCount = 29;
/// "Random" draws one of the effects in [kFirstRandom, kLastRandom].
constexpr int kFirstRandomTransition = 2;
constexpr int kLastRandomTransition = 25;

/// The English name of a type, which is also its translation source (context "TransitionType");
/// "Unknown" for a value out of range.
QString transitionName(int type);
/// The name in the interface language.
QString translatedTransitionName(int type);
/// The type whose English name is @p name, compared without regard to case, or -1.
int transitionByName(const QString &name);
/// The type for a stored number; out of range values become None.
TransitionType transitionFromInt(int type);
/// All types in the order in which menus list them: the three fades follow "Random".
const QVector<TransitionType> &transitionMenuOrder();

} // namespace velmora
