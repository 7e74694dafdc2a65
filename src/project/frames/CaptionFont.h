// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QString>

namespace velmora
{

/// Declares Open Sans, then Noto Sans, as substitutes for "Segoe UI" where that is not installed,
/// so that text measures alike everywhere. Programs call it at their start, before other threads
/// use fonts; further calls do nothing.
void registerFontSubstitutes();

/// The font of captions: smooth, and without hinting, so that its proportions are the same at
/// every size. @p pixelSize is at least 1. Any thread.
QFont captionFont(const QString &family, int pixelSize);

} // namespace velmora
