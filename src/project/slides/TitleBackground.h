// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QImage>
#include <QSize>

namespace velmora
{

constexpr int kTitleBackgroundCount = 30;

/// Paints title background @p index (0 to 29) at @p size px as premultiplied ARGB32. With
/// @p outline, background 0 (white) gets a one-pixel grey frame. Other indexes leave the picture
/// transparent. Any thread.
QImage titleBackground(int index, const QSize &size, bool outline);

/// The caption colour that suits title background @p index; black where none is listed.
QColor titleCaptionColor(int index);

} // namespace velmora
