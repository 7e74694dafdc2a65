// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

class QApplication;

namespace velmora
{

/// The look of the program: its colours, font, icons and style sheet. Painted parts take their
/// colours from here; resources/style.css uses the same values. GUI thread.
namespace Theme
{

constexpr QRgb Window = 0xfff4f6f8;
constexpr QRgb Surface = 0xffffffff; ///< Cards, tables, fields.
constexpr QRgb Border = 0xffdfe5ea;
constexpr QRgb FieldBorder = 0xffb4c0ca;
constexpr QRgb Text = 0xff1f2a33;
constexpr QRgb SecondaryText = 0xff55646f;
constexpr QRgb DisabledText = 0xff8a97a1;
constexpr QRgb IconLine = 0xff3d4a54;
constexpr QRgb Accent = 0xff0b96db;     ///< Selection, progress, focus rings; not below white text.
constexpr QRgb AccentText = 0xff06202f; ///< Text on Accent.
constexpr QRgb AccentPale = 0xffd6eefb; ///< Background of selected rows, with Text on it.
constexpr QRgb AccentFaint = 0xffeef8fd; ///< Background below the pointer.
constexpr QRgb Primary = 0xff0873a8;     ///< Filled buttons with OnPrimary text, and links.
constexpr QRgb PrimaryHover = 0xff0a7cb4;
constexpr QRgb PrimaryPressed = 0xff065d88;
constexpr QRgb OnPrimary = 0xffffffff;
constexpr QRgb Danger = 0xffc0392b;
constexpr QRgb DangerHover = 0xffa93226;

constexpr int BodySize = 14;    ///< px
constexpr int HeadingSize = 16; ///< px
constexpr int TitleSize = 24;   ///< px
constexpr int Radius = 8;       ///< px, of cards

/// Makes the resources of this library available and gives the application style, palette, font,
/// icon and style sheet. Call it once, before the first widget is made.
void install(QApplication &application);

/// Gives the application the font of the running program, which is smaller than what the style
/// sheet sets for its widgets.
void useProgramFont();

/// The picture ":/images/images/NAME.png"; with @p accent also "NAME-accent" for the switched-on
/// state of checkable buttons.
QIcon icon(const QString &name, bool accent = false);

/// The program's icon in all its sizes.
QIcon applicationIcon();

/// The ratio of contrast between two opaque colours as the Web Content Accessibility Guidelines
/// define it: 1 to 21.
double contrast(const QColor &first, const QColor &second);

} // namespace Theme

} // namespace velmora
