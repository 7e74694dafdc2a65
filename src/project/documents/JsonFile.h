// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QByteArray;

namespace velmora
{

/// Reading and writing of JSON documents that may be hostile, large or on a full disk. Any thread.
namespace JsonFile
{

/// The whole content of a regular file of at most @p maximumSize bytes into @p content. False with
/// a plain reason for the user in @p error otherwise; pipes and devices are refused.
bool readAll(const QString &path, qint64 maximumSize, QByteArray *content, QString *error);

/// Replaces the file as a whole or not at all; a symbolic link is kept and its target replaced.
/// False with the system's reason in @p error.
bool write(const QString &path, const QByteArray &content, QString *error);

} // namespace JsonFile

} // namespace velmora
