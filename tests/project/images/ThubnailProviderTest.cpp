// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/images/ThubnailProvider.h"

#include "project/images/Pictures.h"
#include "project/images/Thumbnail.h"

#include <QTemporaryDir>
#include <QTest>

using namespace velmora;

namespace
{

constexpr QRgb kGrey = 0xff656565;

} // namespace

class ThubnailProviderTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        QVERIFY(Pictures::quadrants(QSize(90, 60)).save(path("photo.jpg"), nullptr, 95));
        QVERIFY(Pictures::quadrants(QSize(120, 40)).save(path("wide.png")));
        QVERIFY(QFile::copy(path("photo.jpg"), path("turned.jpg")));
        Pictures::setExif(path("turned.jpg"), "Exif.Image.Orientation", "6");
    }

    void init()
    {
        m_ready.clear();
        m_provider = std::make_unique<ThubnailProvider>();
        connect(m_provider.get(), &ThubnailProvider::thumbnailReady, this,
                [this](const QUuid &id) { m_ready += id; });
    }
    /// Its thread must not log any more when the test's own log is gone.
    void cleanup() { m_provider.reset(); }

    void thumbnailIsCentredOnGrey_data()
    {
        QTest::addColumn<QSize>("photo");
        QTest::addColumn<QRect>("area");
        QTest::newRow("wide") << QSize(6200, 600) << QRect(0, 28, 62, 6);
        QTest::newRow("tall") << QSize(100, 200) << QRect(15, 0, 31, 62);
        QTest::newRow("square") << QSize(500, 500) << QRect(0, 0, 62, 62);
        QTest::newRow("small") << QSize(4, 2) << QRect(0, 15, 62, 31);
        QTest::newRow("line") << QSize(5000, 1) << QRect(0, 30, 62, 1);
    }

    void thumbnailIsCentredOnGrey()
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

    void transparentPartsShowGrey()
    {
        QImage picture(62, 62, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        picture.setPixel(1, 1, Pictures::kBlue);
        const QImage thumbnail = makeThumbnail(picture);
        QCOMPARE(thumbnail.pixel(1, 1), Pictures::kBlue);
        QCOMPARE(thumbnail.pixel(5, 5), kGrey);
    }

    void thumbnailsArriveInOrder()
    {
        const QUuid photo = m_provider->request(path("photo.jpg"));
        const QUuid wide = m_provider->request(path("wide.png"));
        const QUuid turned = m_provider->request(path("turned.jpg"));
        QVERIFY(m_provider->thumbnail(photo).isNull());
        m_provider->start();
        QTRY_COMPARE(m_ready, (QVector<QUuid>{photo, wide, turned}));
        QCOMPARE(Pictures::quadrantNames(m_provider->thumbnail(photo), QRect(0, 10, 62, 42)),
                 QStringLiteral("RGBW"));
        QCOMPARE(Pictures::quadrantNames(m_provider->thumbnail(wide), QRect(0, 21, 62, 20)),
                 QStringLiteral("RGBW"));
        QCOMPARE(Pictures::quadrantNames(m_provider->thumbnail(turned), QRect(10, 0, 42, 62)),
                 QStringLiteral("BRWG"));
    }

    void threadTakesNewRequestsWhenIdleAndWhenStartedAgain()
    {
        for (int count = 1; count <= 4; ++count) {
            m_provider->start();
            m_provider->request(path("photo.jpg"));
            QTRY_COMPARE(m_ready.size(), count);
            if (count == 2) {
                m_provider->stop();
                QVERIFY(m_provider->isFinished());
            }
        }
    }

    void unreadablePhotoIsSkipped()
    {
        QVERIFY(Pictures::writeBytes(path("broken.jpg"), "no picture"));
        const QUuid broken = m_provider->request(path("broken.jpg"));
        const QUuid missing = m_provider->request(path("missing.jpg"));
        const QUuid good = m_provider->request(path("photo.jpg"));
        const QString line = QStringLiteral("Read image:'%1' Error:'does not exist'");
        QTest::ignoreMessage(QtWarningMsg, qPrintable(line.arg(path("missing.jpg"))));
        m_provider->start();
        QTRY_COMPARE(m_ready, QVector<QUuid>{good});
        QVERIFY(m_provider->thumbnail(broken).isNull());
        QVERIFY(m_provider->thumbnail(missing).isNull());
    }

    void droppedRequestIsNotMade()
    {
        const QUuid dropped = m_provider->request(path("photo.jpg"));
        const QUuid kept = m_provider->request(path("wide.png"));
        m_provider->drop(dropped);
        m_provider->start();
        QTRY_COMPARE(m_ready, QVector<QUuid>{kept});
        m_provider->drop(kept);
        QVERIFY(m_provider->thumbnail(kept).isNull());
    }

    void clearForgetsPendingAndFinished()
    {
        const QUuid finished = m_provider->request(path("photo.jpg"));
        m_provider->start();
        QTRY_COMPARE(m_ready.size(), 1);
        m_provider->stop();
        const QUuid pending = m_provider->request(path("photo.jpg"));
        m_provider->clear();
        QVERIFY(m_provider->thumbnail(finished).isNull());
        m_provider->start();
        const QUuid last = m_provider->request(path("wide.png"));
        QTRY_COMPARE(m_ready, (QVector<QUuid>{finished, last}));
        QVERIFY(m_provider->thumbnail(pending).isNull());
    }

private:
    QString path(const char *name) const { return m_dir.filePath(QLatin1String(name)); }

    QTemporaryDir m_dir;
    std::unique_ptr<ThubnailProvider> m_provider;
    QVector<QUuid> m_ready; ///< Announced in the thread of the test.
};

QTEST_GUILESS_MAIN(ThubnailProviderTest)
#include "ThubnailProviderTest.moc"
