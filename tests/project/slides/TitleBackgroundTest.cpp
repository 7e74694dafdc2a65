// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/slides/TitleBackground.h"

#include <QTest>

#include <cstdlib>

using namespace velmora;

class TitleBackgroundTest : public QObject
{
    Q_OBJECT
private slots:
    void solidFillsWholePicture_data();
    void solidFillsWholePicture();
    void gradientRunsBetweenItsColors_data();
    void gradientRunsBetweenItsColors();
    void onlyWhiteHasOutline();
    void indexOutOfRangeLeavesPictureTransparent();
    void emptySizeGivesNullPicture();
    void captionColors_data();
    void captionColors();
};

namespace
{

constexpr QSize kSize(64, 512);

bool isNear(QRgb pixel, const QColor &color, int tolerance)
{
    return std::abs(qRed(pixel) - color.red()) <= tolerance &&
           std::abs(qGreen(pixel) - color.green()) <= tolerance &&
           std::abs(qBlue(pixel) - color.blue()) <= tolerance && qAlpha(pixel) == 255;
}

bool isUniform(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != image.pixel(0, 0)) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

void TitleBackgroundTest::solidFillsWholePicture_data()
{
    QTest::addColumn<QString>("color");
    const QStringList colors = {
        QStringLiteral("#ffffff"), QStringLiteral("#ffaec8"), QStringLiteral("#8e51c1"),
        QStringLiteral("#3f48cc"), QStringLiteral("#00a8f3"), QStringLiteral("#88001b"),
        QStringLiteral("#8cfffb"), QStringLiteral("#0ed145"), QStringLiteral("#c4ff0e"),
        QStringLiteral("#fff200"), QStringLiteral("#fdeca6"), QStringLiteral("#ffca18"),
        QStringLiteral("#ff7f27"), QStringLiteral("#ec1c24"), QStringLiteral("#000000"),
        QStringLiteral("#585858"), QStringLiteral("#c3c3c3"), QStringLiteral("#ffffff")};
    for (int index = 0; index < colors.size(); ++index) {
        QTest::addRow("%d", index) << colors.at(index);
    }
}

void TitleBackgroundTest::solidFillsWholePicture()
{
    QFETCH(QString, color);
    const int index = QByteArray(QTest::currentDataTag()).toInt();
    const QImage image = titleBackground(index, kSize, false);
    QCOMPARE(image.size(), kSize);
    QCOMPARE(image.format(), QImage::Format_ARGB32_Premultiplied);
    QCOMPARE(image.pixelColor(0, 0).name(), color);
    QVERIFY(isUniform(image));
}

void TitleBackgroundTest::gradientRunsBetweenItsColors_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QColor>("first");
    QTest::addColumn<QColor>("last");
    const auto row = [](int index, QRgb first, QRgb last) {
        QTest::addRow("%d", index) << index << QColor(first) << QColor(last);
    };
    row(18, 0xffffff, 0x000000);
    row(19, 0xffae18, 0xec1c3c);
    row(20, 0x8cffed, 0xffd300);
    row(21, 0x00c4f3, 0x0ed12e);
    row(22, 0x8151c1, 0x00c4f3);
    row(23, 0xec1c3c, 0x8151c1);
    row(24, 0xffffff, 0xc3c3c3);
    row(25, 0xffffff, 0xec1c3c);
    row(26, 0xffffff, 0xffae18);
    row(27, 0xffffff, 0x0ed12e);
    row(28, 0xffffff, 0x3f58cc);
    row(29, 0xffffff, 0x8151c1);
}

void TitleBackgroundTest::gradientRunsBetweenItsColors()
{
    QFETCH(int, index);
    QFETCH(QColor, first);
    QFETCH(QColor, last);
    const QImage image = titleBackground(index, kSize, false);
    QCOMPARE(image.size(), kSize);
    QCOMPARE(image.format(), QImage::Format_ARGB32_Premultiplied);
    const QColor middle((first.red() + last.red()) / 2, (first.green() + last.green()) / 2,
                        (first.blue() + last.blue()) / 2);
    for (const int x : {0, kSize.width() - 1}) {
        QVERIFY(isNear(image.pixel(x, 0), first, 2));
        QVERIFY(isNear(image.pixel(x, kSize.height() / 2), middle, 2));
        QVERIFY(isNear(image.pixel(x, kSize.height() - 1), last, 2));
    }
}

void TitleBackgroundTest::onlyWhiteHasOutline()
{
    const QImage image = titleBackground(0, kSize, true);
    const QRect inner = image.rect().adjusted(1, 1, -1, -1);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor expected = inner.contains(x, y) ? QColor(Qt::white) : QColor(Qt::gray);
            QCOMPARE(image.pixelColor(x, y), expected);
        }
    }
    for (int index = 1; index < kTitleBackgroundCount; ++index) {
        QCOMPARE(titleBackground(index, kSize, true), titleBackground(index, kSize, false));
    }
}

void TitleBackgroundTest::indexOutOfRangeLeavesPictureTransparent()
{
    for (const int index : {-1, kTitleBackgroundCount, 1000000, -1000000}) {
        const QImage image = titleBackground(index, kSize, true);
        QCOMPARE(image.size(), kSize);
        QVERIFY(isUniform(image));
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    }
}

void TitleBackgroundTest::emptySizeGivesNullPicture()
{
    for (const int index : {0, 5, 20, 30}) {
        QVERIFY(titleBackground(index, QSize(0, 10), true).isNull());
        QVERIFY(titleBackground(index, QSize(-1, -1), true).isNull());
    }
}

void TitleBackgroundTest::captionColors_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("color");
    const QStringList colors = {
        QStringLiteral("#000000"), QStringLiteral("#ffe7d9"), QStringLiteral("#ad4b6a"),
        QStringLiteral("#dcebff"), QStringLiteral("#dcebff"), QStringLiteral("#bdfffd"),
        QStringLiteral("#ffd0d2"), QStringLiteral("#5370a7"), QStringLiteral("#c5ffb1"),
        QStringLiteral("#437414"), QStringLiteral("#d1a12f"), QStringLiteral("#844843"),
        QStringLiteral("#af4a05"), QStringLiteral("#fff1ea"), QStringLiteral("#ffaeb1"),
        QStringLiteral("#ffaeb1"), QStringLiteral("#a7a7a7"), QStringLiteral("#000000"),
        QStringLiteral("#ffffff"), QStringLiteral("#feefea"), QStringLiteral("#41819d"),
        QStringLiteral("#ffffff"), QStringLiteral("#ffffff"), QStringLiteral("#ffffff"),
        QStringLiteral("#000000"), QStringLiteral("#fef1f3"), QStringLiteral("#000000"),
        QStringLiteral("#ffffff"), QStringLiteral("#ffffff"), QStringLiteral("#ffffff")};
    for (int index = 0; index < colors.size(); ++index) {
        QTest::addRow("%d", index) << index << colors.at(index);
    }
    QTest::newRow("below") << -1 << QStringLiteral("#000000");
    QTest::newRow("above") << kTitleBackgroundCount << QStringLiteral("#000000");
}

void TitleBackgroundTest::captionColors()
{
    QFETCH(int, index);
    QFETCH(QString, color);
    QCOMPARE(titleCaptionColor(index).name(), color);
}

QTEST_GUILESS_MAIN(TitleBackgroundTest)
#include "TitleBackgroundTest.moc"
