// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmora
{

/// Chooses Qt's platform for a program that paints pictures and texts but never shows a window. It
/// needs no display and knows the fonts of the system. Call before the application is made.
void chooseWindowlessPlatform();

} // namespace velmora
