// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/documents/MediaSuffixes.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace velmora;

class MediaSuffixesTest : public QObject
{
    Q_OBJECT
private slots:
    void paths_data()
    {
        QTest::addColumn<bool>("isPhoto");
        QTest::addColumn<bool>("isAudio");
        for (const char *path : {"/p/a.png", "/p/a.jpg", "/p/a.jpeg", "/p/a.bmp", "/p/a.tif",
                                 "/p/a.tiff", "/p/a.gif", "/p/a.JPG", "/p/a.Tiff", "/p.mp3/a.png"})
            QTest::newRow(path) << true << false;
        for (const char *path : {"/m/a.m4a", "/m/a.mp3", "/m/a.wav", "/m/a.wma", "/m/a.ogg",
                                 "/m/a.flac", "/m/a.MP3", "/m.jpg/a.b.ogg"})
            QTest::newRow(path) << false << true;
        for (const char *path : {"/p/a", "/p/png", "/p/a.pn", "/p/a.jpg.txt", "/p/a.webp",
                                 "/p/a.jp2", "/p/a_jpg", "/p/a.jpg ", "/p.jpg/a", "/m/mp3",
                                 "/m/a.mp", "/m/a.mp3.txt", "/m/a.aac", "/m/a.", "/m.mp3/a"})
            QTest::newRow(path) << false << false;
    }

    void paths()
    {
        const QString path = QString::fromLatin1(QTest::currentDataTag());
        QTEST(isPhotoPath(path), "isPhoto");
        QTEST(isAudioPath(path), "isAudio");
    }

    void audioSuffixesBySystem()
    {
        const auto suffixes = [](QOperatingSystemVersion::OSType system, int version) {
            return audioSuffixes(QOperatingSystemVersion(system, version)).join(QLatin1Char(' '));
        };
        const QString old = QStringLiteral("wav wma ogg flac");
        const QString all = QStringLiteral("m4a mp3 ") + old;
        QCOMPARE(suffixes(QOperatingSystemVersion::Windows, 5), old);
        QCOMPARE(suffixes(QOperatingSystemVersion::Windows, 6), all);
        QCOMPARE(suffixes(QOperatingSystemVersion::Windows, 10), all);
        QCOMPARE(suffixes(QOperatingSystemVersion::MacOS, 5), all);
        QCOMPARE(audioSuffixes().join(QLatin1Char(' ')), all);
    }

    void orders_data()
    {
        QTest::addColumn<bool>("byFolder");
        QTest::addColumn<QString>("sorted");
        QTest::newRow("names alone")
            << false
            << "/z/1.jpg /a/2.jpg /a/10.jpg /a/a.jpg /a/Ähre.jpg /a/IMG_9.jpg /a/img_010.jpg "
               "/a/IMG_100.jpg /a/zoo.jpg";
        const auto row = [](const char *name, const char *sorted) {
            QTest::newRow(name) << true << sorted;
        };
        row("own files first", "/z.jpg /a/1.jpg /a/b/1.jpg");
        row("folders stay together", "/1/9.jpg /1/a/1.jpg /2/9.jpg /2/a/1.jpg /10/1.jpg");
        row("numbers within folders", "/d2/2.jpg /d2/10.jpg /d10/1.jpg");
        row("one name begins another", "/a/z.jpg /a!b/a.jpg /ab/a.jpg");
        row("case", "/A/1.jpg /A/2.jpg /a/1.jpg /B/1.jpg");
        row("file like a folder", "/b.jpg /a/b.jpg/1.jpg /b.jpg2/1.jpg");
    }

    void orders()
    {
        QFETCH(bool, byFolder);
        QFETCH(QString, sorted);
        const auto sort = byFolder ? &sortByFolder : &sortNaturally;
        const QStringList expected = sorted.split(QLatin1Char(' '));
        QStringList paths(expected.rbegin(), expected.rend());
        sort(&paths);
        QCOMPARE(paths, expected);
        std::rotate(paths.begin(), paths.begin() + 1, paths.end());
        sort(&paths);
        QCOMPARE(paths, expected);
    }

    void photosOfFolder()
    {
        const QTemporaryDir folder;
        const QDir dir(folder.path());
        for (const char *name : {"10.jpg", "9.JPG", "b 'x' %1.png", "notes.txt", "c.tiff"}) {
            QFile file(dir.filePath(QLatin1String(name)));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        QVERIFY(dir.mkdir(QStringLiteral("folder.png")));
        QString error;
        QStringList expected;
        for (const char *name : {"9.JPG", "10.jpg", "b 'x' %1.png", "c.tiff"})
            expected += dir.filePath(QLatin1String(name));
        QCOMPARE(photosInFolder(folder.path(), &error), expected);
        QVERIFY(error.isEmpty());
    }

    void unreadableFolder_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("missing") << "/no/such/folder";
        QTest::newRow("file") << QCoreApplication::applicationFilePath();
        QTest::newRow("empty") << QString();
    }

    void unreadableFolder()
    {
        QFETCH(QString, path);
        QString error;
        QVERIFY(photosInFolder(path, &error).isEmpty());
        QVERIFY(!error.isEmpty());
        QVERIFY(photosInFolder(path).isEmpty());
    }
};

QTEST_GUILESS_MAIN(MediaSuffixesTest)
#include "MediaSuffixesTest.moc"
