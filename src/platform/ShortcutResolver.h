// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

/// The file that a shortcut leads to (symbolic links and .desktop links on Linux, .lnk on Windows,
/// also several in a row), as an absolute path. A file that is no shortcut is returned as given;
/// empty when the target is missing, not local, or the shortcuts lead in a circle.
QString resolveShortcut(const QString &path);

} // namespace velmora
