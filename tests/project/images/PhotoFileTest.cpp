// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/images/PhotoFile.h"

#include "project/images/DecodingTurn.h"
#include "project/images/Pictures.h"

#include <QImageWriter>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <thread>

using namespace velmora;

class PhotoFileTest : public QObject
{
    Q_OBJECT
private slots:
    void memoryFollowsFromTheContent_data()
    {
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<int>("pixels");
        QTest::addColumn<bool>("progressive");
        QTest::addColumn<QSize>("minimum");
        QTest::addColumn<int>("expected"); // Beside the file itself, for a JPEG.
        const QSize checkOnly;
        const QSize whole(160, 120);
        const int area = 160 * 120;
        // Blocks of 64 coefficients for the light, and for the colours at half the size.
        const int blocks = 20 * 15 + 2 * 10 * 8;
        const auto row = [](const char *name, const char *format, QImage::Format pixels,
                            bool progressive, const QSize &minimum, int expected) {
            QTest::newRow(name) << QByteArray(format) << int(pixels) << progressive << minimum
                                << expected;
        };
        row("png", "png", QImage::Format_RGB32, false, whole, 4 * area);
        row("png for a small frame", "png", QImage::Format_RGB32, false, {8, 6},
            4 * area + 4 * 4 * 8 * 6);
        row("png 16 bit", "png", QImage::Format_RGBX64, false, checkOnly, 8 * area);
        row("png palette", "png", QImage::Format_Indexed8, false, checkOnly, 5 * area);
        row("bmp", "bmp", QImage::Format_RGB32, false, checkOnly, 4 * area);
        row("jpeg", "jpg", QImage::Format_RGB32, false, checkOnly, 0);
        row("jpeg whole", "jpg", QImage::Format_RGB32, false, whole, 4 * area);
        row("jpeg at a quarter", "jpg", QImage::Format_RGB32, false, {40, 30}, 4 * area / 16);
        row("progressive", "jpg", QImage::Format_RGB32, true, checkOnly, blocks * 128);
        row("progressive whole", "jpg", QImage::Format_RGB32, true, whole, blocks * 128 + 4 * area);
        row("progressive grey", "jpg", QImage::Format_Grayscale8, true, checkOnly, 20 * 15 * 128);
    }

    void memoryFollowsFromTheContent()
    {
        QFETCH(QByteArray, format);
        QFETCH(int, pixels);
        QFETCH(bool, progressive);
        QFETCH(QSize, minimum);
        QFETCH(int, expected);
        const QString path = m_dir.filePath(QStringLiteral("named.jpg")); // Whatever it is.
        QImageWriter writer(path, format);
        writer.setProgressiveScanWrite(progressive);
        const QImage picture = Pictures::quadrants(QSize(160, 120));
        QVERIFY(writer.write(picture.convertToFormat(static_cast<QImage::Format>(pixels))));
        PhotoFile photo(path);
        QVERIFY(photo.open());
        const qint64 file = format == "jpg" ? QFileInfo(path).size() : 0;
        QCOMPARE(photo.memoryNeeded(minimum), file + expected);
    }

    void turnedPictureIsCountedTwice()
    {
        const QString path = m_dir.filePath(QStringLiteral("turned.png"));
        QVERIFY(Pictures::quadrants(QSize(100, 50)).save(path));
        Pictures::setExif(path, "Exif.Image.Orientation", "6");
        PhotoFile photo(path);
        QVERIFY(photo.open());
        QCOMPARE(photo.memoryNeeded(QSize(50, 100)), 2 * 4 * 100 * 50);
        // It is made smaller first.
        QCOMPARE(photo.memoryNeeded(QSize(5, 10)), 4 * (100 * 50 + 4 * 10 * 5));
        QCOMPARE(photo.memoryNeeded(QSize()), 4 * 100 * 50);
    }

    void oneTurnAtATime()
    {
        std::atomic_int inside{0};
        std::atomic_int most{0};
        const auto work = [&] {
            for (int round = 0; round < 50; ++round) {
                const DecodingTurn turn(DecodingTurn::kMaximumBytes);
                const DecodingTurn light(1000); // Has nothing to wait for.
                most = std::max(most.load(), ++inside);
                std::this_thread::yield();
                --inside;
            }
        };
        std::thread other(work);
        work();
        other.join();
        QCOMPARE(most.load(), 1);
    }

private:
    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(PhotoFileTest)
#include "PhotoFileTest.moc"
