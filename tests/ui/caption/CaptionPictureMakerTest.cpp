// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/caption/CaptionPictureMaker.h"
#include "project/frames/SlideRenderer.h"
#include "project/slides/ProjectItemFirst.h"
#include "project/slides/ProjectItemSimple.h"

#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace velmora;

namespace
{

constexpr QSize kSize(320, 180);

QImage pictureOf(const QSignalSpy &spy, int index)
{
    return spy.at(index).at(0).value<QImage>();
}

} // namespace

class CaptionPictureMakerTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void picturesAreThoseOfTheVideo_data();
    void picturesAreThoseOfTheVideo();
    void ownSizeFollowsTheVideo();
    void newestRequestWins();
    void effectLeadsFromBareToCaptioned();
    void effectIsBrokenOff();
    void unreadablePhotoIsExplained();
    void changedPhotoIsReadAgain();

private:
    CaptionPictureRequest photoRequest(const QString &text) const
    {
        CaptionPictureRequest request;
        request.slide.fileName = m_photo;
        request.slide.caption.text = text;
        request.slide.caption.backgroundColor = Qt::black;
        request.video = {QSize(1920, 1080), true, true};
        request.size = kSize;
        return request;
    }
    static void paintPhoto(const QString &path, const QColor &color)
    {
        QImage photo(400, 300, QImage::Format_RGB32);
        photo.fill(color);
        QPainter painter(&photo);
        painter.fillRect(0, 0, 200, 150, Qt::white);
        painter.end();
        QVERIFY(photo.save(path));
    }

    QTemporaryDir m_folder;
    QString m_photo;
};

void CaptionPictureMakerTest::initTestCase()
{
    m_photo = m_folder.filePath(QStringLiteral("photo.png"));
    paintPhoto(m_photo, Qt::darkGreen);
}

void CaptionPictureMakerTest::picturesAreThoseOfTheVideo_data()
{
    QTest::addColumn<bool>("isTitle");
    QTest::addColumn<int>("angle");
    QTest::addColumn<bool>("origRatio");
    QTest::addColumn<QString>("text");
    QTest::newRow("photo") << false << 0 << true << QStringLiteral("By the sea");
    QTest::newRow("turned") << false << 90 << true << QStringLiteral("By the sea");
    QTest::newRow("stretched") << false << 0 << false << QStringLiteral("By\nthe sea");
    QTest::newRow("without text") << false << 0 << true << QString();
    QTest::newRow("title") << true << 0 << true << QStringLiteral("My slideshow");
}

void CaptionPictureMakerTest::picturesAreThoseOfTheVideo()
{
    QFETCH(bool, isTitle);
    QFETCH(int, angle);
    QFETCH(bool, origRatio);
    QFETCH(QString, text);
    CaptionPictureRequest request = photoRequest(text);
    request.isTitle = isTitle;
    request.slide.angle = angle;
    request.slide.backgroundIndex = 19;
    request.slide.caption.position = 2;
    request.video.origRatio = origRatio;
    ProjectItemFirst title(3);
    ProjectItemSimple photo;
    ProjectItem &slide = isTitle ? static_cast<ProjectItem &>(title) : photo;
    request.slide.applyTo(slide);
    const QImage bare = SlideRenderer::bareFrame(slide, {kSize, origRatio, true});

    CaptionPictureMaker maker;
    QSignalSpy ready(&maker, &CaptionPictureMaker::pictureReady);
    maker.request(request);
    QTRY_COMPARE(ready.size(), 1);
    QCOMPARE(pictureOf(ready, 0), SlideRenderer::captionedFrame(bare, slide));
    QCOMPARE(pictureOf(ready, 0) == bare, text.isEmpty());
}

/// Small photos that are not enlarged look as small as they will in the video.
void CaptionPictureMakerTest::ownSizeFollowsTheVideo()
{
    CaptionPictureRequest request = photoRequest(QString());
    request.video = {QSize(1600, 900), true, false};
    CaptionPictureMaker maker;
    QSignalSpy ready(&maker, &CaptionPictureMaker::pictureReady);
    maker.request(request);
    QTRY_COMPARE(ready.size(), 1);
    const QImage picture = pictureOf(ready, 0);
    QCOMPARE(picture.size(), kSize);
    // 400 x 300 px of 1600 x 900 are a quarter and a third.
    QCOMPARE(picture.pixelColor(110, 90), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(160, 50), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(130, 70), QColor(Qt::white));
    QCOMPARE(picture.pixelColor(190, 110), QColor(Qt::darkGreen));
}

void CaptionPictureMakerTest::newestRequestWins()
{
    constexpr int kRequests = 200;
    CaptionPictureMaker maker;
    QSignalSpy ready(&maker, &CaptionPictureMaker::pictureReady);
    CaptionPictureRequest request;
    for (int i = 0; i < kRequests; ++i) {
        request = photoRequest(QString::number(i));
        maker.request(request);
    }
    ProjectItemSimple slide;
    request.slide.applyTo(slide);
    const QImage last =
        SlideRenderer::captionedFrame(SlideRenderer::bareFrame(slide, {kSize, true, true}), slide);
    QTRY_VERIFY(!ready.isEmpty() && pictureOf(ready, ready.size() - 1) == last);
    QVERIFY2(ready.size() < kRequests, "pictures are made that nobody wants any more");
}

void CaptionPictureMakerTest::effectLeadsFromBareToCaptioned()
{
    CaptionPictureRequest request = photoRequest(QStringLiteral("Appears"));
    request.slide.caption.effect = 27; // cross fade
    request.play = true;
    request.milliseconds = 400;
    ProjectItemSimple slide;
    request.slide.applyTo(slide);
    const QImage bare = SlideRenderer::bareFrame(slide, {kSize, true, true});
    const QImage captioned = SlideRenderer::captionedFrame(bare, slide);
    CaptionPictureMaker maker;
    QSignalSpy ready(&maker, &CaptionPictureMaker::pictureReady);
    maker.request(request);
    QTRY_VERIFY(!ready.isEmpty() && pictureOf(ready, ready.size() - 1) == captioned);
    QCOMPARE(pictureOf(ready, 0), bare);
    QVERIFY(ready.size() >= 3);
    QVERIFY(pictureOf(ready, 1) != bare && pictureOf(ready, 1) != captioned);
}

void CaptionPictureMakerTest::effectIsBrokenOff()
{
    CaptionPictureRequest request = photoRequest(QStringLiteral("Long"));
    request.play = true;
    request.milliseconds = 3600 * 1000;
    CaptionPictureMaker maker;
    QSignalSpy ready(&maker, &CaptionPictureMaker::pictureReady);
    maker.request(request);
    QTRY_VERIFY(ready.size() >= 2);
    const CaptionPictureRequest next = photoRequest(QStringLiteral("Next"));
    ProjectItemSimple slide;
    next.slide.applyTo(slide);
    const QImage expected =
        SlideRenderer::captionedFrame(SlideRenderer::bareFrame(slide, {kSize, true, true}), slide);
    maker.request(next);
    QTRY_COMPARE(pictureOf(ready, ready.size() - 1), expected);
    // Another long one is in work when the maker goes.
    maker.request(request);
}

void CaptionPictureMakerTest::unreadablePhotoIsExplained()
{
    CaptionPictureRequest request = photoRequest(QStringLiteral("Gone"));
    request.slide.fileName = m_folder.filePath(QStringLiteral("gone.jpg"));
    CaptionPictureMaker maker;
    QSignalSpy ready(&maker, &CaptionPictureMaker::pictureReady);
    maker.request(request);
    QTRY_COMPARE(ready.size(), 1);
    QVERIFY(pictureOf(ready, 0).isNull());
    QVERIFY(!ready.first().at(1).toString().isEmpty());
}

void CaptionPictureMakerTest::changedPhotoIsReadAgain()
{
    const QString path = m_folder.filePath(QStringLiteral("changing.png"));
    paintPhoto(path, Qt::red);
    CaptionPictureRequest request = photoRequest(QString());
    request.slide.fileName = path;
    CaptionPictureMaker maker;
    QSignalSpy ready(&maker, &CaptionPictureMaker::pictureReady);
    maker.request(request);
    QTRY_COMPARE(ready.size(), 1);
    QCOMPARE(pictureOf(ready, 0).pixelColor(250, 170), QColor(Qt::red));
    paintPhoto(path, Qt::blue);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(60),
                             QFileDevice::FileModificationTime));
    file.close();
    maker.request(request);
    QTRY_COMPARE(ready.size(), 2);
    QCOMPARE(pictureOf(ready, 1).pixelColor(250, 170), QColor(Qt::blue));
}

QTEST_MAIN(CaptionPictureMakerTest)
#include "CaptionPictureMakerTest.moc"
