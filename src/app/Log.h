// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QtGlobal>

namespace velmora
{

/// The daily log file. install() routes all Qt messages there, from any thread and with any
/// number of processes writing to the same file: each line is one atomic append.
namespace Log
{

/// @p filePrefix is "log" for the editor and "log_tool" for the worker and the command line.
/// Warnings and errors are repeated on standard error when @p echo is set.
void install(const QString &filePrefix, bool echo = false);
void uninstall();

/// Today's file name, "<prefix>_yyyy_MM_dd.txt", with its folder.
QString currentFile();

/// One line of the log, as the handler writes it: "[time][thread][version][level] context: text\n".
QString formatLine(QtMsgType type, const QMessageLogContext &context, const QString &text);

/// Replaces the values of access_token, refresh_token, client_secret, code and Authorization.
QString maskSecrets(const QString &text);

} // namespace Log

} // namespace velmora
