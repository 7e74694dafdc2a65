// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/TerminationWatcher.h"

#include <QtTest>

#include <csignal>

using namespace velmora;

class TerminationWatcherTest : public QObject
{
    Q_OBJECT
private slots:
    void requestsReachTheEventLoop_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("terminate") << SIGTERM;
        QTest::newRow("interrupt") << SIGINT;
        QTest::newRow("hang up") << SIGHUP;
    }
    void requestsReachTheEventLoop()
    {
        QFETCH(int, signal);
        int requests = 0;
        const auto watcher = createTerminationWatcher([&requests] { ++requests; });
        QVERIFY(!isTerminationRequested());
        std::raise(signal);
        QCOMPARE(requests, 0);
        QVERIFY(isTerminationRequested());
        QTRY_COMPARE(requests, 1);
        std::raise(signal);
        QTRY_COMPARE(requests, 2);
    }

    void restoresWhatWasBefore()
    {
        const auto before = std::signal(SIGTERM, SIG_IGN);
        int requests = 0;
        createTerminationWatcher([&requests] { ++requests; }).reset();
        std::raise(SIGTERM);
        QCoreApplication::processEvents();
        QCOMPARE(requests, 0);
        std::signal(SIGTERM, before);
    }
};

QTEST_GUILESS_MAIN(TerminationWatcherTest)
#include "TerminationWatcherTest.moc"
