// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/frames/CaptionFont.h"

#include <QStringList>

#include <mutex>

namespace velmora
{

void registerFontSubstitutes()
{
    static std::once_flag once;
    std::call_once(once, [] {
        QFont::insertSubstitutions(QStringLiteral("Segoe UI"),
                                   {QStringLiteral("Open Sans"), QStringLiteral("Noto Sans")});
    });
}

QFont captionFont(const QString &family, int pixelSize)
{
    registerFontSubstitutes();
    QFont font(family);
    font.setPixelSize(pixelSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    // Coloured edges would be right for one screen only.
    font.setStyleStrategy(
        static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    return font;
}

} // namespace velmora
