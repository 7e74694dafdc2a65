// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace velmora
{

struct AppSettings;

/// The render worker: parses "--session_id", "--cache" and "--request", renders the request,
/// prints protocol lines on standard output and follows the session values. Returns the exit code.
/// @p arguments start with the program, as QCoreApplication::arguments().
/// Needs a QCoreApplication (or QGuiApplication for fonts).
int runWorker(const QStringList &arguments, const AppSettings &settings);

} // namespace velmora
