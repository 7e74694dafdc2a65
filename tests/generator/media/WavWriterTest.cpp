// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/media/WavWriter.h"
#include "generator/media/MediaFileInfo.h"
#include "helpers/Files.h"

#include <QtTest>

using namespace velmora;

class WavWriterTest : public QObject
{
    Q_OBJECT
private slots:
    void headerTellsTheLength_data()
    {
        QTest::addColumn<qint64>("dataSize");
        QTest::addColumn<qint64>("duration");
        QTest::newRow("one second") << qint64(176400) << qint64(1000);
        QTest::newRow("just below 4 GB") << (qint64(1) << 32) - 400 << qint64(24347885);
        QTest::newRow("10 GB") << qint64(176400) * 60000 << qint64(60000000);
    }
    void headerTellsTheLength()
    {
        QFETCH(qint64, dataSize);
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("long.wav")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QByteArray header = WavWriter::header(static_cast<quint64>(dataSize));
        QCOMPARE(header.size(), WavWriter::header(0).size());
        file.write(header);
        // The samples are a hole in the file.
        if (!file.resize(header.size() + dataSize))
            QSKIP("The file system has no room for large sparse files.");
        file.close();

        const MediaFileInfo info(file.fileName());
        QVERIFY2(info.isValid(), qPrintable(info.errorText()));
        QCOMPARE(info.audioCodecName(), QStringLiteral("pcm_s16le"));
        QTEST(info.duration(), "duration");
    }

    void appearsOnlyWhenCommitted()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("a.wav"));
        {
            WavWriter abandoned(path);
            QVERIFY(abandoned.open());
            QVERIFY(abandoned.write(QByteArray(400, '\0')));
            QVERIFY(!QFile::exists(path));
        }
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList());

        QVERIFY(writeFile(path, QByteArray(5000, 'x'))); // an older file
        WavWriter writer(path);
        QVERIFY(writer.open() && writer.write(QByteArray(400, '\1')) && writer.commit());
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("a.wav")});
        QCOMPARE(readFile(path), WavWriter::header(400) + QByteArray(400, '\1'));
    }

    void reportsAMissingFolder()
    {
        const QTemporaryDir folder;
        WavWriter writer(folder.filePath(QStringLiteral("missing/a.wav")));
        QVERIFY(!writer.open());
        QVERIFY(!writer.isDiskFull());
        QVERIFY(!writer.errorText().isEmpty());
    }

    void reportsAFullDisk()
    {
        if (!QFile::exists(QStringLiteral("/dev/full")))
            QSKIP("There is no device that is always full.");
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("a.wav"));
        WavWriter writer(path);
        // The temporary name is known, so a device can take its place.
        const QString temporary =
            QStringLiteral("%1.%2.part").arg(path).arg(QCoreApplication::applicationPid());
        QVERIFY(QFile::link(QStringLiteral("/dev/full"), temporary));
        const bool written =
            writer.open() && writer.write(QByteArray(1024 * 1024, '\0')) && writer.commit();
        QVERIFY(!written);
        QVERIFY(writer.isDiskFull());
        QCOMPARE(writer.errorText(), QStringLiteral("The disk is full."));
        QVERIFY(!QFile::exists(path));
    }
};

QTEST_GUILESS_MAIN(WavWriterTest)
#include "WavWriterTest.moc"
