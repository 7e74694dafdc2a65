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
    void photoPaths_data();
    void photoPaths();
    void audioPaths_data();
    void audioPaths();
    void audioSuffixesBySystem();
    void naturalOrder();
    void folderOrder_data();
    void folderOrder();
    void photosOfFolder();
    void unreadableFolder_data();
    void unreadableFolder();
};

void MediaSuffixesTest::photoPaths_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("accepted");
    for (const char *suffix : {"png", "jpg", "jpeg", "bmp", "tif", "tiff", "gif", "JPG", "Tiff"}) {
        QTest::newRow(suffix) << QStringLiteral("/p/a.") + QLatin1String(suffix) << true;
    }
    for (const char *name :
         {"a", "png", "a.pn", "a.jpg.txt", "a.webp", "a.jp2", "a_jpg", "a.jpg "}) {
        QTest::newRow(name) << QStringLiteral("/p/") + QLatin1String(name) << false;
    }
    QTest::newRow("folder with a dot") << QStringLiteral("/p.jpg/a") << false;
}

void MediaSuffixesTest::photoPaths()
{
    QFETCH(QString, path);
    QTEST(isPhotoPath(path), "accepted");
}

void MediaSuffixesTest::audioPaths_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("accepted");
    for (const char *suffix : {"m4a", "mp3", "wav", "wma", "ogg", "flac", "MP3"}) {
        QTest::newRow(suffix) << QStringLiteral("/m/a.b.") + QLatin1String(suffix) << true;
    }
    for (const char *name : {"a", "mp3", "a.mp", "a.mp3.txt", "a.aac", "a."}) {
        QTest::newRow(name) << QStringLiteral("/m.mp3/") + QLatin1String(name) << false;
    }
}

void MediaSuffixesTest::audioPaths()
{
    QFETCH(QString, path);
    QTEST(isAudioPath(path), "accepted");
}

void MediaSuffixesTest::audioSuffixesBySystem()
{
    const QStringList old = {QStringLiteral("wav"), QStringLiteral("wma"), QStringLiteral("ogg"),
                             QStringLiteral("flac")};
    const QStringList all = QStringList{QStringLiteral("m4a"), QStringLiteral("mp3")} + old;
    const auto windows = [](int major, int minor) {
        return QOperatingSystemVersion(QOperatingSystemVersion::Windows, major, minor);
    };
    QCOMPARE(audioSuffixes(windows(5, 1)), old);
    QCOMPARE(audioSuffixes(windows(6, 0)), all);
    QCOMPARE(audioSuffixes(windows(10, 0)), all);
    QCOMPARE(audioSuffixes(QOperatingSystemVersion(QOperatingSystemVersion::MacOS, 5, 0)), all);
    QCOMPARE(audioSuffixes(), all);
}

void MediaSuffixesTest::naturalOrder()
{
    const QStringList sorted = {QStringLiteral("/z/1.jpg"),       QStringLiteral("/a/2.jpg"),
                                QStringLiteral("/a/10.jpg"),      QStringLiteral("/a/a.jpg"),
                                QStringLiteral("/a/Ähre.jpg"),    QStringLiteral("/a/IMG_9.jpg"),
                                QStringLiteral("/a/img_010.jpg"), QStringLiteral("/a/IMG_100.jpg"),
                                QStringLiteral("/a/zoo.jpg")};
    QStringList paths(sorted.rbegin(), sorted.rend());
    sortNaturally(&paths);
    QCOMPARE(paths, sorted);
}

void MediaSuffixesTest::folderOrder_data()
{
    QTest::addColumn<QString>("sorted");
    QTest::newRow("own files first") << QStringLiteral("/z.jpg /a/1.jpg /a/b/1.jpg");
    QTest::newRow("folders stay together")
        << QStringLiteral("/1/9.jpg /1/a/1.jpg /2/9.jpg /2/a/1.jpg /10/1.jpg");
    QTest::newRow("numbers within folders") << QStringLiteral("/d2/2.jpg /d2/10.jpg /d10/1.jpg");
    QTest::newRow("one name begins another") << QStringLiteral("/a/z.jpg /a!b/a.jpg /ab/a.jpg");
    QTest::newRow("case") << QStringLiteral("/A/1.jpg /A/2.jpg /a/1.jpg /B/1.jpg");
    QTest::newRow("file like a folder") << QStringLiteral("/b.jpg /a/b.jpg/1.jpg /b.jpg2/1.jpg");
}

void MediaSuffixesTest::folderOrder()
{
    QFETCH(QString, sorted);
    const QStringList expected = sorted.split(QLatin1Char(' '));
    QStringList paths(expected.rbegin(), expected.rend());
    sortByFolder(&paths);
    QCOMPARE(paths, expected);
    std::rotate(paths.begin(), paths.begin() + 1, paths.end());
    sortByFolder(&paths);
    QCOMPARE(paths, expected);
}

void MediaSuffixesTest::photosOfFolder()
{
    const QTemporaryDir folder;
    const QDir dir(folder.path());
    for (const char *name : {"10.jpg", "9.JPG", "b 'x' %1.png", "notes.txt", "c.tiff"}) {
        QFile file(dir.filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QVERIFY(dir.mkdir(QStringLiteral("folder.png")));
    QString error;
    const QStringList expected = {
        dir.filePath(QStringLiteral("9.JPG")), dir.filePath(QStringLiteral("10.jpg")),
        dir.filePath(QStringLiteral("b 'x' %1.png")), dir.filePath(QStringLiteral("c.tiff"))};
    QCOMPARE(photosInFolder(folder.path(), &error), expected);
    QVERIFY(error.isEmpty());
}

void MediaSuffixesTest::unreadableFolder_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("missing") << QStringLiteral("/no/such/folder");
    QTest::newRow("file") << QCoreApplication::applicationFilePath();
    QTest::newRow("empty") << QString();
}

void MediaSuffixesTest::unreadableFolder()
{
    QFETCH(QString, path);
    QString error;
    QVERIFY(photosInFolder(path, &error).isEmpty());
    QVERIFY(!error.isEmpty());
    QVERIFY(photosInFolder(path).isEmpty());
}

QTEST_GUILESS_MAIN(MediaSuffixesTest)
#include "MediaSuffixesTest.moc"
