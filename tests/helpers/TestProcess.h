// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QProcess>
#include <QTest>

namespace velmora
{

/// The helper program that does what its arguments say; see tests/helpers/testprocess/main.cpp.
inline QString testProcessPath()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/testprocess");
}

/// Runs it to its end; false on a time-out.
inline bool runTestProcess(QProcess &process, const QStringList &arguments, int timeoutMs = 120'000)
{
    process.start(testProcessPath(), arguments);
    return process.waitForFinished(timeoutMs);
}

/// Waits for the next whole line of a process's output, without its newline; null on a time-out.
inline QByteArray nextLine(QProcess &process, int timeoutMs = 120'000)
{
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(timeoutMs))
            return {};
    }
    return process.readLine().trimmed();
}

} // namespace velmora
