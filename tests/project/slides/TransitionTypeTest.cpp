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
    /// Documents hold the numbers, so neither they nor the names may change.
    void namesOfTypes()
    {
        const QString names = QStringLiteral(
            "None|Random|Pixelate|Mosaic Spiral In|Mosaic Spiral Out|Mosaic Strips|"
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

    void unknownTypes()
    {
        for (const int type : {-1, kTransitionCount, std::numeric_limits<int>::min(),
                               std::numeric_limits<int>::max()}) {
            QCOMPARE(transitionName(type), QStringLiteral("Unknown"));
            QCOMPARE(translatedTransitionName(type), QStringLiteral("Unknown"));
            QCOMPARE(transitionFromInt(type), TransitionType::None);
        }
        for (const char *name : {"Unknown", "", "Zoom"})
            QCOMPARE(transitionByName(QLatin1String(name)), -1);
        QCOMPARE(transitionByName(QStringLiteral("cross FADE")), 27);
    }

    void menuListsFadesAfterRandom()
    {
        const QVector<TransitionType> &order = transitionMenuOrder();
        int place = 0;
        for (const int type : {0, 1, 27, 26, 28, 2, 3})
            QCOMPARE(static_cast<int>(order.at(place++)), type);
        QCOMPARE(order.last(), TransitionType::SlideFromTopLeft);
        QSet<int> types;
        for (const TransitionType type : order)
            types.insert(static_cast<int>(type));
        QCOMPARE(order.size(), kTransitionCount);
        QCOMPARE(types.size(), kTransitionCount);
    }
};

QTEST_GUILESS_MAIN(TransitionTypeTest)
#include "TransitionTypeTest.moc"
