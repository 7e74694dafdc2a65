// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/frames/SlideRenderer.h"

#include "project/images/Pictures.h"
#include "project/slides/ProjectItemFirst.h"
#include "project/slides/ProjectItemSimple.h"
#include "project/slides/TitleBackground.h"

#include <QTemporaryDir>
#include <QTest>

using namespace velmora;

namespace
{

constexpr QSize kSize(320, 180);

} // namespace

class SlideRendererTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        QVERIFY(Pictures::quadrants(QSize(800, 600)).save(path("photo.jpg"), nullptr, 95));
        Pictures::setExif(path("photo.jpg"), "Exif.Image.Orientation", "6");
    }

    void titleSlideShowsItsBackground()
    {
        ProjectItemFirst slide(3);
        slide.setBackgroundIndex(20);
        const QImage frame = SlideRenderer::bareFrame(slide, FrameFormat{kSize, true, true});
        QCOMPARE(frame, titleBackground(20, kSize, false).convertToFormat(QImage::Format_RGB32));
        slide.setBackgroundIndex(30);
        const QImage black = SlideRenderer::bareFrame(slide, FrameFormat{kSize, true, true});
        QCOMPARE(black.pixel(9, 9), qRgb(0, 0, 0));
    }

    void photoSlideIsTurnedAndFitted_data()
    {
        QTest::addColumn<int>("angle");
        QTest::addColumn<bool>("origRatio");
        QTest::addColumn<bool>("scaleToFit");
        QTest::addColumn<QRect>("rect");
        QTest::addColumn<QString>("shown");
        // The camera was held upright: the photo is 600 by 800 with blue and red above.
        const QRect tall(92, 0, 135, 180);
        const QRect wide(40, 0, 240, 180);
        const QRect frame(QPoint(), kSize);
        QTest::newRow("upright") << 0 << true << true << tall << "BRWG";
        QTest::newRow("turned") << 90 << true << true << wide << "WBGR";
        QTest::newRow("turned back") << -90 << true << true << wide << "RGBW";
        QTest::newRow("stretched") << 0 << false << true << frame << "BRWG";
        QTest::newRow("stretched, turned") << 270 << false << false << frame << "RGBW";
        QTest::newRow("own size") << 0 << true << false << frame << "BRWG";
    }

    void photoSlideIsTurnedAndFitted()
    {
        QFETCH(int, angle);
        QFETCH(bool, origRatio);
        QFETCH(bool, scaleToFit);
        QFETCH(QRect, rect);
        QFETCH(QString, shown);
        ProjectItemSimple slide(path("photo.jpg"), 3, 0);
        slide.setAngle(angle);
        QString error;
        const QImage image =
            SlideRenderer::bareFrame(slide, FrameFormat{kSize, origRatio, scaleToFit}, &error);
        QCOMPARE(error, QString());
        QCOMPARE(image.size(), kSize);
        QCOMPARE(image.format(), QImage::Format_RGB32);
        QCOMPARE(Pictures::quadrantNames(image, rect), shown);
        QCOMPARE(Pictures::colorName(image.pixel(2, 90)) == QLatin1Char('K'), rect.x() > 2);
    }

    void stretchedPhotoKeepsItsDetail_data()
    {
        QTest::addColumn<QSize>("photo");
        QTest::addColumn<int>("angle");
        QTest::newRow("upright") << QSize(320, 1440) << 0;
        QTest::newRow("turned") << QSize(1440, 320) << 90;
    }

    void stretchedPhotoKeepsItsDetail()
    {
        QFETCH(QSize, photo);
        QFETCH(int, angle);
        // The frame has as many columns as the photo has on its short side: none may be lost,
        // though the other side is reduced to an eighth.
        QImage stripes(photo, QImage::Format_RGB32);
        for (int y = 0; y < photo.height(); ++y) {
            for (int x = 0; x < photo.width(); ++x)
                stripes.setPixel(x, y, (angle == 0 ? x : y) % 8 < 4 ? 0xffffffff : 0xff000000);
        }
        QVERIFY(stripes.save(path("stripes.jpg"), nullptr, 100));
        ProjectItemSimple slide(path("stripes.jpg"), 3, 0);
        slide.setAngle(angle);
        const QImage frame = SlideRenderer::bareFrame(slide, FrameFormat{kSize, false, true});
        int edges = 0;
        for (int x = 1; x < kSize.width(); ++x)
            edges += std::abs(qGreen(frame.pixel(x, 90)) - qGreen(frame.pixel(x - 1, 90))) > 200;
        QCOMPARE(edges, 320 / 4 - 1);
    }

    void unreadablePhotoGivesTheReason()
    {
        const FrameFormat formats[] = {
            {kSize, true, true}, {kSize, true, false}, {kSize, false, true}};
        for (const FrameFormat &format : formats) {
            const ProjectItemSimple slide(path("missing.jpg"), 3, 0);
            QString error;
            QVERIFY(SlideRenderer::bareFrame(slide, format, &error).isNull());
            QCOMPARE(error, QStringLiteral("does not exist"));
        }
    }

    void captionIsPaintedOverTheBareFrame()
    {
        ProjectItemSimple slide(path("photo.jpg"), 3, 0);
        const QImage bare = SlideRenderer::bareFrame(slide, FrameFormat{kSize, true, true});
        QCOMPARE(SlideRenderer::captionedFrame(bare, slide), bare);
        CaptionStyle caption = slide.caption();
        caption.text = QStringLiteral("Hlm");
        caption.position = 8;
        caption.backgroundColor = Qt::yellow;
        slide.setCaption(caption);
        const QImage before = bare.copy();
        const QImage captioned = SlideRenderer::captionedFrame(bare, slide);
        QCOMPARE(bare, before);
        QCOMPARE(captioned.pixel(309, 169), QColor(Qt::yellow).rgb());
        QCOMPARE(captioned.copy(0, 0, 160, 100), bare.copy(0, 0, 160, 100));
    }

private:
    QString path(const char *name) const { return m_dir.filePath(QLatin1String(name)); }

    QTemporaryDir m_dir;
};

QTEST_MAIN(SlideRendererTest)
#include "SlideRendererTest.moc"
