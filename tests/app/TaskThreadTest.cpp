// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TaskThread.h"

#include <QPointer>
#include <QSemaphore>
#include <QTest>
#include <QThread>

#include <atomic>

using namespace velmora;

class TaskThreadTest : public QObject
{
    Q_OBJECT
private slots:
    void worksInOrderOnOneThreadAndReportsHere()
    {
        TaskThread tasks;
        QVector<QThread *> threads;
        QVector<int> reported;
        for (int i = 0; i < 100; ++i) {
            tasks.add([&, i]() -> TaskThread::Report {
                threads.append(QThread::currentThread());
                return [&, i] {
                    QCOMPARE(QThread::currentThread(), thread());
                    reported.append(i);
                };
            });
        }
        QTRY_COMPARE(reported.size(), 100);
        for (int i = 0; i < 100; ++i)
            QCOMPARE(reported.at(i), i);
        QVERIFY(threads.first() != thread());
        QCOMPARE(threads.count(threads.first()), 100);
    }

    void finishWaitsForAll()
    {
        TaskThread tasks;
        tasks.finish();
        int done = 0;
        int reported = 0;
        for (int i = 0; i < 3; ++i)
            tasks.add([&]() -> TaskThread::Report {
                QThread::msleep(5);
                ++done;
                return [&] { ++reported; };
            });
        tasks.finish();
        QCOMPARE(done, 3);
        QTRY_COMPARE(reported, 3);
    }

    /// Either way nothing is reported afterwards; only deleting waits for the work in progress.
    void ends_data()
    {
        QTest::addColumn<bool>("retire");
        QTest::newRow("deleted") << false;
        QTest::newRow("retired") << true;
    }

    void ends()
    {
        QFETCH(bool, retire);
        std::atomic_int begun{0};
        std::atomic_int ended{0};
        int reported = 0;
        QSemaphore begin;
        QSemaphore end(retire ? 0 : 2);
        QPointer<TaskThread> tasks = new TaskThread;
        const auto work = [&]() -> TaskThread::Report {
            ++begun;
            begin.release();
            end.acquire();
            ++ended;
            return [&] { ++reported; };
        };
        tasks->add(work);
        tasks->add(work);
        begin.acquire();
        if (retire) {
            tasks->retire();
            QCOMPARE(ended.load(), 0);
            end.release(2);
            QTRY_VERIFY(!tasks);
            QCOMPARE(begun.load(), 1);
        } else {
            delete tasks.data();
        }
        QCOMPARE(ended.load(), begun.load());
        QCoreApplication::processEvents();
        QCOMPARE(reported, 0);
    }
};

QTEST_GUILESS_MAIN(TaskThreadTest)
#include "TaskThreadTest.moc"
