// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/slides/TransitionType.h"

#include <QSet>
#include <QTest>

#include <limits>

using namespace velmora;

class TransitionTypeTest : public QObject
{
    Q_OBJECT
private slots:
    void namesOfTypes();
    void unknownTypes_data();
    void unknownTypes();
    void findsNamesInAnyCase();
    void menuListsFadesAfterRandom();
};

/// Documents hold the numbers, so neither they nor the names may change.
void TransitionTypeTest::namesOfTypes()
{
    const QString names =
        QStringLiteral("None|Random|Pixelate|Mosaic Spiral In|Mosaic Spiral Out|Mosaic Strips|"
                       "Mosaic Wall|Checkerboard|Rotate Single Out|Rotate Single In|Flip Over|"
                       "Wipe Left To Right|Wipe Right To Left|Wipe Top To Bottom|"
                       "Wipe Bottom To Top|Wipe Vertical In|Wipe Vertical Out|Stretch Horizontal|"
                       "Stretch Vertical|Zoom In|Zoom Out|Slide From Bottom|Slide From Left|"
                       "Slide From Right|Slide From Top|Slide From Top Left|Fade To Black|"
                       "Cross fade|Fade To White");
    int number = 0;
    for (const QString &name : names.split(QLatin1Char('|'))) {
        QCOMPARE(transitionName(number), name);
        QCOMPARE(translatedTransitionName(number), name);
        QCOMPARE(transitionByName(name), number);
        QCOMPARE(static_cast<int>(transitionFromInt(number)), number);
        ++number;
    }
    QCOMPARE(number, kTransitionCount);
}

void TransitionTypeTest::unknownTypes_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("negative") << -1;
    QTest::newRow("past the end") << kTransitionCount;
    QTest::newRow("lowest") << std::numeric_limits<int>::min();
    QTest::newRow("highest") << std::numeric_limits<int>::max();
}

void TransitionTypeTest::unknownTypes()
{
    QFETCH(int, type);
    QCOMPARE(transitionName(type), QStringLiteral("Unknown"));
    QCOMPARE(translatedTransitionName(type), QStringLiteral("Unknown"));
    QCOMPARE(transitionFromInt(type), TransitionType::None);
}

void TransitionTypeTest::findsNamesInAnyCase()
{
    QCOMPARE(transitionByName(QStringLiteral("cross FADE")), 27);
    QCOMPARE(transitionByName(QStringLiteral("Unknown")), -1);
    QCOMPARE(transitionByName(QString()), -1);
    QCOMPARE(transitionByName(QStringLiteral("Zoom")), -1);
}

void TransitionTypeTest::menuListsFadesAfterRandom()
{
    const QVector<TransitionType> &order = transitionMenuOrder();
    const QVector<int> start = {0, 1, 27, 26, 28, 2, 3};
    for (int i = 0; i < start.size(); ++i) {
        QCOMPARE(static_cast<int>(order.at(i)), start.at(i));
    }
    QCOMPARE(order.last(), TransitionType::SlideFromTopLeft);
    QSet<int> types;
    for (const TransitionType type : order) {
        types.insert(static_cast<int>(type));
    }
    QCOMPARE(order.size(), kTransitionCount);
    QCOMPARE(types.size(), kTransitionCount);
}

QTEST_GUILESS_MAIN(TransitionTypeTest)
#include "TransitionTypeTest.moc"
