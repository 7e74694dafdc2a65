// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/images/ImageLoader.h"

#include "platform/ImageFormats.h"
#include "project/images/Pictures.h"

#include <QColorSpace>
#include <QImageWriter>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>
#include <jpeglib.h>

using namespace velmora;

namespace
{

/// Writes quadrants as CMYK; the inks' amounts stand inverted in files with Adobe's mark.
void writeCmykJpeg(const QString &path, const QImage &picture, bool adobe)
{
    FILE *file = std::fopen(QFile::encodeName(path).constData(), "wb");
    jpeg_compress_struct info;
    jpeg_error_mgr errors;
    info.err = jpeg_std_error(&errors);
    jpeg_create_compress(&info);
    jpeg_stdio_dest(&info, file);
    info.image_width = JDIMENSION(picture.width());
    info.image_height = JDIMENSION(picture.height());
    info.input_components = 4;
    info.in_color_space = JCS_CMYK;
    jpeg_set_defaults(&info);
    info.write_Adobe_marker = adobe ? TRUE : FALSE;
    jpeg_start_compress(&info, TRUE);
    for (int y = 0; y < picture.height(); ++y) {
        QByteArray row;
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            for (const int light : {qRed(pixel), qGreen(pixel), qBlue(pixel), 255})
                row += char(adobe ? light : 255 - light);
        }
        auto *data = reinterpret_cast<JSAMPROW>(row.data());
        jpeg_write_scanlines(&info, &data, 1);
    }
    jpeg_finish_compress(&info);
    jpeg_destroy_compress(&info);
    std::fclose(file);
}

} // namespace

class ImageLoaderTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { installImageFormats(); }

    void photosStandUpright_data()
    {
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<int>("orientation");
        QTest::addColumn<QString>("shown");
        const char *const shown[] = {"RGBW", "GRWB", "WBGR", "BWRG",
                                     "RBGW", "BRWG", "WGBR", "GWRB"};
        for (const char *suffix : {"jpg", "tif", "png"}) {
            for (int orientation = 1; orientation <= 8; ++orientation)
                QTest::addRow("%s %d", suffix, orientation)
                    << suffix << orientation << shown[orientation - 1];
            QTest::addRow("%s invalid", suffix) << suffix << 9 << "RGBW";
        }
    }

    void photosStandUpright()
    {
        QFETCH(QString, suffix);
        QFETCH(int, orientation);
        QFETCH(QString, shown);
        const QString file = m_dir.filePath(QStringLiteral("oriented.") + suffix);
        QVERIFY(Pictures::save(Pictures::quadrants(QSize(96, 64)), file));
        Pictures::setExif(file, "Exif.Image.Orientation", std::to_string(orientation));

        const bool swapped = orientation >= 5 && orientation <= 8;
        const QSize size = swapped ? QSize(64, 96) : QSize(96, 64);
        QCOMPARE(ImageLoader::uprightSize(file), size);
        const QImage whole = ImageLoader::load(file);
        QCOMPARE(whole.size(), size);
        QCOMPARE(Pictures::quadrantNames(whole), shown);
        const QImage small = ImageLoader::loadForSize(file, QSize(20, 10));
        QVERIFY(small.width() < size.width());
        QCOMPARE(small.width() > small.height(), !swapped);
        QCOMPARE(Pictures::quadrantNames(small), shown);
    }

    void kindsOfPicturesKeepTheirColors_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<int>("pixels");
        QTest::addColumn<int>("compression");
        const auto row = [](const char *name, const char *format, QImage::Format pixels,
                            int compression = -1) {
            QTest::newRow(name) << name << QByteArray(format) << int(pixels) << compression;
        };
        row("a.png", "png", QImage::Format_RGB32);
        row("16 bit.png", "png", QImage::Format_RGBX64);
        row("palette.png", "png", QImage::Format_Indexed8);
        row("transparent.png", "png", QImage::Format_ARGB32);
        row("a.bmp", "bmp", QImage::Format_RGB32);
        row("palette.bmp", "bmp", QImage::Format_Indexed8);
        row("not compressed.tif", "tif", QImage::Format_RGB32, 0);
        row("lzw.tif", "tif", QImage::Format_RGB32, 1);
        row("16 bit.tif", "tif", QImage::Format_RGBX64);
        row("palette.tif", "tif", QImage::Format_Indexed8);
        row("a.jpg", "jpg", QImage::Format_RGB32);
        row("png.jpg", "png", QImage::Format_RGB32);
        row("jpeg.bmp", "jpg", QImage::Format_RGB32);
    }

    void kindsOfPicturesKeepTheirColors()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, format);
        QFETCH(int, pixels);
        QFETCH(int, compression);
        if (!QImageWriter::supportedImageFormats().contains(format))
            QSKIP("Qt does not write such files here.");
        const QString file = m_dir.filePath(name);
        QImageWriter writer(file, format);
        writer.setCompression(compression);
        const auto stored = Pictures::quadrants(QSize(90, 70));
        QVERIFY(writer.write(stored.convertToFormat(static_cast<QImage::Format>(pixels))));

        QCOMPARE(ImageLoader::check(file), QString());
        const QImage image = ImageLoader::load(file);
        QCOMPARE(image.size(), QSize(90, 70));
        QCOMPARE(Pictures::quadrantNames(image), QStringLiteral("RGBW"));
        QVERIFY(image.format() == QImage::Format_RGB32 ||
                image.format() == QImage::Format_ARGB32_Premultiplied);
        QCOMPARE(Pictures::quadrantNames(ImageLoader::loadForSize(file, QSize(8, 8))),
                 QStringLiteral("RGBW"));
    }

    void cmykJpegKeepsItsColors()
    {
        const QString file = path("cmyk.jpg");
        for (const bool adobe : {true, false}) {
            writeCmykJpeg(file, Pictures::quadrants(QSize(64, 48)), adobe);
            QCOMPARE(ImageLoader::check(file), QString());
            QCOMPARE(Pictures::quadrantNames(ImageLoader::load(file)), QStringLiteral("RGBW"));
        }
    }

    void wideColorsBecomeSrgb()
    {
        QImage picture = Pictures::quadrants(QSize(64, 48));
        picture.setColorSpace(QColorSpace(QColorSpace::SRgb));
        picture.convertToColorSpace(QColorSpace(QColorSpace::AdobeRgb));
        QVERIFY(qRed(picture.pixel(8, 8)) < qRed(Pictures::kRed) - 20);
        for (const char *name : {"wide.jpg", "wide.png"}) {
            QVERIFY(picture.save(path(name), nullptr, 95));
            QCOMPARE(Pictures::quadrantNames(ImageLoader::load(path(name))),
                     QStringLiteral("RGBW"));
        }
    }

    void transparencyIsKept()
    {
        QImage palette(8, 8, QImage::Format_Indexed8);
        palette.setColorTable({Pictures::kRed, 0x00ffffff});
        palette.fill(0);
        palette.setPixel(3, 3, 1);
        QVERIFY(palette.save(path("holes.png")));
        const QImage image = ImageLoader::load(path("holes.png"));
        QCOMPARE(image.format(), QImage::Format_ARGB32_Premultiplied);
        QCOMPARE(qAlpha(image.pixel(3, 3)), 0);
        QCOMPARE(image.pixel(0, 0), Pictures::kRed);
    }

    void firstPictureOfGifIsRead()
    {
        // Two pictures of one pixel: red, then blue.
        const QByteArray gif =
            QByteArray::fromHex("474946383961010001008100 00e01010 1010e0 000000 000000"
                                "2c00000000010001000002024401 00"
                                "2c00000000010001000002024c01 00 3b");
        QVERIFY(Pictures::writeBytes(path("two.gif"), gif));
        QCOMPARE(ImageLoader::check(path("two.gif")), QString());
        const QImage image = ImageLoader::load(path("two.gif"));
        QCOMPARE(image.size(), QSize(1, 1));
        QCOMPARE(image.pixel(0, 0), Pictures::kRed);
    }

    void scaledSize_data()
    {
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QSize>("photo");
        QTest::addColumn<QSize>("target");
        QTest::addColumn<QSize>("expected");
        QTest::newRow("whole") << "jpg" << QSize(600, 400) << QSize(600, 400) << QSize(600, 400);
        QTest::newRow("never enlarged")
            << "jpg" << QSize(60, 40) << QSize(600, 400) << QSize(60, 40);
        QTest::newRow("just above half")
            << "jpg" << QSize(600, 400) << QSize(301, 201) << QSize(600, 400);
        QTest::newRow("half") << "jpg" << QSize(600, 400) << QSize(300, 200) << QSize(300, 200);
        QTest::newRow("quarter") << "jpg" << QSize(600, 400) << QSize(150, 90) << QSize(150, 100);
        QTest::newRow("odd eighth") << "jpg" << QSize(605, 403) << QSize(62, 62) << QSize(76, 51);
        QTest::newRow("more than an eighth")
            << "jpg" << QSize(1600, 1600) << QSize(40, 40) << QSize(80, 80);
        // Turned by a quarter the tall photo fills the frame's width.
        QTest::newRow("tall photo in wide frame")
            << "jpg" << QSize(400, 600) << QSize(300, 200) << QSize(200, 300);
        QTest::newRow("png") << "png" << QSize(600, 400) << QSize(60, 60) << QSize(120, 80);
        QTest::newRow("small png") << "png" << QSize(100, 60) << QSize(60, 60) << QSize(100, 60);
        QTest::newRow("line") << "png" << QSize(3000, 1) << QSize(62, 62) << QSize(3000, 1);
    }

    void scaledSize()
    {
        QFETCH(QString, suffix);
        QFETCH(QSize, photo);
        QFETCH(QSize, target);
        const QString file = m_dir.filePath(QStringLiteral("scaled.") + suffix);
        QVERIFY(Pictures::quadrants(photo).save(file));
        QTEST(ImageLoader::loadForSize(file, target).size(), "expected");
    }

    void scaledJpegAveragesFineDetail()
    {
        QImage checks(800, 800, QImage::Format_Grayscale8);
        for (int y = 0; y < checks.height(); ++y) {
            for (int x = 0; x < checks.width(); ++x)
                checks.scanLine(y)[x] = (x + y) % 2 ? 255 : 0;
        }
        QVERIFY(checks.save(path("checks.jpg"), nullptr, 100));
        const QImage image = ImageLoader::loadForSize(path("checks.jpg"), QSize(100, 100));
        QCOMPARE(image.size(), QSize(100, 100));
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                QVERIFY(std::abs(qGreen(image.pixel(x, y)) - 128) < 6);
        }
    }

private:
    QString path(const char *name) const { return m_dir.filePath(QLatin1String(name)); }

    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(ImageLoaderTest)
#include "ImageLoaderTest.moc"
