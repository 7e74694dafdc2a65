// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/slides/TransitionType.h"

#include <QCoreApplication>

namespace velmora
{

namespace
{

constexpr const char *kNames[] = {
    QT_TRANSLATE_NOOP("TransitionType", "None"),
    QT_TRANSLATE_NOOP("TransitionType", "Random"),
    QT_TRANSLATE_NOOP("TransitionType", "Pixelate"),
    QT_TRANSLATE_NOOP("TransitionType", "Mosaic Spiral In"),
    QT_TRANSLATE_NOOP("TransitionType", "Mosaic Spiral Out"),
    QT_TRANSLATE_NOOP("TransitionType", "Mosaic Strips"),
    QT_TRANSLATE_NOOP("TransitionType", "Mosaic Wall"),
    QT_TRANSLATE_NOOP("TransitionType", "Checkerboard"),
    QT_TRANSLATE_NOOP("TransitionType", "Rotate Single Out"),
    QT_TRANSLATE_NOOP("TransitionType", "Rotate Single In"),
    QT_TRANSLATE_NOOP("TransitionType", "Flip Over"),
    QT_TRANSLATE_NOOP("TransitionType", "Wipe Left To Right"),
    QT_TRANSLATE_NOOP("TransitionType", "Wipe Right To Left"),
    QT_TRANSLATE_NOOP("TransitionType", "Wipe Top To Bottom"),
    QT_TRANSLATE_NOOP("TransitionType", "Wipe Bottom To Top"),
    QT_TRANSLATE_NOOP("TransitionType", "Wipe Vertical In"),
    QT_TRANSLATE_NOOP("TransitionType", "Wipe Vertical Out"),
    QT_TRANSLATE_NOOP("TransitionType", "Stretch Horizontal"),
    QT_TRANSLATE_NOOP("TransitionType", "Stretch Vertical"),
    QT_TRANSLATE_NOOP("TransitionType", "Zoom In"),
    QT_TRANSLATE_NOOP("TransitionType", "Zoom Out"),
    QT_TRANSLATE_NOOP("TransitionType", "Slide From Bottom"),
    QT_TRANSLATE_NOOP("TransitionType", "Slide From Left"),
    QT_TRANSLATE_NOOP("TransitionType", "Slide From Right"),
    QT_TRANSLATE_NOOP("TransitionType", "Slide From Top"),
    QT_TRANSLATE_NOOP("TransitionType", "Slide From Top Left"),
    QT_TRANSLATE_NOOP("TransitionType", "Fade To Black"),
    QT_TRANSLATE_NOOP("TransitionType", "Cross fade"),
    QT_TRANSLATE_NOOP("TransitionType", "Fade To White"),
};
static_assert(std::size(kNames) == kTransitionCount);

constexpr const char *kUnknown = QT_TRANSLATE_NOOP("TransitionType", "Unknown");

const char *sourceName(int type)
{
    return type >= 0 && type < kTransitionCount ? kNames[type] : kUnknown;
}

} // namespace

QString transitionName(int type)
{
    return QLatin1String(sourceName(type));
}

QString translatedTransitionName(int type)
{
    return QCoreApplication::translate("TransitionType", sourceName(type));
}

int transitionByName(const QString &name)
{
    for (int type = 0; type < kTransitionCount; ++type) {
        if (name.compare(QLatin1String(kNames[type]), Qt::CaseInsensitive) == 0) {
            return type;
        }
    }
    return -1;
}

TransitionType transitionFromInt(int type)
{
    const bool known = type >= 0 && type < kTransitionCount;
    return known ? static_cast<TransitionType>(type) : TransitionType::None;
}

const QVector<TransitionType> &transitionMenuOrder()
{
    static const QVector<TransitionType> order = [] {
        QVector<TransitionType> types = {TransitionType::None, TransitionType::Random,
                                         TransitionType::CrossFade, TransitionType::FadeToBlack,
                                         TransitionType::FadeToWhite};
        for (int type = kFirstRandomTransition; type <= kLastRandomTransition; ++type) {
            types.append(static_cast<TransitionType>(type));
        }
        return types;
    }();
    return order;
}

} // namespace velmora
