// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/images/ThubnailProvider.h"

#include "project/images/Pictures.h"
#include "project/images/Thumbnail.h"

#include <QTemporaryDir>
#include <QTest>

using namespace velmora;

class ThubnailProviderTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void thumbnailIsCentredOnGrey_data();
    void thumbnailIsCentredOnGrey();
    void transparentPartsShowGrey();
    void thumbnailsArriveInOrder();
    void orientedPhotoStandsUpright();
    void idleThreadTakesNewRequests();
    void unreadablePhotoIsSkipped();
    void droppedRequestIsNotMade();
    void clearForgetsPendingAndFinished();
    void stoppedThreadStartsAgain();

private:
    QString path(const char *name) const { return m_dir.filePath(QLatin1String(name)); }

    QTemporaryDir m_dir;
};

namespace
{

constexpr QRgb kGrey = 0xff656565;

/// The announced thumbnails, received in the thread of the test.
class Announcements : public QObject
{
public:
    explicit Announcements(const ThubnailProvider &provider)
    {
        connect(&provider, &ThubnailProvider::thumbnailReady, this,
                [this](const QUuid &id) { m_ids += id; });
    }
    const QVector<QUuid> &ids() const { return m_ids; }
    int count() const { return m_ids.size(); }

private:
    QVector<QUuid> m_ids;
};

} // namespace

void ThubnailProviderTest::initTestCase()
{
    QVERIFY(Pictures::quadrants(QSize(90, 60)).save(path("photo.jpg"), nullptr, 95));
    QVERIFY(Pictures::quadrants(QSize(120, 40)).save(path("wide.png")));
}

void ThubnailProviderTest::thumbnailIsCentredOnGrey_data()
{
    QTest::addColumn<QSize>("photo");
    QTest::addColumn<QRect>("area");
    QTest::newRow("wide") << QSize(6200, 600) << QRect(0, 28, 62, 6);
    QTest::newRow("tall") << QSize(100, 200) << QRect(15, 0, 31, 62);
    QTest::newRow("square") << QSize(500, 500) << QRect(0, 0, 62, 62);
    QTest::newRow("small") << QSize(4, 2) << QRect(0, 15, 62, 31);
    QTest::newRow("line") << QSize(5000, 1) << QRect(0, 30, 62, 1);
}

void ThubnailProviderTest::thumbnailIsCentredOnGrey()
{
    QFETCH(QSize, photo);
    QFETCH(QRect, area);
    QImage picture(photo, QImage::Format_RGB32);
    picture.fill(Pictures::kRed);
    const QImage thumbnail = makeThumbnail(picture);
    QCOMPARE(thumbnail.size(), QSize(62, 62));
    QCOMPARE(thumbnail.format(), QImage::Format_ARGB32);
    for (int y = 0; y < 62; ++y) {
        for (int x = 0; x < 62; ++x)
            QCOMPARE(thumbnail.pixel(x, y), area.contains(x, y) ? Pictures::kRed : kGrey);
    }
}

void ThubnailProviderTest::transparentPartsShowGrey()
{
    QImage picture(62, 62, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    picture.setPixel(1, 1, Pictures::kBlue);
    const QImage thumbnail = makeThumbnail(picture);
    QCOMPARE(thumbnail.pixel(1, 1), Pictures::kBlue);
    QCOMPARE(thumbnail.pixel(5, 5), kGrey);
}

void ThubnailProviderTest::thumbnailsArriveInOrder()
{
    ThubnailProvider provider;
    const Announcements ready(provider);
    QVector<QUuid> ids;
    for (const char *name : {"photo.jpg", "wide.png", "photo.jpg"})
        ids += provider.request(path(name));
    QVERIFY(provider.thumbnail(ids.first()).isNull());
    provider.start();
    QTRY_COMPARE(ready.count(), 3);
    QCOMPARE(ready.ids(), ids);
    QCOMPARE(Pictures::quadrantNames(provider.thumbnail(ids[0]), QRect(0, 10, 62, 42)),
             QStringLiteral("RGBW"));
    QCOMPARE(Pictures::quadrantNames(provider.thumbnail(ids[1]), QRect(0, 21, 62, 20)),
             QStringLiteral("RGBW"));
}

void ThubnailProviderTest::orientedPhotoStandsUpright()
{
    QVERIFY(QFile::copy(path("photo.jpg"), path("turned.jpg")));
    Pictures::setExif(path("turned.jpg"), "Exif.Image.Orientation", "6");
    ThubnailProvider provider;
    const Announcements ready(provider);
    const QUuid id = provider.request(path("turned.jpg"));
    provider.start();
    QTRY_COMPARE(ready.count(), 1);
    QCOMPARE(Pictures::quadrantNames(provider.thumbnail(id), QRect(10, 0, 42, 62)),
             QStringLiteral("BRWG"));
}

void ThubnailProviderTest::idleThreadTakesNewRequests()
{
    ThubnailProvider provider;
    const Announcements ready(provider);
    provider.start();
    for (int count = 1; count <= 3; ++count) {
        provider.request(path("photo.jpg"));
        QTRY_COMPARE(ready.count(), count);
    }
}

void ThubnailProviderTest::unreadablePhotoIsSkipped()
{
    QVERIFY(Pictures::writeBytes(path("broken.jpg"), "no picture"));
    ThubnailProvider provider;
    const Announcements ready(provider);
    const QUuid broken = provider.request(path("broken.jpg"));
    const QUuid missing = provider.request(path("missing.jpg"));
    const QUuid good = provider.request(path("photo.jpg"));
    QTest::ignoreMessage(
        QtWarningMsg,
        qPrintable(
            QStringLiteral("Read image:'%1' Error:'does not exist'").arg(path("missing.jpg"))));
    provider.start();
    QTRY_COMPARE(ready.count(), 1);
    QCOMPARE(ready.ids(), QVector<QUuid>{good});
    QVERIFY(provider.thumbnail(broken).isNull());
    QVERIFY(provider.thumbnail(missing).isNull());
}

void ThubnailProviderTest::droppedRequestIsNotMade()
{
    ThubnailProvider provider;
    const Announcements ready(provider);
    const QUuid dropped = provider.request(path("photo.jpg"));
    const QUuid kept = provider.request(path("wide.png"));
    provider.drop(dropped);
    provider.start();
    QTRY_COMPARE(ready.count(), 1);
    QCOMPARE(ready.ids(), QVector<QUuid>{kept});
    provider.drop(kept);
    QVERIFY(provider.thumbnail(kept).isNull());
}

void ThubnailProviderTest::clearForgetsPendingAndFinished()
{
    ThubnailProvider provider;
    const Announcements ready(provider);
    const QUuid finished = provider.request(path("photo.jpg"));
    provider.start();
    QTRY_COMPARE(ready.count(), 1);
    provider.stop();
    const QUuid pending = provider.request(path("photo.jpg"));
    provider.clear();
    QVERIFY(provider.thumbnail(finished).isNull());
    provider.start();
    const QUuid last = provider.request(path("wide.png"));
    QTRY_COMPARE(ready.count(), 2);
    QCOMPARE(ready.ids(), (QVector<QUuid>{finished, last}));
    QVERIFY(provider.thumbnail(pending).isNull());
}

void ThubnailProviderTest::stoppedThreadStartsAgain()
{
    ThubnailProvider provider;
    const Announcements ready(provider);
    for (int count = 1; count <= 2; ++count) {
        provider.start();
        provider.request(path("photo.jpg"));
        QTRY_COMPARE(ready.count(), count);
        provider.stop();
        QVERIFY(provider.isFinished());
    }
}

QTEST_GUILESS_MAIN(ThubnailProviderTest)
#include "ThubnailProviderTest.moc"
