// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/images/ExifReader.h"

#include "project/images/Pictures.h"

#include <QBuffer>
#include <QTemporaryDir>
#include <QTest>

using namespace velmora;

namespace
{

/// A block with one tag, the orientation, in either byte order.
QByteArray orientationBlock(int orientation, bool bigEndian)
{
    const QByteArray value(1, char(orientation));
    if (bigEndian)
        return QByteArray::fromHex("4d4d002a00000008 0001 0112 0003 00000001 00") + value +
               QByteArray::fromHex("0000 00000000");
    return QByteArray::fromHex("49492a0008000000 0100 1201 0300 01000000") + value +
           QByteArray::fromHex("000000 00000000");
}

/// A TIFF file whose directories stand behind @p pixels bytes: the orientation 6, and when the
/// photo was taken.
QByteArray tiffWithTagsAtItsEnd(int pixels)
{
    QByteArray file = QByteArray::fromHex("49492a00") + QByteArray(4 + pixels, '\0');
    const auto number = [&file](quint32 value, int bytes) {
        for (int i = 0; i < bytes; ++i)
            file.append(char(value >> 8 * i));
    };
    const auto entry = [&number](quint32 tag, quint32 type, quint32 count, quint32 value) {
        number(tag, 2);
        number(type, 2);
        number(count, 4);
        number(value, 4);
    };
    const auto first = quint32(file.size());
    for (int i = 0; i < 4; ++i)
        file[4 + i] = char(first >> 8 * i);
    const quint32 exif = first + 2 + 3 * 12 + 4;
    number(3, 2);
    entry(0x0111, 4, 1, 8); // where the pixels begin
    entry(0x0112, 3, 1, 6);
    entry(0x8769, 4, 1, exif);
    number(0, 4);
    number(1, 2);
    entry(0x9003, 2, 20, exif + 2 + 12 + 4);
    number(0, 4);
    return file + QByteArray("2021:07:04 12:13:14", 20);
}

/// Knows how much was read of it.
class CountingBuffer : public QBuffer
{
public:
    qint64 bytes = 0;

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const qint64 read = QBuffer::readData(data, size);
        bytes += std::max<qint64>(0, read);
        return read;
    }
};

QByteArray exifSegment(const QByteArray &block)
{
    const int size = block.size() + 8;
    return QByteArray("\xff\xe1") + char(size >> 8) + char(size) + QByteArray("Exif\0\0", 6) +
           block;
}

QByteArray chunk(const char *type, const QByteArray &data, bool lengthFirst)
{
    QByteArray length(4, '\0');
    if (lengthFirst) {
        length[3] = char(data.size());
        return length + type + data + QByteArray(4, '\0');
    }
    length[0] = char(data.size());
    return type + length + data + QByteArray(data.size() % 2, '\0');
}

} // namespace

class ExifReaderTest : public QObject
{
    Q_OBJECT
private slots:
    void dateTaken_data()
    {
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("fraction");
        QTest::addColumn<QDateTime>("expected");
        const auto row = [](const char *name, const char *key, const char *text,
                            const char *fraction, const QDateTime &expected) {
            QTest::newRow(name) << QByteArray(key) << QByteArray(text) << QByteArray(fraction)
                                << expected;
        };
        const QDateTime date(QDate(2021, 7, 4), QTime(12, 13, 14));
        const char *const original = "Exif.Photo.DateTimeOriginal";
        const char *const text = "2021:07:04 12:13:14";
        row("original", original, text, "", date);
        row("half a second", original, text, "5", date.addMSecs(500));
        row("microseconds", original, text, "123456", date.addMSecs(123));
        row("fraction not a number", original, text, "9e99", date);
        row("digitized", "Exif.Photo.DateTimeDigitized", text, "", date);
        row("never set", original, "0000:00:00 00:00:00", "", QDateTime());
        row("no date", original, "yesterday", "", QDateTime());
        // The moment of the last change says nothing about when the photo was taken.
        row("changed", "Exif.Image.DateTime", text, "", QDateTime());
    }

    void dateTaken()
    {
        QFETCH(QByteArray, key);
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, fraction);
        QFETCH(QDateTime, expected);
        for (const char *suffix : {"jpg", "tif", "png"}) {
            const QString file = m_dir.filePath(QLatin1String("dated.") + QLatin1String(suffix));
            QVERIFY(Pictures::save(Pictures::quadrants(QSize(16, 16)), file));
            Pictures::setExif(file, key.constData(), text.toStdString());
            if (!fraction.isEmpty())
                Pictures::setExif(file, "Exif.Photo.SubSecTimeOriginal", fraction.toStdString());
            QCOMPARE(ExifReader::read(file).taken, expected);
            QCOMPARE(ExifReader::read(Pictures::bytesOf(file)).taken, expected);
        }
    }

    void orientationIsFound_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<int>("expected");
        const QByteArray start("\xff\xd8");
        const QByteArray jfif = QByteArray::fromHex("ffe0 0010 4a46494600 0101 00 0001 0001 0000");
        const QByteArray xmp = QByteArray("\xff\xe1\x00\x09", 4) + "http://";
        const QByteArray block = orientationBlock(6, true);
        QTest::newRow("jpeg") << start + exifSegment(block) << 6;
        QTest::newRow("jpeg little endian") << start + exifSegment(orientationBlock(8, false)) << 8;
        QTest::newRow("behind other segments") << start + jfif + xmp + exifSegment(block) << 6;
        QTest::newRow("behind fill bytes") << start + "\xff\xff" + exifSegment(block) << 6;
        QTest::newRow("in picture data")
            << start + QByteArray("\xff\xda\x00\x02", 4) + exifSegment(block) << 1;
        QTest::newRow("zero") << start + exifSegment(orientationBlock(0, true)) << 1;
        QTest::newRow("nine") << start + exifSegment(orientationBlock(9, true)) << 1;
        QTest::newRow("tiff") << block << 6;
        const QByteArray png("\x89PNG\r\n\x1a\n");
        QTest::newRow("png") << png + chunk("tEXt", "a", true) + chunk("eXIf", block, true) << 6;
        const QByteArray webp("RIFF\0\0\0\0WEBP", 12);
        const QByteArray picture = chunk("VP8 ", "odd", false);
        QTest::newRow("webp") << webp + picture + chunk("EXIF", block, false) << 6;
        const QByteArray marked = QByteArray("Exif\0\0", 6) + block;
        QTest::newRow("webp with mark") << webp + chunk("EXIF", marked, false) << 6;
        QTest::newRow("nothing") << QByteArray() << 1;
        QTest::newRow("text") << QByteArray("A text that is no picture") << 1;
    }

    void orientationIsFound()
    {
        QFETCH(QByteArray, file);
        QTEST(ExifReader::read(file).orientation, "expected");
    }

    void cutBlocksYieldDefaults()
    {
        const QByteArray whole = QByteArray("\xff\xd8") + exifSegment(orientationBlock(6, true));
        const int tagEnd = whole.size() - 6; // The rest is padding and the link to further tags.
        for (int length = 0; length < tagEnd; ++length)
            QCOMPARE(ExifReader::read(whole.left(length)).orientation, 1);
    }

    void pixelsOfTiffFilesAreNotRead()
    {
        constexpr int pixels = 8 * 1024 * 1024;
        CountingBuffer file;
        file.setData(tiffWithTagsAtItsEnd(pixels));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const ExifInfo info = ExifReader::read(file);
        QCOMPARE(info.orientation, 6);
        QCOMPARE(info.taken, QDateTime(QDate(2021, 7, 4), QTime(12, 13, 14)));
        QVERIFY2(file.bytes < pixels / 16, qPrintable(QString::number(file.bytes)));
    }

    void cutTiffFilesDoNoHarm()
    {
        const QByteArray whole = tiffWithTagsAtItsEnd(16);
        const int textEnd = whole.size() - 1; // What follows only closes the text.
        for (int length = 0; length < textEnd; ++length)
            QVERIFY(!ExifReader::read(whole.left(length)).taken.isValid());
    }

    void missingFileYieldsDefaults()
    {
        const ExifInfo info = ExifReader::read(m_dir.filePath(QStringLiteral("missing.jpg")));
        QCOMPARE(info.orientation, 1);
        QVERIFY(!info.taken.isValid());
    }

private:
    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(ExifReaderTest)
#include "ExifReaderTest.moc"
