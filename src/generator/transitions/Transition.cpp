// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/transitions/Transition.h"

#include "generator/transitions/Effect.h"
#include "generator/transitions/FadeEffects.h"
#include "generator/transitions/MosaicEffects.h"
#include "generator/transitions/PixelRows.h"
#include "generator/transitions/RotationEffects.h"
#include "generator/transitions/SlideEffects.h"
#include "generator/transitions/StretchEffects.h"
#include "generator/transitions/WipeEffects.h"
#include "generator/transitions/ZoomEffects.h"

#include <QPainter>

#include <array>

namespace velmora
{

namespace
{

/// The picture as the effects need it; a shared copy unless the caller broke the contract.
QImage normalised(const QImage &image, const QSize &size)
{
    if (image.isNull()) {
        QImage black(size, QImage::Format_RGB32);
        black.fill(Qt::black);
        return black;
    }
    const QImage opaque = image.convertToFormat(QImage::Format_RGB32);
    return opaque.size() == size
               ? opaque
               : opaque.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// The image below the painter if its pixels can be written directly, otherwise null.
QImage *writableImage(const QPainter &painter, const QSize &size)
{
    QPaintDevice *device = painter.device();
    if (!device || device->devType() != QInternal::Image)
        return nullptr;
    auto *image = static_cast<QImage *>(device);
    const bool plain = image->format() == QImage::Format_RGB32 && image->size() == size &&
                       !painter.hasClipping() && painter.combinedTransform().isIdentity() &&
                       qFuzzyCompare(painter.opacity(), 1.0) &&
                       painter.compositionMode() == QPainter::CompositionMode_SourceOver;
    return plain ? image : nullptr;
}

void composeOn(EffectComposer compose, QImage &canvas, const QImage &from, const QImage &to,
               const TransitionPosition &position)
{
    const TargetArea target = targetArea(canvas);
    if (position.frame >= position.count)
        copyArea(target, sourceArea(to));
    else if (position.frame <= 0)
        copyArea(target, sourceArea(from));
    else
        compose({target, sourceArea(from), sourceArea(to), position.frame, position.count});
}

template <EffectComposer compose>
void paintEffect(QPainter &painter, const QImage &from, const QImage &to,
                 const TransitionPosition &position)
{
    const QSize size = to.isNull() ? from.size() : to.size();
    if (size.isEmpty())
        return;
    const QImage source = normalised(from, size);
    const QImage target = normalised(to, size);
    if (QImage *image = writableImage(painter, size)) {
        composeOn(compose, *image, source, target, position);
    } else {
        QImage canvas(size, QImage::Format_RGB32);
        composeOn(compose, canvas, source, target, position);
        painter.drawImage(0, 0, canvas);
    }
}

void paintNone(QPainter &painter, const QImage &, const QImage &to, const TransitionPosition &)
{
    painter.drawImage(0, 0, to);
}

/// Indexed by TransitionType.
constexpr std::array<TransitionFunction, kTransitionCount> kTransitions = {
    paintNone,
    paintEffect<composeCrossFade>,
    paintEffect<composePixelate>,
    paintEffect<composeMosaicSpiralIn>,
    paintEffect<composeMosaicSpiralOut>,
    paintEffect<composeMosaicStrips>,
    paintEffect<composeMosaicWall>,
    paintEffect<composeCheckerboard>,
    paintEffect<composeRotateSingleOut>,
    paintEffect<composeRotateSingleIn>,
    paintEffect<composeFlipOver>,
    paintEffect<composeWipeLeftToRight>,
    paintEffect<composeWipeRightToLeft>,
    paintEffect<composeWipeTopToBottom>,
    paintEffect<composeWipeBottomToTop>,
    paintEffect<composeWipeVerticalIn>,
    paintEffect<composeWipeVerticalOut>,
    paintEffect<composeStretchHorizontal>,
    paintEffect<composeStretchVertical>,
    paintEffect<composeZoomIn>,
    paintEffect<composeZoomOut>,
    paintEffect<composeSlideFromBottom>,
    paintEffect<composeSlideFromLeft>,
    paintEffect<composeSlideFromRight>,
    paintEffect<composeSlideFromTop>,
    paintEffect<composeSlideFromTopLeft>,
    paintEffect<composeFadeToBlack>,
    paintEffect<composeCrossFade>,
    paintEffect<composeFadeToWhite>,
};

} // namespace

TransitionFunction transitionFunction(TransitionType type)
{
    const auto index = static_cast<size_t>(type);
    return index < kTransitions.size() ? kTransitions[index] : paintNone;
}

void renderTransitionFrame(TransitionType type, const QImage &from, const QImage &to,
                           const TransitionPosition &position, QImage &target)
{
    const QSize size = to.isNull() ? from.size() : to.size();
    if (target.size() != size || target.format() != QImage::Format_RGB32)
        target = QImage(size, QImage::Format_RGB32);
    if (target.isNull())
        return;
    QPainter painter(&target);
    transitionFunction(type)(painter, from, to, position);
}

} // namespace velmora
