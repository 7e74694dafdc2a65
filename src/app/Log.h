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

/// The file is opened for each message, so that a new day begins a new file. @p filePrefix is "log"
/// for the editor and "log_tool" for the worker and the command line. Warnings and errors go to
/// standard error when they cannot be written there, and always when @p echo is set.
void install(const QString &filePrefix, bool echo = false);
void uninstall();

/// Today's file name, "<prefix>_yyyy_MM_dd.txt", with its folder.
QString currentFile();

/// One message as the handler writes it: "[%5][%4][%6][%1] %2: %3\n" with %1 the level (DEBUG,
/// INFO, WARNING, ERROR), %2 the category with the source file and line, %3 the masked text, %4
/// process id and thread, %5 the time as hh:mm:ss, %6 the program's version. A text of several
/// lines becomes as many lines of that form, so that every line of the file can be read by itself.
QString formatLine(QtMsgType type, const QMessageLogContext &context, const QString &text);

/// Replaces the values of access_token, refresh_token, client_secret, code and Authorization.
QString maskSecrets(const QString &text);

} // namespace Log

} // namespace velmora
