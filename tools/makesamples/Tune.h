// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora::samples
{

/// Plays the bundled tune into an OGG file through FFmpeg; false with a line on standard error.
bool composeTune(const QString &path);

} // namespace velmora::samples
