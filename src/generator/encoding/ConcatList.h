// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace velmora
{

/// List files of the encoder's concat reader.
namespace ConcatList
{

/// The line "file '<path>'" with quote characters escaped, without a line end. Empty when the path
/// cannot be written in a list because it holds a line end or a null character.
QByteArray line(const QString &path);

/// Writes @p files to @p listFile in UTF-8, replacing it. False with a log line and a plain reason
/// in @p error when a path or the file cannot be written.
bool write(const QString &listFile, const QStringList &files, QString *error);

} // namespace ConcatList

} // namespace velmora
