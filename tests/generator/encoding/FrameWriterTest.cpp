// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/FrameWriter.h"

#include <QImage>
#include <QPainter>
#include <QtTest>

using namespace velmora;

namespace
{

QImage gradient(const QSize &size, QImage::Format format)
{
    QImage image(size, format);
    QLinearGradient colours(0, 0, size.width(), size.height());
    colours.setColorAt(0, QColor(200, 30, 10));
    colours.setColorAt(1, QColor(20, 60, 220));
    QPainter painter(&image);
    painter.fillRect(image.rect(), colours);
    return image;
}

int largestDifference(const QImage &a, const QImage &b)
{
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor p = a.pixelColor(x, y);
            const QColor q = b.pixelColor(x, y);
            largest = std::max({largest, std::abs(p.red() - q.red()),
                                std::abs(p.green() - q.green()), std::abs(p.blue() - q.blue())});
        }
    }
    return largest;
}

} // namespace

class FrameWriterTest : public QObject
{
    Q_OBJECT
private slots:
    void keepsThePicture_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("format");
        QTest::newRow("usual") << QSize(160, 90) << int(QImage::Format_RGB32);
        QTest::newRow("odd size") << QSize(37, 11) << int(QImage::Format_RGB32);
        QTest::newRow("converted") << QSize(40, 30) << int(QImage::Format_RGB888);
        QTest::newRow("one pixel") << QSize(1, 1) << int(QImage::Format_RGB32);
    }
    void keepsThePicture()
    {
        QFETCH(QSize, size);
        QFETCH(int, format);
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("f.jpg"));
        const QImage frame = gradient(size, static_cast<QImage::Format>(format));
        FrameWriter writer;
        QString error;
        // The second frame reuses the buffer of a larger one.
        QVERIFY(writer.write(gradient({400, 300}, QImage::Format_RGB32), path, &error));
        QVERIFY2(writer.write(frame, path, &error), qPrintable(error));
        const QImage read(path, "JPEG");
        QCOMPARE(read.size(), size);
        QVERIFY(largestDifference(frame, read) <= 6);
    }

    void tellsWhatCannotBeWritten()
    {
        const QTemporaryDir folder;
        FrameWriter writer;
        QString error;
        QVERIFY(!writer.write(QImage(), folder.filePath(QStringLiteral("f.jpg")), &error));
        QVERIFY(!error.isEmpty());
        const QString path = folder.filePath(QStringLiteral("missing/f.jpg"));
        QVERIFY(!writer.write(gradient({8, 8}, QImage::Format_RGB32), path, &error));
        QVERIFY(!writer.isDiskFull());
        QVERIFY2(error.contains(QDir::toNativeSeparators(path)), qPrintable(error));
    }

    void reportsAFullDisk()
    {
        const QString full = QStringLiteral("/dev/full");
        if (!QFileInfo::exists(full))
            QSKIP("needs a device that is always full");
        FrameWriter writer;
        QString error;
        QVERIFY(!writer.write(gradient({8, 8}, QImage::Format_RGB32), full, &error));
        QVERIFY(writer.isDiskFull());
        QCOMPARE(error, QStringLiteral("The disk is full."));
    }
};

QTEST_GUILESS_MAIN(FrameWriterTest)
#include "FrameWriterTest.moc"
