// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmora
{

/// File names on the command line and on the disk.
namespace FileNames
{

/// Lets names with letters beyond ASCII work where no language is set, as in scheduled tasks and
/// containers. Call it first in main(), before the application object is made.
void allowAllLetters();

} // namespace FileNames

} // namespace velmora
