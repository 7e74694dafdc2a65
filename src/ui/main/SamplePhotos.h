// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

/// The folder of the photos that come with the program, beside the installed program or in its
/// source tree; empty where they were not installed.
QString samplePhotosFolder();

} // namespace velmora
