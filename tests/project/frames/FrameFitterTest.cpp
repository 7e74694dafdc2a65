// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/frames/FrameFitter.h"

#include "project/images/Pictures.h"

#include <QTest>
#include <QTransform>

using namespace velmora;

namespace
{

const FrameFormat kFitted{QSize(160, 90), true, true};
const FrameFormat kStretched{QSize(160, 90), false, true};
const FrameFormat kOwnSize{QSize(160, 90), true, false};

/// A photo whose every pixel differs from its neighbours.
QImage numberedPixels(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x & 255, y & 255, (x >> 8) * 16 + (y >> 8)));
    }
    return image;
}

} // namespace

Q_DECLARE_METATYPE(velmora::FrameFormat)

class FrameFitterTest : public QObject
{
    Q_OBJECT
private slots:
    /// Beside what photoFillsItsRect shows.
    void fittedRect_data()
    {
        QTest::addColumn<QSize>("photo");
        QTest::addColumn<FrameFormat>("format");
        QTest::addColumn<QRect>("rect");
        QTest::newRow("bars above and below") << QSize(320, 90) << kFitted << QRect(0, 22, 160, 45);
        const FrameFormat odd{{326, 183}, true, true};
        QTest::newRow("no bar of a pixel") << QSize(1600, 900) << odd << QRect(0, 0, 326, 183);
        QTest::newRow("a line stays visible") << QSize(4000, 1) << kFitted << QRect(0, 44, 160, 1);
        QTest::newRow("own size") << QSize(360, 290) << kOwnSize << QRect(-100, -100, 360, 290);
        const FrameFormat both{{160, 90}, false, false};
        QTest::newRow("stretched, own size") << QSize(400, 300) << both << QRect(0, 0, 160, 90);
        QTest::newRow("no photo") << QSize() << kFitted << QRect();
        QTest::newRow("no frame") << QSize(4, 3) << FrameFormat{{0, 90}, true, true} << QRect();
    }

    void fittedRect()
    {
        QFETCH(QSize, photo);
        QFETCH(FrameFormat, format);
        QTEST(velmora::fittedRect(photo, format), "rect");
    }

    void photoFillsItsRect_data()
    {
        QTest::addColumn<QSize>("photo");
        QTest::addColumn<int>("angle");
        QTest::addColumn<FrameFormat>("format");
        QTest::addColumn<QRect>("rect");
        QTest::addColumn<QString>("shown");
        const QSize photo(400, 300);
        const QRect upright(20, 0, 120, 90);
        const QRect turned(46, 0, 68, 90);
        QTest::newRow("0") << photo << 0 << kFitted << upright << "RGBW";
        QTest::newRow("90") << photo << 90 << kFitted << turned << "BRWG";
        QTest::newRow("180") << photo << 180 << kFitted << upright << "WBGR";
        QTest::newRow("270") << photo << 270 << kFitted << turned << "GWRB";
        QTest::newRow("-90") << photo << -90 << kFitted << turned << "GWRB";
        QTest::newRow("450") << photo << 450 << kFitted << turned << "BRWG";
        QTest::newRow("-720") << photo << -720 << kFitted << upright << "RGBW";
        QTest::newRow("enlarged") << QSize(8, 6) << 90 << kFitted << turned << "BRWG";
        const QRect frame(0, 0, 160, 90);
        QTest::newRow("stretched") << photo << 0 << kStretched << frame << "RGBW";
        QTest::newRow("stretched 90") << photo << 90 << kStretched << frame << "BRWG";
        QTest::newRow("own") << QSize(40, 30) << 270 << kOwnSize << QRect(65, 25, 30, 40) << "GWRB";
    }

    void photoFillsItsRect()
    {
        QFETCH(QSize, photo);
        QFETCH(int, angle);
        QFETCH(FrameFormat, format);
        QFETCH(QRect, rect);
        const QImage frame = fitPhoto(Pictures::quadrants(photo), angle, format);
        QCOMPARE(frame.size(), format.size);
        QCOMPARE(frame.format(), QImage::Format_RGB32);
        QTEST(Pictures::quadrantNames(frame, rect), "shown");
        for (int y = 0; y < frame.height(); ++y) {
            for (int x = 0; x < frame.width(); ++x)
                QCOMPARE(frame.pixel(x, y) == qRgb(0, 0, 0), !rect.contains(x, y));
        }
    }

    void photoOfOwnSizeIsCutExactly_data()
    {
        QTest::addColumn<QSize>("photo");
        QTest::addColumn<int>("angle");
        for (const int angle : {0, 90, 180, 270}) {
            QTest::addRow("large %d", angle) << QSize(701, 503) << angle;
            QTest::addRow("wide %d", angle) << QSize(301, 21) << angle;
            QTest::addRow("tall %d", angle) << QSize(20, 300) << angle;
            QTest::addRow("as the frame %d", angle) << QSize(160, 90) << angle;
        }
    }

    void photoOfOwnSizeIsCutExactly()
    {
        QFETCH(QSize, photo);
        QFETCH(int, angle);
        const QImage picture = numberedPixels(photo);
        const QImage turned = picture.transformed(QTransform().rotate(angle));
        const QRect rect = velmora::fittedRect(turned.size(), kOwnSize);
        const QImage frame = fitPhoto(picture, angle, kOwnSize);
        for (int y = 0; y < frame.height(); ++y) {
            for (int x = 0; x < frame.width(); ++x) {
                const QRgb expected =
                    rect.contains(x, y) ? turned.pixel(x - rect.x(), y - rect.y()) : qRgb(0, 0, 0);
                QCOMPARE(frame.pixel(x, y), expected);
            }
        }
    }

    void freeAngleTurnsAboutCentre_data()
    {
        QTest::addColumn<QSize>("photo");
        QTest::addColumn<FrameFormat>("format");
        QTest::newRow("reduced") << QSize(2000, 2000) << FrameFormat{QSize(200, 120), true, true};
        QTest::newRow("enlarged") << QSize(20, 20) << FrameFormat{QSize(200, 120), true, true};
        QTest::newRow("own size") << QSize(85, 85) << FrameFormat{QSize(200, 120), true, false};
    }

    void freeAngleTurnsAboutCentre()
    {
        QFETCH(QSize, photo);
        QFETCH(FrameFormat, format);
        // Turned by an eighth, a square stands on a corner: red above, green right, blue left.
        const QImage frame = fitPhoto(Pictures::quadrants(photo), 45, format);
        QString names;
        for (const QPoint &at : {QPoint(100, 30), QPoint(130, 60), QPoint(70, 60), QPoint(100, 90),
                                 QPoint(62, 20), QPoint(138, 100)})
            names += Pictures::colorName(frame.pixel(at));
        QCOMPARE(names, QStringLiteral("RGBWKK"));
        int covered = 0;
        for (int y = 0; y < frame.height(); ++y) {
            for (int x = 0; x < frame.width(); ++x)
                covered += Pictures::colorName(frame.pixel(x, y)) != QLatin1Char('K');
        }
        QVERIFY2(std::abs(covered - 7200) < 360, qPrintable(QString::number(covered)));
    }

    void fineDetailIsAveraged_data()
    {
        QTest::addColumn<int>("angle");
        QTest::addColumn<FrameFormat>("format");
        QTest::newRow("upright") << 0 << kFitted;
        QTest::newRow("turned") << 90 << kFitted;
        QTest::newRow("slanting") << 30 << kFitted;
        QTest::newRow("slanting, stretched") << 60 << kStretched;
    }

    void fineDetailIsAveraged()
    {
        QFETCH(int, angle);
        QFETCH(FrameFormat, format);
        QImage lines(1500, 1500, QImage::Format_RGB32);
        for (int y = 0; y < lines.height(); ++y) {
            for (int x = 0; x < lines.width(); ++x)
                lines.setPixel(x, y, (x + y) % 2 ? 0xffffffff : 0xff000000);
        }
        const QImage frame = fitPhoto(lines, angle, format);
        for (int y = 35; y < 55; ++y) {
            for (int x = 70; x < 90; ++x)
                QVERIFY(std::abs(qGreen(frame.pixel(x, y)) - 128) < 25);
        }
    }

    void transparencyShowsBlack()
    {
        QImage photo(160, 90, QImage::Format_ARGB32_Premultiplied);
        photo.fill(Qt::transparent);
        photo.setPixel(80, 45, qPremultiply(0x80ffffff));
        for (const FrameFormat &format : {kFitted, kOwnSize}) {
            const QImage frame = fitPhoto(photo, 0, format);
            QCOMPARE(frame.pixel(10, 10), qRgb(0, 0, 0));
            QCOMPARE(frame.pixel(80, 45), qRgb(128, 128, 128));
        }
    }

    void emptyInputs()
    {
        QVERIFY(fitPhoto(Pictures::quadrants(QSize(4, 3)), 0, FrameFormat()).isNull());
        const QImage frame = fitPhoto(QImage(), 30, kFitted);
        QCOMPARE(frame.size(), kFitted.size);
        QCOMPARE(frame.pixel(80, 45), qRgb(0, 0, 0));
    }
};

QTEST_GUILESS_MAIN(FrameFitterTest)
#include "FrameFitterTest.moc"
