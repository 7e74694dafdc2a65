// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/images/ImageLoader.h"

#include "helpers/OrdinaryUser.h"
#include "platform/ImageFormats.h"
#include "project/images/Pictures.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

using namespace velmora;

namespace
{

QByteArray encoded(const char *suffix, const QSize &size)
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QLatin1String("picture.") + QLatin1String(suffix));
    Pictures::save(Pictures::quadrants(size), file);
    return Pictures::bytesOf(file);
}

/// A GIF with one picture of 64 by 64 pixels in four stripes, made of LZW codes of 3 bits that are
/// cleared after every two pixels, so that they keep this length.
QByteArray gif()
{
    QByteArray data;
    for (const char *pixels :
         {"040810204080000102", "4c983061c284091326", "942851a2448912254a", "dcb871e3c68d1b376e"})
        data += QByteArray::fromHex(pixels).repeated(64);
    data += 5; // the end

    QByteArray file = QByteArray::fromHex("474946383961 4000 4000 81 00 00"
                                          "e01010 10c010 1010e0 f0f0f0"
                                          "21f904 0000000000"
                                          "2c 0000 0000 4000 4000 00 02");
    for (int start = 0; start < data.size(); start += 255) {
        const QByteArray block = data.mid(start, 255);
        file += char(block.size()) + block;
    }
    return file + QByteArray("\0;", 2);
}

/// A JPEG file with a preview of itself, with an end marker of its own, in front.
QByteArray jpegWithThumbnail()
{
    const QByteArray thumbnail = encoded("jpg", QSize(16, 12));
    QByteArray length(2, '\0');
    qToBigEndian(quint16(thumbnail.size() + 2), length.data());
    return encoded("jpg", QSize(320, 240)).insert(2, "\xff\xe1" + length + thumbnail);
}

quint32 pngChecksum(const QByteArray &bytes)
{
    quint32 sum = 0xffffffff;
    for (const char byte : bytes) {
        sum ^= static_cast<uchar>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum >> 1 ^ (sum & 1 ? 0xedb88320 : 0);
    }
    return ~sum;
}

QByteArray bigEndian(quint32 number)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

QByteArray hugePng(quint32 side)
{
    QByteArray png = encoded("png", QSize(8, 8));
    png.replace(16, 8, bigEndian(side) + bigEndian(side));
    return png.replace(29, 4, bigEndian(pngChecksum(png.mid(12, 17))));
}

QByteArray hugeJpeg()
{
    QByteArray jpeg = encoded("jpg", QSize(8, 8));
    const int header = jpeg.indexOf("\xff\xc0");
    return jpeg.replace(header + 5, 4, QByteArray("\xfd\xe8\xfd\xe8", 4));
}

} // namespace

/// Files that are no pictures, broken ones and hostile ones.
class ImageCheckTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { installImageFormats(); }

    void unusableFilesAreNamed_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("reason");
        const auto row = [](const char *name, const QByteArray &bytes, const char *reason) {
            QTest::newRow(name) << name << bytes << reason;
        };
        const char *const notAPicture = "is not a picture that can be read";
        row("missing.jpg", QByteArray(), "does not exist");
        row(".", QByteArray(), "is a folder");
        row("empty.jpg", "", "is empty");
        row("text.jpg", "Dear diary, today ...\n", notAPicture);
        row("drawing.png", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>",
            notAPicture);
        row("x bitmap.png",
            "#define x_width 8\n#define x_height 1\nstatic char x_bits[] = { 0x55 };\n",
            notAPicture);
        row("magic.jpg", "\xff\xd8\xff\xe0", "is damaged or incomplete");
    }

    void unusableFilesAreNamed()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, reason);
        const QString file = m_dir.filePath(name);
        if (!bytes.isNull())
            QVERIFY(Pictures::writeBytes(file, bytes));
        QCOMPARE(ImageLoader::check(file), reason);
        QString error;
        QVERIFY(ImageLoader::load(file, &error).isNull());
        QCOMPARE(error, reason);
        QVERIFY(ImageLoader::loadForSize(file, QSize(62, 62)).isNull());
        QVERIFY(!ImageLoader::uprightSize(file).isValid());
    }

    void unreadableFileCannotBeOpened()
    {
        QVERIFY(Pictures::writeBytes(path("secret.jpg"), encoded("jpg", QSize(8, 8))));
        QVERIFY(QFile::setPermissions(path("secret.jpg"), QFile::WriteOwner));
        QVERIFY(QFile::setPermissions(m_dir.path(), QFile::ReadOwner | QFile::WriteOwner |
                                                        QFile::ExeOwner | QFile::ExeGroup |
                                                        QFile::ExeOther));
        const OrdinaryUser user;
        if (!user.isOne())
            QSKIP("This user may read every file.");
        for (const auto check : {&ImageLoader::checkEnd, &ImageLoader::check})
            QCOMPARE(check(path("secret.jpg")), QStringLiteral("cannot be opened"));
    }

    void cutFilesAreDamaged_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("percent");
        const QSize size(320, 240);
        const QVector<QPair<const char *, QByteArray>> files = {
            {"jpg", encoded("jpg", size)}, {"jpg with thumbnail", jpegWithThumbnail()},
            {"png", encoded("png", size)}, {"bmp", encoded("bmp", size)},
            {"tif", encoded("tif", size)}, {"gif", gif()},
        };
        for (const auto &file : files) {
            for (const int percent : {20, 50, 90, 97})
                QTest::addRow("%s %d%%", file.first, percent) << file.second << percent;
        }
    }

    void cutFilesAreDamaged()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, percent);
        QVERIFY(Pictures::writeBytes(path("whole"), bytes));
        QVERIFY(Pictures::writeBytes(path("cut"), bytes.left(bytes.size() * percent / 100)));
        for (const auto check : {&ImageLoader::checkEnd, &ImageLoader::check}) {
            QCOMPARE(check(path("whole")), QString());
            QCOMPARE(check(path("cut")), QStringLiteral("is damaged or incomplete"));
        }
    }

    /// So that thousands of photos are looked at in a moment.
    void checkOfTheEndDoesNotDecode()
    {
        QByteArray jpeg = encoded("jpg", QSize(320, 240));
        QVERIFY(
            Pictures::writeBytes(path("hole.jpg"), jpeg.replace(jpeg.size() / 2, 2, "\xff\xc4")));
        QVERIFY(!ImageLoader::check(path("hole.jpg")).isEmpty());
        QCOMPARE(ImageLoader::checkEnd(path("hole.jpg")), QString());
    }

    void harmlessOdditiesPass_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray jpeg = encoded("jpg", QSize(320, 240));
        const QByteArray tail(1000, 'x');
        QTest::newRow("bytes behind a JPEG") << jpeg + tail;
        QTest::newRow("film behind a JPEG") << jpeg + tail.repeated(200);
        QTest::newRow("no end marker") << jpeg.left(jpeg.size() - 2);
        QTest::newRow("bytes behind a PNG") << encoded("png", QSize(320, 240)) + tail;
        QTest::newRow("bytes behind a BMP") << encoded("bmp", QSize(320, 240)) + tail;
        QTest::newRow("bytes behind a GIF") << gif() + tail;
    }

    void harmlessOdditiesPass()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(Pictures::writeBytes(path("odd"), bytes));
        QCOMPARE(ImageLoader::check(path("odd")), QString());
        QCOMPARE(ImageLoader::checkEnd(path("odd")), QString());
        QCOMPARE(Pictures::colorName(ImageLoader::load(path("odd")).pixel(4, 4)), QLatin1Char('R'));
    }

    void hugePicturesAreRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("size");
        QTest::newRow("png") << hugePng(30000) << "30000 x 30000";
        QTest::newRow("more than the memory") << hugePng(19000) << "19000 x 19000";
        QTest::newRow("jpg") << hugeJpeg() << "65000 x 65000";
    }

    void hugePicturesAreRefused()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, size);
        QVERIFY(Pictures::writeBytes(path("huge"), bytes));
        const QString reason = QStringLiteral("is too large (%1 pixels)").arg(size);
        QCOMPARE(ImageLoader::check(path("huge")), reason);
        QCOMPARE(ImageLoader::checkEnd(path("huge")), reason);
        QString error;
        QVERIFY(ImageLoader::loadForSize(path("huge"), QSize(62, 62), &error).isNull());
        QCOMPARE(error, reason);
    }

    /// Panoramas of 200 megapixels are not.
    void largePicturesAreNotRefused()
    {
        QVERIFY(Pictures::writeBytes(path("large"), hugePng(14142)));
        QCOMPARE(ImageLoader::uprightSize(path("large")), QSize(14142, 14142));
    }

    void changedBytesDoNoHarm_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QSize size(40, 30);
        for (const char *suffix : {"jpg", "png", "bmp", "tif"})
            QTest::newRow(suffix) << encoded(suffix, size);
        QTest::newRow("gif") << gif();
    }

    void changedBytesDoNoHarm()
    {
        QFETCH(QByteArray, bytes);
        QRandomGenerator random(4711);
        for (int run = 0; run < 150; ++run) {
            QByteArray changed = bytes;
            for (int i = 0; i < 3; ++i)
                changed[random.bounded(changed.size())] = char(random.bounded(256));
            QVERIFY(Pictures::writeBytes(path("changed"), changed));
            const bool passes = ImageLoader::check(path("changed")).isEmpty();
            QVERIFY(!passes || ImageLoader::checkEnd(path("changed")).isEmpty());
            QVERIFY(!passes || !ImageLoader::load(path("changed")).isNull());
        }
    }

private:
    QString path(const char *name) const { return m_dir.filePath(QLatin1String(name)); }

    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(ImageCheckTest)
#include "ImageCheckTest.moc"
