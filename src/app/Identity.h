// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

/// The program's version, three numbers joined by points. Any thread.
QString programVersion();

/// Names the sources that the program was built from: the short commit, or "release" where they did
/// not come from a repository. Any thread.
QString buildLabel();

/// Sets organisation, application name and version of QCoreApplication, from which the per-user
/// folders follow. Every program calls it first in main(), before the log is installed.
void applyIdentity();

} // namespace velmora
