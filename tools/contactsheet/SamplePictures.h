// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

namespace velmora
{

/// Two painted pictures that differ in colour, shapes and brightness everywhere, RGB32. They need
/// a QGuiApplication for their texts.
QImage paintDayPicture(const QSize &size);
QImage paintNightPicture(const QSize &size);

} // namespace velmora
