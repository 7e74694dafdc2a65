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
    return QStringLiteral("Hlm\n").repeated(count).chopped(1);
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

struct Painting : PaintedCaption {
    QImage frame;
};

/// A caption on an empty frame.
Painting painted(const CaptionStyle &caption, const QSize &size = QSize(1024, 576))
{
    QImage frame = emptyFrame(size);
    return {paintCaption(frame, caption), frame};
}

} // namespace

class CaptionPainterTest : public QObject
{
    Q_OBJECT
private slots:
    void boxKeepsItsDistance_data()
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

    void boxKeepsItsDistance()
    {
        QFETCH(int, width);
        QFETCH(int, position);
        QFETCH(int, distance);
        const Painting painting =
            painted(captionOf(QStringLiteral("Hlm"), position), QSize(width, width * 9 / 16));
        const QRect &box = painting.box;
        // What the frame leaves of itself before and behind the box.
        const auto isInPlace = [distance](int third, int before, int behind) {
            return third == 1 ? isAbout(before, behind, 2)
                              : (third == 0 ? before : behind) == distance;
        };
        const int cell = position < 0 || position > 8 ? 0 : position;
        QVERIFY(isInPlace(cell % 3, box.left(), width - 1 - box.right()));
        QVERIFY(isInPlace(cell / 3, box.top(), painting.frame.height() - 1 - box.bottom()));
    }

    void sizeStepsDown_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<int>("lineCount");
        QTest::addColumn<int>("pixelSize"); // at 1024 px
        // A frame of 1024 by 576 leaves 456 px, and a line of Open Sans is 1.36 times its size.
        const int rows[][3] = {{1, 1, 48},  {4, 6, 48},  {4, 8, 40},  {8, 10, 32},
                               {3, 13, 24}, {5, 18, 18}, {6, 25, 12}, {7, 38, 8},
                               {2, 70, 4},  {0, 1, 32},  {0, 10, 32}, {0, 12, 26},
                               {0, 15, 21}, {0, 20, 16}, {0, 70, 4},  {9, 1, 32}};
        for (const auto &row : rows)
            QTest::addRow("%d lines at %d", row[1], row[0]) << row[0] << row[1] << row[2];
    }

    void sizeStepsDown()
    {
        QFETCH(int, position);
        QFETCH(int, lineCount);
        QFETCH(int, pixelSize);
        for (const int scale : {1, 2}) {
            const CaptionStyle caption = captionOf(lines(lineCount), position);
            const int height = painted(caption, QSize(1024, 576) * scale).box.height() - 60 * scale;
            const QFontMetricsF metrics(captionFont(caption.fontFamily, pixelSize * scale));
            // Each line's height is rounded up in a layout, and so are both edges of the whole.
            QVERIFY2(isAbout(height, lineCount * metrics.lineSpacing(), lineCount + 2),
                     qPrintable(QStringLiteral("%1 px").arg(height)));
        }
    }

    void wideTextStepsDown()
    {
        int previous = 1000;
        for (const int length : {10, 25, 40, 80, 160}) {
            const QRect box = painted(captionOf(QString(length, QLatin1Char('M')), 4)).box;
            QVERIFY2(box.width() <= 904 + 60, qPrintable(QString::number(length)));
            QVERIFY(box.height() < previous);
            previous = box.height();
        }
    }

    void lastSizeIsDrawnEvenIfItOverflows()
    {
        const Painting painting = painted(captionOf(QString(2000, QLatin1Char('M')), 4, QColor()));
        QCOMPARE(painting.box.width(), 1024);
        QVERIFY(painting.box.height() < 80);
        QVERIFY(paintedArea(painting.frame).width() > 800);
    }

    void backgroundFillsTheBoxOnly()
    {
        const Painting painting = painted(captionOf(QStringLiteral("Hlm"), 8));
        const QRect &box = painting.box;
        QCOMPARE(paintedArea(painting.frame), box);
        for (const QPoint &corner :
             {box.topLeft(), box.topRight(), box.bottomLeft(), box.bottomRight()})
            QCOMPARE(painting.frame.pixel(corner), QColor(Qt::red).rgb());
        QCOMPARE(painting.picture, painting.frame.copy(box));
    }

    void withoutBackgroundOnlyTextIsPainted()
    {
        CaptionStyle caption = captionOf(QStringLiteral("Hlm"), 4, QColor());
        caption.textColor = Qt::green;
        const Painting painting = painted(caption);
        const QRect text = paintedArea(painting.frame);
        QVERIFY(painting.box.adjusted(30, 30, -30, -30).contains(text));
        QVERIFY(text.width() > 60 && text.height() > 30);
        int solid = 0;
        for (int x = text.left(); x <= text.right(); ++x)
            solid += painting.frame.pixel(x, text.center().y()) == QColor(Qt::green).rgb();
        QVERIFY(solid > 0);
    }

    void layoutIsTheSameAtEverySize_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("position");
        QTest::newRow("short") << "A day at the sea" << 8;
        QTest::newRow("lines") << "A day\nat the sea\nwith everyone" << 0;
        QTest::newRow("long") << QString(30, QLatin1Char('m')) << 4;
    }

    void layoutIsTheSameAtEverySize()
    {
        QFETCH(QString, text);
        QFETCH(int, position);
        const CaptionStyle caption = captionOf(text, position);
        const QRectF expected = painted(caption).box;
        for (const int width : {512, 1920, 3840}) {
            const QRectF box = painted(caption, QSize(width, width * 9 / 16)).box;
            const double scale = width / 1024.0;
            // Margins and line heights are whole pixels; three lines add up to some of them.
            const double tolerance = 4 * std::max(1.0, scale);
            QVERIFY(isAbout(box.left(), expected.left() * scale, tolerance));
            QVERIFY(isAbout(box.top(), expected.top() * scale, tolerance));
            QVERIFY(isAbout(box.width(), expected.width() * scale, tolerance));
            QVERIFY(isAbout(box.height(), expected.height() * scale, tolerance));
        }
    }

    void blankCaptionPaintsNothing()
    {
        const Painting painting = painted(captionOf(QStringLiteral(" \n\t\u00a0"), 4));
        QVERIFY(painting.box.isEmpty());
        QVERIFY(painting.picture.isNull());
        QCOMPARE(painting.frame, emptyFrame(painting.frame.size()));
    }

    void hostileCaptionsDoNoHarm_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QSize>("size");
        QTest::newRow("endless line") << QString(1000000, QLatin1Char('M')) << QSize(640, 360);
        QTest::newRow("endless lines")
            << QString(200000, QLatin1Char('\n')) + QLatin1Char('x') << QSize(640, 360);
        QTest::newRow("one pixel") << "Hlm" << QSize(1, 1);
        QTest::newRow("narrow") << "Hlm" << QSize(3, 500);
        QTest::newRow("flat") << "Hlm" << QSize(1920, 20);
        QTest::newRow("lone surrogates") << QString(50, QChar(0xd800)) << QSize(640, 360);
    }

    void hostileCaptionsDoNoHarm()
    {
        QFETCH(QString, text);
        QFETCH(QSize, size);
        const Painting painting = painted(captionOf(text, 4), size);
        QVERIFY(painting.frame.rect().contains(painting.box));
        QCOMPARE(painting.picture.size(), painting.box.size());
    }

    void otherThreadsPaintTheSame()
    {
        const CaptionStyle caption = captionOf(QStringLiteral("A day\nat the sea"), 3);
        const QImage expected = painted(caption).frame;
        QImage frames[2];
        std::thread first([&] { frames[0] = painted(caption).frame; });
        std::thread second([&] { frames[1] = painted(caption).frame; });
        first.join();
        second.join();
        QCOMPARE(frames[0], expected);
        QCOMPARE(frames[1], expected);
    }

    void missingFontIsSubstituted()
    {
        const QString family = QFontInfo(captionFont(QStringLiteral("Segoe UI"), 20)).family();
        QVERIFY2(family == QLatin1String("Segoe UI") || family == QLatin1String("Open Sans") ||
                     family == QLatin1String("Noto Sans"),
                 qPrintable(family));
    }
};

QTEST_MAIN(CaptionPainterTest)
#include "CaptionPainterTest.moc"
