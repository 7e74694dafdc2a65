// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/images/ThubnailProvider.h"

#include "project/images/Pictures.h"
#include "project/images/Thumbnail.h"

#include <QSignalSpy>
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

QVector<QUuid> idsOf(const QSignalSpy &spy)
{
    QVector<QUuid> ids;
    for (const QList<QVariant> &arguments : spy)
        ids += arguments.first().toUuid();
    return ids;
}

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
    QSignalSpy ready(&provider, &ThubnailProvider::thumbnailReady);
    QVector<QUuid> ids;
    for (const char *name : {"photo.jpg", "wide.png", "photo.jpg"})
        ids += provider.request(path(name));
    QVERIFY(provider.thumbnail(ids.first()).isNull());
    provider.start();
    QTRY_COMPARE(ready.count(), 3);
    QCOMPARE(idsOf(ready), ids);
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
    QSignalSpy ready(&provider, &ThubnailProvider::thumbnailReady);
    const QUuid id = provider.request(path("turned.jpg"));
    provider.start();
    QTRY_COMPARE(ready.count(), 1);
    QCOMPARE(Pictures::quadrantNames(provider.thumbnail(id), QRect(10, 0, 42, 62)),
             QStringLiteral("BRWG"));
}

void ThubnailProviderTest::idleThreadTakesNewRequests()
{
    ThubnailProvider provider;
    QSignalSpy ready(&provider, &ThubnailProvider::thumbnailReady);
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
    QSignalSpy ready(&provider, &ThubnailProvider::thumbnailReady);
    const QUuid broken = provider.request(path("broken.jpg"));
    const QUuid missing = provider.request(path("missing.jpg"));
    const QUuid good = provider.request(path("photo.jpg"));
    QTest::ignoreMessage(
        QtWarningMsg,
        qPrintable(
            QStringLiteral("Read image:'%1' Error:'does not exist'").arg(path("missing.jpg"))));
    provider.start();
    QTRY_COMPARE(ready.count(), 1);
    QCOMPARE(idsOf(ready), QVector<QUuid>{good});
    QVERIFY(provider.thumbnail(broken).isNull());
    QVERIFY(provider.thumbnail(missing).isNull());
}

void ThubnailProviderTest::droppedRequestIsNotMade()
{
    ThubnailProvider provider;
    QSignalSpy ready(&provider, &ThubnailProvider::thumbnailReady);
    const QUuid dropped = provider.request(path("photo.jpg"));
    const QUuid kept = provider.request(path("wide.png"));
    provider.drop(dropped);
    provider.start();
    QTRY_COMPARE(ready.count(), 1);
    QCOMPARE(idsOf(ready), QVector<QUuid>{kept});
    provider.drop(kept);
    QVERIFY(provider.thumbnail(kept).isNull());
}

void ThubnailProviderTest::clearForgetsPendingAndFinished()
{
    ThubnailProvider provider;
    QSignalSpy ready(&provider, &ThubnailProvider::thumbnailReady);
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
    QCOMPARE(idsOf(ready), (QVector<QUuid>{finished, last}));
    QVERIFY(provider.thumbnail(pending).isNull());
}

void ThubnailProviderTest::stoppedThreadStartsAgain()
{
    ThubnailProvider provider;
    QSignalSpy ready(&provider, &ThubnailProvider::thumbnailReady);
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
