// SPDX-License-Identifier: GPL-3.0-or-later
#include "programs/velmoratool/ProgressText.h"

#include <QtTest>

using namespace velmora;

class ProgressTextTest : public QObject
{
    Q_OBJECT
private slots:
    void writesClock_data()
    {
        QTest::addColumn<qint64>("milliseconds");
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing") << qint64(0) << "0:00";
        QTest::newRow("cut to seconds") << qint64(9'999) << "0:09";
        QTest::newRow("a minute") << qint64(60'000) << "1:00";
        QTest::newRow("before the hour") << qint64(3'599'000) << "59:59";
        QTest::newRow("an hour") << qint64(3'600'000) << "1:00:00";
        QTest::newRow("many hours") << qint64(36'061'000) << "10:01:01";
        QTest::newRow("clock set back") << qint64(-5) << "0:00";
    }
    void writesClock()
    {
        QFETCH(qint64, milliseconds);
        QTEST(ProgressText::clock(milliseconds), "text");
    }

    void fillsTheLine_data()
    {
        QTest::addColumn<int>("columns");
        for (const int columns : {1, 10, 30, 45, 79, 200})
            QTest::addRow("%d columns", columns) << columns;
    }

    // A shorter text would leave remains of the one before it, a longer one would break the line.
    void fillsTheLine()
    {
        QFETCH(int, columns);
        for (const qint64 frame : {0, 1, 999, 1000}) {
            const QString text = ProgressText::bar({frame, 1000, 3'700'000, 12'000}, columns);
            QCOMPARE(text.size(), columns);
            QVERIFY(!text.contains(QLatin1Char('\n')));
        }
    }

    void growsWithTheFrames()
    {
        const QLatin1Char mark('#');
        const QString start = ProgressText::bar({0, 400, 0, -1}, 79);
        const QString half = ProgressText::bar({200, 400, 60'000, 61'000}, 79);
        const QString end = ProgressText::bar({400, 400, 120'000, 0}, 79);
        QCOMPARE(start.count(mark), 0);
        QVERIFY(half.count(mark) > 0);
        QCOMPARE(half.count(mark), half.count(QLatin1Char('.')));
        QCOMPARE(end.count(QLatin1Char('.')), 0);
        QVERIFY(half.contains(QStringLiteral(" 50 %  1:00 elapsed, 1:01 left")));
        QVERIFY(end.contains(QStringLiteral("100 %")));
    }

    void countsTenths()
    {
        QCOMPARE(ProgressText::tenth(0, 7), 0);
        QCOMPARE(ProgressText::tenth(6, 7), 8);
        QCOMPARE(ProgressText::tenth(7, 7), 10);
        QCOMPARE(ProgressText::tenth(0, 0), 0);
    }

    void leavesOutWhatIsUnknown()
    {
        QCOMPARE(ProgressText::line({25, 100, 4'000, -1}), QStringLiteral("25 %, 0:04 elapsed"));
    }
};

QTEST_GUILESS_MAIN(ProgressTextTest)
#include "ProgressTextTest.moc"
