// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace velmora
{

/// Appends @p bytes to a file in one write of the system, so that the pieces of several threads and
/// processes never mix. Makes the file, readable by its owner only, when it is missing. Any thread;
/// logs nothing, since the log itself is written with it. False when not all bytes were written.
bool appendToFile(const QString &path, const QByteArray &bytes);

} // namespace velmora
