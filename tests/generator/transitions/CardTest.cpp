// SPDX-License-Identifier: GPL-3.0-or-later
#include "TransitionPictures.h"

#include "generator/transitions/Card.h"
#include "generator/transitions/CardMotion.h"
#include "generator/transitions/ReducedPicture.h"

#include <QtTest>

using namespace velmora;
using namespace velmora::testing;

class CardTest : public QObject
{
    Q_OBJECT
private slots:
    void unmovedCardIsExact()
    {
        const QImage picture = coldPicture({300, 17});
        QImage frame(300, 17, QImage::Format_RGB32);
        frame.fill(Qt::black);
        drawCard(targetArea(frame), {sourceArea(picture), QTransform()});
        // The last column and row are mixed with their neighbours by 1/256 at most.
        QCOMPARE(frame.copy(0, 0, 299, 16), picture.copy(0, 0, 299, 16));
        QVERIFY(meanDifference(frame, picture) < 0.1);
    }

    void movedCardStaysWithinItsShape()
    {
        QImage picture(10, 10, QImage::Format_RGB32);
        picture.fill(Qt::white);
        QImage frame(40, 40, QImage::Format_RGB32);
        frame.fill(Qt::black);
        drawCard(targetArea(frame), {sourceArea(picture), QTransform::fromTranslate(7, 35)});
        for (int y = 0; y < 40; ++y) {
            for (int x = 0; x < 40; ++x) {
                const bool inside = x >= 7 && x < 17 && y >= 35;
                QCOMPARE(qRed(frame.pixel(x, y)), inside ? 255 : 0);
            }
        }
    }

    void halfCoveredPixelsMix()
    {
        QImage picture(10, 10, QImage::Format_RGB32);
        picture.fill(Qt::white);
        QImage frame(30, 30, QImage::Format_RGB32);
        frame.fill(Qt::black);
        drawCard(targetArea(frame), {sourceArea(picture), QTransform::fromTranslate(5.5, 5.25)});
        QVERIFY(qAbs(qRed(frame.pixel(5, 10)) - 128) <= 2);
        QVERIFY(qAbs(qRed(frame.pixel(10, 5)) - 191) <= 2);
        QCOMPARE(qRed(frame.pixel(6, 6)), 255);
    }

    void rotationKeepsColoursInPlace()
    {
        const QSize size(120, 120);
        const QImage picture = coldPicture(size);
        QImage frame(size, QImage::Format_RGB32);
        frame.fill(Qt::black);
        drawCard(targetArea(frame),
                 {sourceArea(picture), turnedPlacement(size, QPointF(60, 60), 1, 90)});
        QVERIFY(meanDifference(frame, picture.transformed(QTransform().rotate(90))) < 0.5);
    }

    void hiddenPixelsStayUntouched()
    {
        const QImage picture = coldPicture({50, 50});
        QImage frame(50, 50, QImage::Format_RGB32);
        frame.fill(Qt::black);
        const QuadShape hidden(
            {QPointF(10, 10), QPointF(20, 10), QPointF(20, 20), QPointF(10, 20)});
        drawCardAround(targetArea(frame), {sourceArea(picture), QTransform()}, hidden);
        for (int y = 0; y < 49; ++y) {
            for (int x = 0; x < 49; ++x) {
                const bool untouched = QRect(10, 10, 10, 10).contains(x, y);
                QCOMPARE(frame.pixel(x, y), untouched ? qRgb(0, 0, 0) : picture.pixel(x, y));
            }
        }
    }

    void swungCardKeepsWithinItsHeight_data()
    {
        QTest::addColumn<double>("degrees");
        for (const double degrees : {-89.0, -60.0, -10.0, 10.0, 45.0, 89.0})
            QTest::addRow("%g", degrees) << degrees;
    }
    void swungCardKeepsWithinItsHeight()
    {
        QFETCH(double, degrees);
        const QSize size(160, 90);
        const QTransform placement = swungPlacement(size, QPointF(80, 45), degrees);
        const double left = placement.map(QPointF(0, 90)).y() - placement.map(QPointF(0, 0)).y();
        const double right =
            placement.map(QPointF(160, 90)).y() - placement.map(QPointF(160, 0)).y();
        QVERIFY(left <= 90.001 && right <= 90.001);
        // Clockwise seen from above: the left edge comes nearer, the right one goes away.
        QCOMPARE(left > right, degrees > 0);
        QVERIFY(placement.map(QPointF(0, 45)).x() < placement.map(QPointF(160, 45)).x());
    }

    void shapeWithoutAreaPaintsNothing()
    {
        const QImage picture = coldPicture({50, 50});
        QImage frame(50, 50, QImage::Format_RGB32);
        frame.fill(Qt::black);
        const QImage before = frame.copy();
        drawCard(targetArea(frame),
                 {sourceArea(picture), swungPlacement({50, 50}, QPointF(25, 25), 90)});
        drawCard(targetArea(frame),
                 {sourceArea(picture), turnedPlacement({50, 50}, QPointF(25, 25), 0, 10)});
        QCOMPARE(frame, before);
    }

    void reductionTakesMeans()
    {
        QImage picture(5, 3, QImage::Format_RGB32);
        for (int y = 0; y < 3; ++y) {
            for (int x = 0; x < 5; ++x)
                picture.setPixel(x, y, qRgb(10 * x, 20 * y, 100 + x));
        }
        const ReducedPicture reduced(sourceArea(picture), 1, 1);
        QCOMPARE(reduced.area().width, 3);
        QCOMPARE(reduced.area().height, 2);
        QCOMPARE(reduced.area().row(0)[0], qRgb(5, 10, 101));
        QCOMPARE(reduced.area().row(0)[2], qRgb(40, 10, 104));
        QCOMPARE(reduced.area().row(1)[1], qRgb(25, 40, 103));
        const ReducedPicture same(sourceArea(picture), 0, 0);
        QVERIFY(same.area().bits == sourceArea(picture).bits);
    }
};

QTEST_GUILESS_MAIN(CardTest)
#include "CardTest.moc"
