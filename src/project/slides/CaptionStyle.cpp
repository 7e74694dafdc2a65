// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/slides/CaptionStyle.h"

#include "project/slides/JsonValues.h"

namespace velmora
{

namespace
{

const QLatin1String kText("text");
const QLatin1String kFont("font");
const QLatin1String kTextColor("text_color");
const QLatin1String kBackgroundColor("bg_color");
const QLatin1String kPosition("position");
const QLatin1String kTransition("transition");
const QLatin1String kChanged("changed");

constexpr unsigned kLastPosition = 8;
constexpr int kCentre = 4;
/// No colour name is longer; checked so that a huge text is not searched for in the name table.
constexpr int kLongestColorName = 64;

QColor colorFromName(const QString &name)
{
    return name.size() <= kLongestColorName && QColor::isValidColor(name) ? QColor(name) : QColor();
}

} // namespace

QJsonObject CaptionStyle::toJson() const
{
    QJsonObject object;
    object.insert(kText, text);
    object.insert(kFont, fontFamily);
    object.insert(kTextColor, textColor.name());
    if (backgroundColor.isValid()) {
        object.insert(kBackgroundColor, backgroundColor.name());
    }
    object.insert(kPosition, position);
    object.insert(kTransition, effect);
    object.insert(kChanged, changed);
    return object;
}

void CaptionStyle::fromJson(const QJsonObject &object)
{
    text = object.value(kText).toString();
    fontFamily = object.value(kFont).toString();
    textColor = colorFromName(object.value(kTextColor).toString());
    if (!textColor.isValid()) {
        // What an invalid colour paints as, and is written as.
        textColor = Qt::black;
    }
    // Without a background colour the key is left out, so a missing key means no box.
    backgroundColor = colorFromName(object.value(kBackgroundColor).toString());
    position = readInt(object, kPosition);
    // Negative values are beyond the last cell too when taken as unsigned.
    if (static_cast<unsigned>(position) > kLastPosition) {
        position = kCentre;
    }
    effect = readInt(object, kTransition);
    if (object.contains(kChanged)) {
        changed = object.value(kChanged).toBool();
    }
}

} // namespace velmora
