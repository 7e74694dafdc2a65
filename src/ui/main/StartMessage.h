// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace velmora
{

/// What a second start of the program tells the first: "Wake up!", followed by one line for each
/// file that it was asked to open.
namespace StartMessage
{

/// @p files are absolute paths.
QString compose(const QStringList &files);
/// The files that a message names; empty for every text that compose() does not make.
QStringList files(const QString &message);
/// The absolute paths of those arguments that are no options; the program's name comes first.
QStringList filesOfArguments(const QStringList &arguments);

} // namespace StartMessage

} // namespace velmora
