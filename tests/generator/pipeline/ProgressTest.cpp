// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/Progress.h"

#include <QtTest>

using namespace velmora;

class ProgressTest : public QObject
{
    Q_OBJECT
private slots:
    void countsUnitsUpToTheCount()
    {
        Progress progress;
        progress.reset(10);
        progress.advance(4);
        QCOMPARE(progress.value(), 4);
        progress.advance(20);
        QCOMPARE(progress.value(), 10);
    }

    void followsTheOnlyRun()
    {
        Progress progress;
        progress.reset(1000);
        progress.beginRun(100, 2000);
        progress.setRunPosition(500);
        QCOMPARE(progress.value(), 25);
        progress.setRunPosition(250); // an old line
        QCOMPARE(progress.value(), 25);
        progress.setRunPosition(9000);
        QCOMPARE(progress.value(), 100);
        progress.endRun(100);
        QCOMPARE(progress.value(), 100);
    }

    void ignoresPositionsOfSeveralRuns()
    {
        Progress progress;
        progress.reset(1000);
        progress.beginRun(100, 2000);
        progress.beginRun(50, 1000);
        progress.setRunPosition(1000);
        QCOMPARE(progress.value(), 0);
        progress.endRun(50);
        QCOMPARE(progress.value(), 50);
    }

    void toldValuesNeverGoBack()
    {
        Progress progress;
        progress.reset(1000);
        progress.beginRun(100, 1000);
        progress.setRunPosition(900);
        qint64 told = 0;
        QVERIFY(progress.takeReport(&told));
        QCOMPARE(told, 90);
        progress.beginRun(10, 1000);
        progress.endRun(10);
        QCOMPARE(progress.value(), 90);
        QVERIFY(!progress.takeReport(&told));
    }

    void tellsTheEndAtOnceAndOnce()
    {
        Progress progress;
        progress.reset(100);
        qint64 told = 0;
        progress.advance(1);
        QVERIFY(progress.takeReport(&told));
        progress.finish();
        QVERIFY(progress.takeReport(&told));
        QCOMPARE(told, 100);
        QVERIFY(!progress.takeReport(&told));
    }
};

QTEST_APPLESS_MAIN(ProgressTest)
#include "ProgressTest.moc"
