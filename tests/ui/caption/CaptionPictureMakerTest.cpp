// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/caption/CaptionPictureMaker.h"
#include "project/frames/SlideRenderer.h"
#include "project/slides/ProjectItemFirst.h"
#include "project/slides/ProjectItemSimple.h"

#include <QPainter>
#include <QtTest>

using namespace velmora;

namespace
{

constexpr QSize kSize(320, 180);

QImage bareOf(const ProjectItem &slide, bool origRatio = true)
{
    return SlideRenderer::bareFrame(slide, {kSize, origRatio, true});
}

/// The photo of @p request with its caption, as the video has it.
QImage captionedOf(const CaptionPictureRequest &request)
{
    ProjectItemSimple slide;
    request.slide.applyTo(slide);
    return SlideRenderer::captionedFrame(bareOf(slide), slide);
}

} // namespace

class CaptionPictureMakerTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        m_photo = m_folder.filePath(QStringLiteral("photo.png"));
        paintPhoto(m_photo, Qt::darkGreen);
    }

    void init()
    {
        m_maker = std::make_unique<CaptionPictureMaker>();
        m_ready = std::make_unique<QSignalSpy>(m_maker.get(), &CaptionPictureMaker::pictureReady);
    }
    /// Its thread must not log any more when the test's own log is gone.
    void cleanup() { m_maker.reset(); }

    void picturesAreThoseOfTheVideo_data()
    {
        QTest::addColumn<bool>("isTitle");
        QTest::addColumn<int>("angle");
        QTest::addColumn<bool>("origRatio");
        QTest::addColumn<QString>("text");
        QTest::newRow("photo") << false << 0 << true << "By the sea";
        QTest::newRow("turned") << false << 90 << true << "By the sea";
        QTest::newRow("stretched") << false << 0 << false << "By\nthe sea";
        QTest::newRow("without text") << false << 0 << true << QString();
        QTest::newRow("title") << true << 0 << true << "My slideshow";
    }
    void picturesAreThoseOfTheVideo()
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
        const QImage bare = bareOf(slide, origRatio);
        const QImage picture = pictureFor(request);
        QCOMPARE(picture, SlideRenderer::captionedFrame(bare, slide));
        QCOMPARE(picture == bare, text.isEmpty());
    }

    /// Small photos that are not enlarged look as small as they will in the video.
    void ownSizeFollowsTheVideo()
    {
        CaptionPictureRequest request = photoRequest(QString());
        request.video = {QSize(1600, 900), true, false};
        const QImage picture = pictureFor(request);
        QCOMPARE(picture.size(), kSize);
        // 400 x 300 px of 1600 x 900 are a quarter and a third.
        QCOMPARE(picture.pixelColor(110, 90), QColor(Qt::black));
        QCOMPARE(picture.pixelColor(160, 50), QColor(Qt::black));
        QCOMPARE(picture.pixelColor(130, 70), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(190, 110), QColor(Qt::darkGreen));
    }

    void newestRequestWins()
    {
        constexpr int kRequests = 200;
        CaptionPictureRequest request;
        for (int i = 0; i < kRequests; ++i) {
            request = photoRequest(QString::number(i));
            m_maker->request(request);
        }
        QTRY_COMPARE(newest(), captionedOf(request));
        QVERIFY2(m_ready->size() < kRequests, "pictures are made that nobody wants any more");
    }

    void effectLeadsFromBareToCaptioned()
    {
        CaptionPictureRequest request = photoRequest(QStringLiteral("Appears"));
        request.slide.caption.effect = 27; // cross fade
        request.play = true;
        request.milliseconds = 400;
        ProjectItemSimple slide;
        request.slide.applyTo(slide);
        const QImage captioned = captionedOf(request);
        m_maker->request(request);
        QTRY_COMPARE(newest(), captioned);
        QCOMPARE(picture(0), bareOf(slide));
        QVERIFY(m_ready->size() >= 3);
        QVERIFY(picture(1) != picture(0) && picture(1) != captioned);
    }

    void effectIsBrokenOff()
    {
        CaptionPictureRequest request = photoRequest(QStringLiteral("Long"));
        request.play = true;
        request.milliseconds = 3600 * 1000;
        m_maker->request(request);
        QTRY_VERIFY(m_ready->size() >= 2);
        const CaptionPictureRequest next = photoRequest(QStringLiteral("Next"));
        m_maker->request(next);
        QTRY_COMPARE(newest(), captionedOf(next));
        // Another long one is in work when the maker goes.
        m_maker->request(request);
    }

    void unreadablePhotoIsExplained()
    {
        CaptionPictureRequest request = photoRequest(QStringLiteral("Gone"));
        request.slide.fileName = m_folder.filePath(QStringLiteral("gone.jpg"));
        QVERIFY(pictureFor(request).isNull());
        QVERIFY(!m_ready->first().at(1).toString().isEmpty());
    }

    void changedPhotoIsReadAgain()
    {
        CaptionPictureRequest request = photoRequest(QString());
        request.slide.fileName = m_folder.filePath(QStringLiteral("changing.png"));
        paintPhoto(request.slide.fileName, Qt::red);
        QCOMPARE(pictureFor(request).pixelColor(250, 170), QColor(Qt::red));
        paintPhoto(request.slide.fileName, Qt::blue);
        QFile file(request.slide.fileName);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(60),
                                 QFileDevice::FileModificationTime));
        file.close();
        QCOMPARE(pictureFor(request).pixelColor(250, 170), QColor(Qt::blue));
    }

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

    QImage picture(int index) const { return m_ready->value(index).value(0).value<QImage>(); }
    QImage newest() const { return picture(m_ready->size() - 1); }
    /// What the maker makes of a single request.
    QImage pictureFor(const CaptionPictureRequest &request)
    {
        const int before = m_ready->size();
        m_maker->request(request);
        return QTest::qWaitFor([&] { return m_ready->size() > before; }) ? newest() : QImage();
    }

    QTemporaryDir m_folder;
    QString m_photo;
    std::unique_ptr<CaptionPictureMaker> m_maker;
    std::unique_ptr<QSignalSpy> m_ready;
};

QTEST_MAIN(CaptionPictureMakerTest)
#include "CaptionPictureMakerTest.moc"
