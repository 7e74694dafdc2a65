// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/slides/TitleBackground.h"

#include <QTest>

#include <cstdlib>

using namespace velmora;

namespace
{

constexpr QSize kSize(64, 512);

bool isNear(QRgb a, QRgb b)
{
    constexpr int kTolerance = 2;
    return std::abs(qRed(a) - qRed(b)) <= kTolerance &&
           std::abs(qGreen(a) - qGreen(b)) <= kTolerance &&
           std::abs(qBlue(a) - qBlue(b)) <= kTolerance && qAlpha(a) == qAlpha(b);
}

} // namespace

class TitleBackgroundTest : public QObject
{
    Q_OBJECT
private slots:
    /// Both ends of each kind, and what lies beyond.
    void colorsRunFromTopToBottom_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QRgb>("top");
        QTest::addColumn<QRgb>("middle");
        QTest::addColumn<QRgb>("bottom");
        QTest::addColumn<QRgb>("caption");
        const auto row = [](int index, QRgb top, QRgb middle, QRgb bottom, QRgb caption) {
            QTest::addRow("%d", index) << index << top << middle << bottom << caption;
        };
        row(0, 0xffffffff, 0xffffffff, 0xffffffff, 0xff000000);
        row(1, 0xffffaec8, 0xffffaec8, 0xffffaec8, 0xffffe7d9);
        row(17, 0xffffffff, 0xffffffff, 0xffffffff, 0xff000000);
        row(18, 0xffffffff, 0xff7f7f7f, 0xff000000, 0xffffffff);
        row(19, 0xffffae18, 0xfff5652a, 0xffec1c3c, 0xfffeefea);
        row(29, 0xffffffff, 0xffc0a8e0, 0xff8151c1, 0xffffffff);
        for (const int index : {-1, kTitleBackgroundCount, 1000000, -1000000})
            row(index, 0, 0, 0, 0xff000000);
    }

    void colorsRunFromTopToBottom()
    {
        QFETCH(int, index);
        QFETCH(QRgb, top);
        QFETCH(QRgb, middle);
        QFETCH(QRgb, bottom);
        const QImage image = titleBackground(index, kSize, false);
        QCOMPARE(image.size(), kSize);
        QCOMPARE(image.format(), QImage::Format_ARGB32_Premultiplied);
        for (int x = 0; x < kSize.width(); ++x) {
            QVERIFY(isNear(image.pixel(x, 0), top));
            QVERIFY(isNear(image.pixel(x, kSize.height() / 2), middle));
            QVERIFY(isNear(image.pixel(x, kSize.height() - 1), bottom));
        }
        QTEST(titleCaptionColor(index).rgba(), "caption");
    }

    void onlyWhiteHasOutline()
    {
        const QImage image = titleBackground(0, kSize, true);
        const QRect inner = image.rect().adjusted(1, 1, -1, -1);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor expected = inner.contains(x, y) ? QColor(Qt::white) : QColor(Qt::gray);
                QCOMPARE(image.pixelColor(x, y), expected);
            }
        }
        for (int index = 1; index <= kTitleBackgroundCount; ++index)
            QCOMPARE(titleBackground(index, kSize, true), titleBackground(index, kSize, false));
    }

    void emptySizeGivesNullPicture()
    {
        for (const int index : {0, 5, 20, 30}) {
            QVERIFY(titleBackground(index, QSize(0, 10), true).isNull());
            QVERIFY(titleBackground(index, QSize(-1, -1), true).isNull());
        }
    }
};

QTEST_GUILESS_MAIN(TitleBackgroundTest)
#include "TitleBackgroundTest.moc"
