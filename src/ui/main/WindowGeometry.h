// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QSettings;
class QWidget;

namespace velmora
{

/// Size, place and state of the main window, kept under "geometry".
namespace WindowGeometry
{

/// What is stored, or a comfortable size in the middle of the primary screen where nothing usable
/// is stored. Call it before the window is shown.
void restore(QWidget *window, const QSettings &store);
void save(const QWidget &window, QSettings *store);

} // namespace WindowGeometry

} // namespace velmora
