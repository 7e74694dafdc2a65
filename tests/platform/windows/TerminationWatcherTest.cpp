// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/TerminationWatcher.h"

#include <QtTest>

#include <windows.h>

using namespace velmora;

class TerminationWatcherTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        // Requests come from a console, which should not be that of whoever started the test.
        FreeConsole();
        QVERIFY(AllocConsole());
    }

    void requestsReachTheEventLoop()
    {
        int requests = 0;
        const auto watcher = createTerminationWatcher([&requests] { ++requests; });
        QVERIFY(GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0));
        QTRY_COMPARE(requests, 1);
        QVERIFY(GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0));
        QTRY_COMPARE(requests, 2);
    }
};

QTEST_GUILESS_MAIN(TerminationWatcherTest)
#include "TerminationWatcherTest.moc"
