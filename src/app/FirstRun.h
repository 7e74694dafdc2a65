// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

class QSettings;

namespace velmora
{

/// What the installer and the earlier starts left in settings.ini: "first_run" is false once the
/// program has run, "frun" is set by an installer that wants a first run again, "rinst" is true
/// after a start by the installer, "lang" carries the language chosen in the installer.
struct FirstRun {
    bool fromInstaller = false; ///< Started with "--inst" or "-inst".
    bool firstRun = false;
    QString language; ///< Chosen in the installer and not taken over yet.

    /// Reads the marks, logs them, and marks the first run as done. The language is taken over as
    /// "locale" on a first run.
    static FirstRun take(const QStringList &arguments, QSettings &store);
};

} // namespace velmora
