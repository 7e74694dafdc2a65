// SPDX-License-Identifier: GPL-3.0-or-later
#include "TransitionPictures.h"

#include <QtTest>

using namespace velmora;
using namespace velmora::testing;

/// The pushes move by equal whole pixels: every pixel of every frame is known.
class SlideTransitionTest : public QObject
{
    Q_OBJECT
private slots:
    void pushesByWholePixels_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QPoint>("direction");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("count");
        const QVector<QPair<TransitionType, QPoint>> pushes = {
            {TransitionType::SlideFromLeft, {1, 0}},
            {TransitionType::SlideFromRight, {-1, 0}},
            {TransitionType::SlideFromTop, {0, 1}},
            {TransitionType::SlideFromBottom, {0, -1}},
        };
        const QVector<QPair<QSize, int>> cases = {{{100, 50}, 25}, {{103, 57}, 50}, {{16, 9}, 2},
                                                  {{7, 5}, 50},    {{33, 61}, 75},  {{1, 1}, 3}};
        for (const auto &push : pushes) {
            for (const auto &[size, count] : cases) {
                QTest::addRow("%s %dx%d in %d",
                              qPrintable(transitionName(static_cast<int>(push.first))),
                              size.width(), size.height(), count)
                    << static_cast<int>(push.first) << push.second << size << count;
            }
        }
    }
    void pushesByWholePixels()
    {
        QFETCH(int, type);
        QFETCH(QPoint, direction);
        QFETCH(QSize, size);
        QFETCH(int, count);
        const QImage from = warmPicture(size);
        const QImage to = coldPicture(size);
        const int length = direction.x() != 0 ? size.width() : size.height();
        int offset = 0;
        for (int k = 0; k < count; ++k) {
            const QImage frame = render(static_cast<TransitionType>(type), from, to, k, count);
            for (int y = 0; y < size.height(); ++y) {
                for (int x = 0; x < size.width(); ++x) {
                    // Both pictures lie on one long strip that moves under the frame.
                    const QPoint place = QPoint(x, y) - direction * offset;
                    const bool outgoing = from.rect().contains(place);
                    const QPoint incoming = place + direction * length;
                    QCOMPARE(frame.pixel(x, y), outgoing ? from.pixel(place) : to.pixel(incoming));
                }
            }
            offset = qMin(length, offset + qMax(1, length / count));
        }
    }

    void diagonalPushKeepsBothPicturesWhole()
    {
        const QSize size(160, 90);
        const QImage from = warmPicture(size);
        const QImage to = coldPicture(size);
        const QImage frame = render(TransitionType::SlideFromTopLeft, from, to, 25, 50);
        QCOMPARE(frame.copy(0, 0, 80, 45), to.copy(80, 45, 80, 45));
        // The shadow of the incoming picture ends before the far corner.
        QCOMPARE(frame.copy(120, 70, 40, 20), from.copy(40, 25, 40, 20));
    }
};

QTEST_GUILESS_MAIN(SlideTransitionTest)
#include "SlideTransitionTest.moc"
