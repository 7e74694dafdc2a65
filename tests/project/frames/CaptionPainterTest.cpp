// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/frames/CaptionPainter.h"

#include "project/frames/CaptionFont.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QTest>

#include <cmath>
#include <cstdlib>
#include <thread>

using namespace velmora;

class CaptionPainterTest : public QObject
{
    Q_OBJECT
private slots:
    void boxKeepsItsDistance_data();
    void boxKeepsItsDistance();
    void sizeStepsDown_data();
    void sizeStepsDown();
    void wideTextStepsDown();
    void lastSizeIsDrawnEvenIfItOverflows();
    void backgroundFillsTheBoxOnly();
    void withoutBackgroundOnlyTextIsPainted();
    void pictureIsTheFrameCutToTheBox();
    void layoutIsTheSameAtEverySize_data();
    void layoutIsTheSameAtEverySize();
    void blankCaptionPaintsNothing();
    void hostileCaptionsDoNoHarm_data();
    void hostileCaptionsDoNoHarm();
    void otherThreadsPaintTheSame();
    void missingFontIsSubstituted();
};

namespace
{

constexpr QRgb kFrameColor = 0xff204060;

QImage emptyFrame(const QSize &size)
{
    QImage frame(size, QImage::Format_RGB32);
    frame.fill(kFrameColor);
    return frame;
}

CaptionStyle captionOf(const QString &text, int position, const QColor &background = Qt::red)
{
    CaptionStyle caption;
    caption.text = text;
    caption.position = position;
    caption.backgroundColor = background;
    return caption;
}

QString lines(int count)
{
    return QStringList(QVector<QString>(count, QStringLiteral("Hlm")).toList())
        .join(QLatin1Char('\n'));
}

/// The rectangle of all pixels that differ from an empty frame.
QRect paintedArea(const QImage &frame)
{
    QRect area;
    for (int y = 0; y < frame.height(); ++y) {
        for (int x = 0; x < frame.width(); ++x) {
            if (frame.pixel(x, y) != kFrameColor)
                area |= QRect(x, y, 1, 1);
        }
    }
    return area;
}

bool isAbout(double a, double b, double tolerance)
{
    return std::abs(a - b) <= tolerance;
}

} // namespace

void CaptionPainterTest::boxKeepsItsDistance_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("distance"); // from the frame's edge
    for (const int position : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, -1}) {
        QTest::addRow("1024 at %d", position) << 1024 << position << 30;
        QTest::addRow("512 at %d", position) << 512 << position << 15;
    }
    QTest::newRow("truncated") << 1000 << 0 << 29; // margin 29.3
}

void CaptionPainterTest::boxKeepsItsDistance()
{
    QFETCH(int, width);
    QFETCH(int, position);
    QFETCH(int, distance);
    QImage frame = emptyFrame(QSize(width, width * 9 / 16));
    const QRect box = paintCaption(frame, captionOf(QStringLiteral("Hlm"), position)).box;
    const int cell = position < 0 || position > 8 ? 0 : position;
    const QPoint middle = frame.rect().center();
    const int last = distance + 1; // from the edge to the last pixel inside
    switch (cell % 3) {
    case 0:
        QCOMPARE(box.left(), distance);
        break;
    case 1:
        QVERIFY(isAbout(box.center().x(), middle.x(), 1));
        break;
    default:
        QCOMPARE(frame.width() - box.right(), last);
        break;
    }
    switch (cell / 3) {
    case 0:
        QCOMPARE(box.top(), distance);
        break;
    case 1:
        QVERIFY(isAbout(box.center().y(), middle.y(), 1));
        break;
    default:
        QCOMPARE(frame.height() - box.bottom(), last);
        break;
    }
}

void CaptionPainterTest::sizeStepsDown_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("lineCount");
    QTest::addColumn<int>("pixelSize"); // at 1024 px
    // A frame of 1024 by 576 leaves 456 px, and a line of Open Sans is 1.36 times its size.
    QTest::newRow("largest") << 1 << 1 << 48;
    QTest::newRow("still largest") << 4 << 6 << 48;
    QTest::newRow("second") << 4 << 8 << 40;
    QTest::newRow("third") << 8 << 10 << 32;
    QTest::newRow("fourth") << 3 << 13 << 24;
    QTest::newRow("fifth") << 5 << 18 << 18;
    QTest::newRow("sixth") << 6 << 25 << 12;
    QTest::newRow("seventh") << 7 << 38 << 8;
    QTest::newRow("last") << 2 << 70 << 4;
    QTest::newRow("corner largest") << 0 << 1 << 32;
    QTest::newRow("corner still largest") << 0 << 10 << 32;
    QTest::newRow("corner second") << 0 << 12 << 26;
    QTest::newRow("corner third") << 0 << 15 << 21;
    QTest::newRow("corner fourth") << 0 << 20 << 16;
    QTest::newRow("corner last") << 0 << 70 << 4;
    QTest::newRow("out of range as corner") << 9 << 1 << 32;
}

void CaptionPainterTest::sizeStepsDown()
{
    QFETCH(int, position);
    QFETCH(int, lineCount);
    QFETCH(int, pixelSize);
    for (const int scale : {1, 2}) {
        QImage frame = emptyFrame(QSize(1024, 576) * scale);
        const CaptionStyle caption = captionOf(lines(lineCount), position);
        const int height = paintCaption(frame, caption).box.height() - 60 * scale;
        const QFontMetricsF metrics(captionFont(caption.fontFamily, pixelSize * scale));
        // Each line's height is rounded up in a layout, and so are both edges of the whole.
        QVERIFY2(isAbout(height, lineCount * metrics.lineSpacing(), lineCount + 2),
                 qPrintable(QStringLiteral("%1 px").arg(height)));
    }
}

void CaptionPainterTest::wideTextStepsDown()
{
    int previous = 1000;
    for (const int length : {10, 25, 40, 80, 160}) {
        QImage frame = emptyFrame(QSize(1024, 576));
        const QRect box = paintCaption(frame, captionOf(QString(length, QLatin1Char('M')), 4)).box;
        QVERIFY2(box.width() <= 904 + 60, qPrintable(QString::number(length)));
        QVERIFY(box.height() < previous);
        previous = box.height();
    }
}

void CaptionPainterTest::lastSizeIsDrawnEvenIfItOverflows()
{
    QImage frame = emptyFrame(QSize(1024, 576));
    const PaintedCaption painted =
        paintCaption(frame, captionOf(QString(2000, QLatin1Char('M')), 4, QColor()));
    QCOMPARE(painted.box.width(), 1024);
    QVERIFY(painted.box.height() < 80);
    QVERIFY(paintedArea(frame).width() > 800);
}

void CaptionPainterTest::backgroundFillsTheBoxOnly()
{
    QImage frame = emptyFrame(QSize(1024, 576));
    const QRect box = paintCaption(frame, captionOf(QStringLiteral("Hlm"), 8)).box;
    QCOMPARE(paintedArea(frame), box);
    for (const QPoint &corner :
         {box.topLeft(), box.topRight(), box.bottomLeft(), box.bottomRight()})
        QCOMPARE(frame.pixel(corner), QColor(Qt::red).rgb());
}

void CaptionPainterTest::withoutBackgroundOnlyTextIsPainted()
{
    QImage frame = emptyFrame(QSize(1024, 576));
    CaptionStyle caption = captionOf(QStringLiteral("Hlm"), 4, QColor());
    caption.textColor = Qt::green;
    const QRect box = paintCaption(frame, caption).box;
    const QRect text = paintedArea(frame);
    QVERIFY(box.adjusted(30, 30, -30, -30).contains(text));
    QVERIFY(text.width() > 60 && text.height() > 30);
    int solid = 0;
    for (int x = text.left(); x <= text.right(); ++x)
        solid += frame.pixel(x, text.center().y()) == QColor(Qt::green).rgb();
    QVERIFY(solid > 0);
}

void CaptionPainterTest::pictureIsTheFrameCutToTheBox()
{
    QImage frame = emptyFrame(QSize(640, 480));
    const PaintedCaption painted = paintCaption(frame, captionOf(QStringLiteral("Hlm"), 7));
    QVERIFY(frame.rect().contains(painted.box));
    QCOMPARE(painted.picture, frame.copy(painted.box));
}

void CaptionPainterTest::layoutIsTheSameAtEverySize_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("position");
    QTest::newRow("short") << QStringLiteral("A day at the sea") << 8;
    QTest::newRow("lines") << QStringLiteral("A day\nat the sea\nwith everyone") << 0;
    QTest::newRow("long") << QString(30, QLatin1Char('m')) << 4;
}

void CaptionPainterTest::layoutIsTheSameAtEverySize()
{
    QFETCH(QString, text);
    QFETCH(int, position);
    const CaptionStyle caption = captionOf(text, position);
    QImage reference = emptyFrame(QSize(1024, 576));
    const QRectF expected = paintCaption(reference, caption).box;
    for (const int width : {512, 1920, 3840}) {
        QImage frame = emptyFrame(QSize(width, width * 9 / 16));
        const QRectF box = paintCaption(frame, caption).box;
        const double scale = width / 1024.0;
        // Margins and line heights are whole pixels; three lines add up to some of them.
        const double tolerance = 4 * std::max(1.0, scale);
        QVERIFY(isAbout(box.left(), expected.left() * scale, tolerance));
        QVERIFY(isAbout(box.top(), expected.top() * scale, tolerance));
        QVERIFY(isAbout(box.width(), expected.width() * scale, tolerance));
        QVERIFY(isAbout(box.height(), expected.height() * scale, tolerance));
    }
}

void CaptionPainterTest::blankCaptionPaintsNothing()
{
    QImage frame = emptyFrame(QSize(640, 480));
    const PaintedCaption painted = paintCaption(frame, captionOf(QStringLiteral(" \n "), 4));
    QVERIFY(painted.box.isEmpty());
    QVERIFY(painted.picture.isNull());
    QCOMPARE(frame, emptyFrame(QSize(640, 480)));
}

void CaptionPainterTest::hostileCaptionsDoNoHarm_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSize>("size");
    QTest::newRow("endless line") << QString(1000000, QLatin1Char('M')) << QSize(640, 360);
    QTest::newRow("endless lines")
        << QString(200000, QLatin1Char('\n')) + QLatin1Char('x') << QSize(640, 360);
    QTest::newRow("one pixel") << QStringLiteral("Hlm") << QSize(1, 1);
    QTest::newRow("narrow") << QStringLiteral("Hlm") << QSize(3, 500);
    QTest::newRow("flat") << QStringLiteral("Hlm") << QSize(1920, 20);
    QTest::newRow("lone surrogates") << QString(50, QChar(0xd800)) << QSize(640, 360);
}

void CaptionPainterTest::hostileCaptionsDoNoHarm()
{
    QFETCH(QString, text);
    QFETCH(QSize, size);
    QImage frame = emptyFrame(size);
    const PaintedCaption painted = paintCaption(frame, captionOf(text, 4));
    QVERIFY(frame.rect().contains(painted.box));
    QCOMPARE(painted.picture.size(), painted.box.size());
}

void CaptionPainterTest::otherThreadsPaintTheSame()
{
    const CaptionStyle caption = captionOf(QStringLiteral("A day\nat the sea"), 3);
    QImage expected = emptyFrame(QSize(800, 600));
    paintCaption(expected, caption);
    QImage frames[2] = {emptyFrame(QSize(800, 600)), emptyFrame(QSize(800, 600))};
    std::thread first([&] { paintCaption(frames[0], caption); });
    std::thread second([&] { paintCaption(frames[1], caption); });
    first.join();
    second.join();
    QCOMPARE(frames[0], expected);
    QCOMPARE(frames[1], expected);
}

void CaptionPainterTest::missingFontIsSubstituted()
{
    const QString family = QFontInfo(captionFont(QStringLiteral("Segoe UI"), 20)).family();
    QVERIFY2(family == QLatin1String("Segoe UI") || family == QLatin1String("Open Sans") ||
                 family == QLatin1String("Noto Sans"),
             qPrintable(family));
}

QTEST_MAIN(CaptionPainterTest)
#include "CaptionPainterTest.moc"
