// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

/// Leaves the file "velmora.dmp" in the data folder when the process crashes while this object
/// lives, and tells in the log about the file that an earlier process left. Main thread.
class CrashReporter
{
public:
    /// Failure to set up is logged and changes nothing else.
    explicit CrashReporter(const QString &dataFolder);
    ~CrashReporter();
    Q_DISABLE_COPY(CrashReporter)

    /// For an exception that reached the top level of the event loop: logs it with @p what, writes
    /// the dump and lets the program go on.
    static void onException(const char *what);

private:
    static void reportEarlierCrash(const QString &dumpFile);
};

} // namespace velmora
