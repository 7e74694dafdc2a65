// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/slides/TransitionType.h"

#include <QSet>
#include <QTest>

#include <limits>

using namespace velmora;

Q_DECLARE_METATYPE(velmora::TransitionType)

class TransitionTypeTest : public QObject
{
    Q_OBJECT
private slots:
    void namesOfTypes_data();
    void namesOfTypes();
    void unknownTypes_data();
    void unknownTypes();
    void findsNamesInAnyCase();
    void menuListsFadesAfterRandom();
};

void TransitionTypeTest::namesOfTypes_data()
{
    QTest::addColumn<TransitionType>("type");
    QTest::addColumn<QString>("name");
    const auto row = [](TransitionType type, const char *name) {
        QTest::newRow(name) << type << QString::fromLatin1(name);
    };
    row(TransitionType::None, "None");
    row(TransitionType::Random, "Random");
    row(TransitionType::Pixelate, "Pixelate");
    row(TransitionType::MosaicSpiralIn, "Mosaic Spiral In");
    row(TransitionType::MosaicSpiralOut, "Mosaic Spiral Out");
    row(TransitionType::MosaicStrips, "Mosaic Strips");
    row(TransitionType::MosaicWall, "Mosaic Wall");
    row(TransitionType::Checkerboard, "Checkerboard");
    row(TransitionType::RotateSingleOut, "Rotate Single Out");
    row(TransitionType::RotateSingleIn, "Rotate Single In");
    row(TransitionType::FlipOver, "Flip Over");
    row(TransitionType::WipeLeftToRight, "Wipe Left To Right");
    row(TransitionType::WipeRightToLeft, "Wipe Right To Left");
    row(TransitionType::WipeTopToBottom, "Wipe Top To Bottom");
    row(TransitionType::WipeBottomToTop, "Wipe Bottom To Top");
    row(TransitionType::WipeVerticalIn, "Wipe Vertical In");
    row(TransitionType::WipeVerticalOut, "Wipe Vertical Out");
    row(TransitionType::StretchHorizontal, "Stretch Horizontal");
    row(TransitionType::StretchVertical, "Stretch Vertical");
    row(TransitionType::ZoomIn, "Zoom In");
    row(TransitionType::ZoomOut, "Zoom Out");
    row(TransitionType::SlideFromBottom, "Slide From Bottom");
    row(TransitionType::SlideFromLeft, "Slide From Left");
    row(TransitionType::SlideFromRight, "Slide From Right");
    row(TransitionType::SlideFromTop, "Slide From Top");
    row(TransitionType::SlideFromTopLeft, "Slide From Top Left");
    row(TransitionType::FadeToBlack, "Fade To Black");
    row(TransitionType::CrossFade, "Cross fade");
    row(TransitionType::FadeToWhite, "Fade To White");
}

void TransitionTypeTest::namesOfTypes()
{
    QFETCH(TransitionType, type);
    QFETCH(QString, name);
    const int number = static_cast<int>(type);
    QCOMPARE(transitionName(number), name);
    QCOMPARE(translatedTransitionName(number), name);
    QCOMPARE(transitionByName(name), number);
    QCOMPARE(transitionFromInt(number), type);
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
