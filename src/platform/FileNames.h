// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace velmora
{

/// File names on the command line and on the disk.
namespace FileNames
{

/// Lets names with letters beyond ASCII work where no language is set, as in scheduled tasks and
/// containers. Call it first in main(), before the application object is made.
void allowAllLetters();

/// A text that is the same for two absolute paths exactly when the system takes them for the same
/// file: on Windows the case of letters does not count. Links are not followed.
QString identity(const QString &path);

/// How long a name is in the units of which a file name may have 255: bytes, on Windows UTF-16 code
/// units.
int length(const QString &name);

/// The bytes in which programs of the system read a path in their files: its encoding of names, on
/// Windows UTF-8.
QByteArray inFiles(const QString &path);

} // namespace FileNames

} // namespace velmora
