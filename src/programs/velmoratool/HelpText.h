// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

/// How the program is called, in English as the option names are; lines of at most 80 columns, the
/// last one with its newline.
QString helpText();

/// The program's name and version; one line with its newline.
QString versionText();

} // namespace velmora
