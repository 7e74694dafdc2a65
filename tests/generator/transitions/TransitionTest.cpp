// SPDX-License-Identifier: GPL-3.0-or-later
#include "TransitionPictures.h"

#include "generator/transitions/Transition.h"

#include <QPainter>
#include <QtTest>

using namespace velmora;
using namespace velmora::testing;

Q_DECLARE_METATYPE(velmora::TransitionType)

namespace
{

QVector<TransitionType> realEffects()
{
    QVector<TransitionType> types;
    for (int type = kFirstRandomTransition; type < kTransitionCount; ++type)
        types.append(static_cast<TransitionType>(type));
    return types;
}

/// How much of a cold target is not seen yet, from 0 to 1: moved pictures count by their colour,
/// not by their details.
double shareStillMissing(const QImage &image, const QImage &target)
{
    double missing = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            missing += std::abs(qBlue(image.pixel(x, y)) - qBlue(target.pixel(x, y)));
    }
    return missing / (190.0 * image.width() * image.height());
}

bool isBlue(const QImage &image, const QPoint &place)
{
    return qBlue(image.pixel(place)) > 125;
}

} // namespace

class TransitionTest : public QObject
{
    Q_OBJECT
private slots:
    void endsAreTheTwoPictures_data() { everyEffectAndSize(); }
    void endsAreTheTwoPictures()
    {
        QFETCH(TransitionType, type);
        QFETCH(QSize, size);
        const QImage from = warmPicture(size);
        const QImage to = coldPicture(size);
        for (const int count : {1, 2, 25, 50, 75}) {
            QCOMPARE(render(type, from, to, 0, count), from);
            QCOMPARE(render(type, from, to, count, count), to);
        }
    }

    void everyPixelIsPainted_data() { everyEffectAndSize(); }
    void everyPixelIsPainted()
    {
        QFETCH(TransitionType, type);
        QFETCH(QSize, size);
        const QImage from = warmPicture(size);
        const QImage to = coldPicture(size);
        // What the target held before must not matter: two different fillings give one result.
        QImage first(size, QImage::Format_RGB32);
        QImage second(size, QImage::Format_RGB32);
        for (const int count : {2, 25, 50, 75}) {
            for (const int frame : {1, count / 4, count / 2, count - count / 4, count - 1}) {
                first.fill(qRgb(255, 0, 255));
                second.fill(qRgb(0, 255, 0));
                const uchar *before = first.constBits();
                renderTransitionFrame(type, from, to, {frame, count}, first);
                renderTransitionFrame(type, from, to, {frame, count}, second);
                QCOMPARE(first.constBits(), before);
                QCOMPARE(first, second);
                for (int y = 0; y < size.height(); ++y) {
                    for (int x = 0; x < size.width(); ++x)
                        QCOMPARE(qAlpha(reinterpret_cast<const QRgb *>(first.constScanLine(y))[x]),
                                 255);
                }
            }
        }
    }

    void movesToTheTargetInSteps_data() { everyEffect(); }
    void movesToTheTargetInSteps()
    {
        QFETCH(TransitionType, type);
        const QImage from = warmPicture({300, 200});
        const QImage to = coldPicture({300, 200});
        // The fades show their colour on the way: these only have to come near in the end.
        const bool detour =
            type == TransitionType::FadeToBlack || type == TransitionType::FadeToWhite;
        const double whole = meanDifference(from, to);
        double way = 0;
        double step = 0;
        double missing = 1; // five frames before
        QImage previous = from;
        for (int frame = 1; frame <= 50; ++frame) {
            const QByteArray at = QByteArray::number(frame);
            const QImage next = render(type, from, to, frame, 50);
            step = meanDifference(previous, next);
            QVERIFY2(frame == 50 || (step < 0.3 * whole && next != previous), at);
            way += step;
            previous = next;
            if (frame % 5 > 0)
                continue;
            const double rest = shareStillMissing(next, to);
            QVERIFY2(detour || rest <= missing + 0.02, at);
            QVERIFY2(frame < 45 || rest < 0.25, at);
            missing = rest;
        }
        QCOMPARE(previous, to);
        // It ends without a jump.
        QVERIFY2(step <= 1.5 * way / 50, qPrintable(QString::number(step / (way / 50))));
    }

    void paintsOnAnyDevice_data() { everyEffect(); }
    void paintsOnAnyDevice()
    {
        QFETCH(TransitionType, type);
        const QSize size(64, 48);
        const QImage from = warmPicture(size);
        const QImage to = coldPicture(size);
        const QImage expected = render(type, from, to, 9, 25);

        QImage other(size, QImage::Format_ARGB32_Premultiplied);
        other.fill(Qt::transparent);
        QPainter painter(&other);
        transitionFunction(type)(painter, from, to, {9, 25});
        painter.end();
        QCOMPARE(other.convertToFormat(QImage::Format_RGB32), expected);

        QImage larger(200, 100, QImage::Format_RGB32);
        larger.fill(Qt::white);
        painter.begin(&larger);
        painter.translate(100, 20);
        transitionFunction(type)(painter, from, to, {9, 25});
        painter.end();
        QCOMPARE(larger.copy(100, 20, 64, 48), expected);
        QCOMPARE(larger.pixel(50, 50), qRgb(255, 255, 255));
    }

    void goesItsWay_data()
    {
        QTest::addColumn<TransitionType>("type");
        QTest::addColumn<int>("percent");
        QTest::addColumn<QPoint>("changed");
        QTest::addColumn<QPoint>("unchanged");
        const auto row = [](TransitionType type, int percent, QPoint changed, QPoint unchanged) {
            QTest::addRow("%s at %d", qPrintable(transitionName(static_cast<int>(type))), percent)
                << type << percent << changed << unchanged;
        };
        using T = TransitionType;
        const QPoint left(5, 45), right(154, 45), top(80, 3), bottom(80, 86), middle(80, 45);
        const QPoint topLeft(3, 3), bottomRight(156, 86);
        row(T::WipeLeftToRight, 50, left, right);
        row(T::WipeRightToLeft, 50, right, left);
        row(T::WipeTopToBottom, 50, top, bottom);
        row(T::WipeBottomToTop, 50, bottom, top);
        row(T::WipeVerticalIn, 50, top, middle);
        row(T::WipeVerticalIn, 50, bottom, middle);
        row(T::WipeVerticalOut, 50, middle, top);
        row(T::WipeVerticalOut, 50, middle, bottom);
        row(T::StretchHorizontal, 50, left, right);
        row(T::StretchVertical, 50, top, bottom);
        row(T::ZoomIn, 50, middle, topLeft);
        row(T::ZoomOut, 50, topLeft, middle);
        row(T::RotateSingleIn, 50, middle, topLeft);
        row(T::RotateSingleOut, 50, topLeft, middle);
        row(T::SlideFromTopLeft, 50, topLeft, bottomRight);
        row(T::MosaicSpiralIn, 50, topLeft, middle);
        row(T::MosaicSpiralOut, 50, middle, topLeft);
        row(T::MosaicWall, 50, bottom, top);
        row(T::MosaicStrips, 30, topLeft, bottomRight);
        row(T::MosaicStrips, 40, QPoint(3, 5), QPoint(3, 15));
        row(T::Checkerboard, 50, QPoint(8, 8), QPoint(23, 8));
        row(T::Checkerboard, 50, QPoint(23, 22), QPoint(8, 22));
        row(T::Pixelate, 60, middle, QPoint(-1, -1));
    }
    void goesItsWay()
    {
        QFETCH(TransitionType, type);
        QFETCH(int, percent);
        QFETCH(QPoint, changed);
        QFETCH(QPoint, unchanged);
        const QSize size(160, 90);
        const QImage frame = render(type, warmPicture(size), coldPicture(size), percent, 100);
        QVERIFY(isBlue(frame, changed));
        if (unchanged.x() >= 0)
            QVERIFY(!isBlue(frame, unchanged));
    }

    void effectsDiffer()
    {
        const QSize size(160, 90);
        const QImage from = warmPicture(size);
        const QImage to = coldPicture(size);
        QVector<QImage> frames = {render(TransitionType::None, from, to, 12, 25)};
        for (const TransitionType type : realEffects()) {
            const QImage frame = render(type, from, to, 12, 25);
            for (const QImage &other : qAsConst(frames))
                QVERIFY2(meanDifference(frame, other) > 2, qPrintable(transitionName(int(type))));
            frames.append(frame);
        }
    }

    void flipShowsTheTargetUnmirrored()
    {
        // Red grows to the right in both pictures: it must do so on the card's face and on its
        // back.
        const QSize size(160, 90);
        const QImage from = warmPicture(size);
        const QImage to = coldPicture(size);
        const QImage front = render(TransitionType::FlipOver, from, to, 30, 100);
        QVERIFY(!isBlue(front, {80, 45}));
        QVERIFY(qRed(front.pixel(60, 45)) + 15 < qRed(front.pixel(100, 45)));
        const QImage back = render(TransitionType::FlipOver, from, to, 70, 100);
        QVERIFY(isBlue(back, {80, 45}));
        QVERIFY(qRed(back.pixel(60, 45)) + 15 < qRed(back.pixel(100, 45)));
        // Perspective: one upright edge of the turning card is longer than the other.
        const auto heightAt = [&](const QImage &image, int x) {
            int rows = 0;
            for (int y = 0; y < size.height(); ++y)
                rows += qGreen(image.pixel(x, y)) != qGreen(image.pixel(x, 0)) ? 1 : 0;
            return rows;
        };
        QVERIFY(std::abs(heightAt(front, 55) - heightAt(front, 105)) > 2);
    }

    void fadesPassTheirColour()
    {
        const QImage from = warmPicture({8, 8});
        const QImage to = coldPicture({8, 8});
        const QImage black = render(TransitionType::FadeToBlack, from, to, 25, 50);
        const QImage white = render(TransitionType::FadeToWhite, from, to, 25, 50);
        QCOMPARE(black.pixel(4, 4), qRgb(0, 0, 0));
        QCOMPARE(white.pixel(4, 4), qRgb(255, 255, 255));
        QVERIFY(qBlue(render(TransitionType::FadeToBlack, from, to, 10, 50).pixel(4, 4)) < 30);
        QCOMPARE(render(TransitionType::Random, from, to, 7, 50),
                 render(TransitionType::CrossFade, from, to, 7, 50));
    }

    void noneShowsTheTarget()
    {
        const QImage from = warmPicture({20, 10});
        const QImage to = coldPicture({20, 10});
        for (const int type : {static_cast<int>(TransitionType::None), 77, -1}) {
            for (int frame = 0; frame < 3; ++frame)
                QCOMPARE(render(static_cast<TransitionType>(type), from, to, frame, 3), to);
        }
    }

    void acceptsUnequalPictures()
    {
        const QImage to = coldPicture({40, 30});
        const QImage from = warmPicture({400, 300}).convertToFormat(QImage::Format_ARGB32);
        QCOMPARE(render(TransitionType::ZoomIn, from, to, 3, 10).size(), to.size());
        QCOMPARE(render(TransitionType::CrossFade, QImage(), to, 0, 10).pixel(5, 5), qRgb(0, 0, 0));
        QVERIFY(render(TransitionType::CrossFade, QImage(), QImage(), 0, 10).isNull());
    }

private:
    void everyEffect()
    {
        QTest::addColumn<TransitionType>("type");
        for (const TransitionType type : realEffects())
            QTest::newRow(qPrintable(transitionName(static_cast<int>(type)))) << type;
    }

    void everyEffectAndSize()
    {
        QTest::addColumn<TransitionType>("type");
        QTest::addColumn<QSize>("size");
        const QVector<QSize> sizes = {{1, 1},   {2, 2},    {1, 9},    {16, 9},
                                      {97, 61}, {90, 160}, {160, 90}, {300, 20}};
        for (const TransitionType type : realEffects()) {
            for (const QSize &size : sizes) {
                QTest::addRow("%s %dx%d", qPrintable(transitionName(static_cast<int>(type))),
                              size.width(), size.height())
                    << type << size;
            }
        }
    }
};

QTEST_GUILESS_MAIN(TransitionTest)
#include "TransitionTest.moc"
