// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/worker/RemainingTime.h"

#include <QtTest>

#include <cmath>

using namespace velmora;

namespace
{

bool isWithin(double share, qint64 value, qint64 expected)
{
    return std::abs(static_cast<double>(value - expected)) <= share * static_cast<double>(expected);
}

} // namespace

class RemainingTimeTest : public QObject
{
    Q_OBJECT
private slots:
    void unknownAtFirst()
    {
        RemainingTime time;
        QCOMPARE(time.remaining(0), qint64(-1));
        time.update(0, 0, 1000);
        time.update(500, 10, 1000);
        QCOMPARE(time.remaining(500), qint64(-1));
    }

    void unknownWhileNothingMoves()
    {
        RemainingTime time;
        for (qint64 now = 0; now <= 10000; now += 100)
            time.update(now, 5, 1000);
        QCOMPARE(time.remaining(10000), qint64(-1));
    }

    void steadySpeedIsExact()
    {
        RemainingTime time;
        for (qint64 now = 0; now <= 5000; now += 100)
            time.update(now, now / 100, 1000); // 10 frames a second
        QCOMPARE(time.remaining(5000), qint64(95000));
        // Between two updates the clock runs on.
        QCOMPARE(time.remaining(5400), qint64(94600));
    }

    /// Slides of 40 slow frames and 85 fast ones, as real renders have them.
    void settlesOnAlternatingStages()
    {
        constexpr int kSlides = 60;
        constexpr qint64 kSlideTime = 2500;
        constexpr qint64 kCount = kSlides * 125;
        RemainingTime time;
        qint64 now = 0;
        qint64 frame = 0;
        for (int slide = 0; slide < kSlides; ++slide) {
            for (int step = 0; step < 25; ++step) {
                now += 100;
                frame += step < 20 ? 2 : 17;
                time.update(now, frame, kCount);
                const qint64 truth = kSlides * kSlideTime - now;
                if (now > 20000 && truth > 20000)
                    QVERIFY2(isWithin(0.1, time.remaining(now), truth),
                             qPrintable(QStringLiteral("%1 ms instead of %2 after %3")
                                            .arg(time.remaining(now))
                                            .arg(truth)
                                            .arg(now)));
            }
        }
    }

    void followsAChangeOfSpeed()
    {
        RemainingTime time;
        qint64 frame = 0;
        qint64 now = 0;
        for (; now < 30000; now += 100)
            time.update(now, frame += 2, 3000);
        for (; now < 90000; now += 100)
            time.update(now, frame += 1, 3000);
        QVERIFY(isWithin(0.1, time.remaining(now), (3000 - frame) * 100));
    }

    void nothingRemainsAtTheEnd()
    {
        RemainingTime time;
        for (qint64 now = 0; now <= 5000; now += 100)
            time.update(now, now / 100, 50);
        QCOMPARE(time.remaining(5000), qint64(0));
        QCOMPARE(time.remaining(9000), qint64(0));
    }
};

QTEST_APPLESS_MAIN(RemainingTimeTest)
#include "RemainingTimeTest.moc"
