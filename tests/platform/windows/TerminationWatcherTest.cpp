// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/TerminationWatcher.h"

#include "helpers/ProcessControl.h"

#include <QtTest>

#include <windows.h>

using namespace velmora;

class TerminationWatcherTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { ProcessControl::allowInterrupts(); }

    void requestsReachTheEventLoop()
    {
        int requests = 0;
        const auto watcher = createTerminationWatcher([&requests] { ++requests; });
        QVERIFY(GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0));
        QTRY_VERIFY(isTerminationRequested());
        QTRY_COMPARE(requests, 1);
        QVERIFY(GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0));
        QTRY_COMPARE(requests, 2);
    }
};

QTEST_GUILESS_MAIN(TerminationWatcherTest)
#include "TerminationWatcherTest.moc"
