// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QSize>

namespace velmora::samples
{

// Painted landscapes; each takes the size in px and yields the same picture every time.
QImage paintDawn(const QSize &size);
QImage paintSea(const QSize &size);
QImage paintAurora(const QSize &size);
QImage paintDunes(const QSize &size);
QImage paintCity(const QSize &size);
QImage paintCherryTree(const QSize &size);
QImage paintReef(const QSize &size);
QImage paintAutumnLake(const QSize &size);

} // namespace velmora::samples
