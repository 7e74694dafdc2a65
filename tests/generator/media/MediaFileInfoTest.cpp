// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/media/MediaFileInfo.h"
#include "helpers/MediaSamples.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace velmora;

class MediaFileInfoTest : public QObject
{
    Q_OBJECT
private slots:
    void factsOfFormats_data();
    void factsOfFormats();
    void coverIsNoVideo_data();
    void coverIsNoVideo();
    void soundDurationOfVideoFile();
    void strangeNames_data();
    void strangeNames();
    void unusableFilesYieldZeros_data();
    void unusableFilesYieldZeros();

private:
    QString file(const QString &name) const { return m_folder.filePath(name); }
    QTemporaryDir m_folder;
};

void MediaFileInfoTest::factsOfFormats_data()
{
    QTest::addColumn<QString>("ending");
    QTest::addColumn<QString>("codec");
    QTest::addColumn<int>("sampleRate");
    QTest::addColumn<int>("channels");
    QTest::addColumn<QString>("layout");
    QTest::newRow("mp3 stereo") << QStringLiteral("mp3") << QStringLiteral("mp3") << 44100 << 2
                                << QStringLiteral("stereo");
    QTest::newRow("mp3 mono, low rate")
        << QStringLiteral("mp3") << QStringLiteral("mp3") << 22050 << 1 << QStringLiteral("mono");
    QTest::newRow("m4a") << QStringLiteral("m4a") << QStringLiteral("aac") << 48000 << 2
                         << QStringLiteral("stereo");
    QTest::newRow("wav mono") << QStringLiteral("wav") << QStringLiteral("pcm_s16le") << 32000 << 1
                              << QStringLiteral("mono");
    QTest::newRow("wma") << QStringLiteral("wma") << QStringLiteral("wmav2") << 44100 << 2
                         << QStringLiteral("stereo");
    QTest::newRow("ogg") << QStringLiteral("ogg") << QStringLiteral("vorbis") << 48000 << 2
                         << QStringLiteral("stereo");
    QTest::newRow("flac surround")
        << QStringLiteral("flac") << QStringLiteral("flac") << 48000 << 6 << QStringLiteral("5.1");
}

void MediaFileInfoTest::factsOfFormats()
{
    QFETCH(QString, ending);
    QFETCH(int, sampleRate);
    QFETCH(int, channels);
    const QString path = file(QStringLiteral("tone.") + ending);
    const QStringList options =
        ending == QLatin1String("ogg") ? MediaSamples::vorbis() : QStringList();
    QVERIFY(MediaSamples::makeTone(path, {440, 2.5, sampleRate, channels}, options));

    const MediaFileInfo info(path);
    QVERIFY2(info.isValid(), qPrintable(info.errorText()));
    QVERIFY(info.hasAudio());
    QVERIFY(!info.hasVideo());
    QTEST(info.audioCodecName(), "codec");
    QTEST(info.audioSampleRate(), "sampleRate");
    QTEST(info.audioChannels(), "channels");
    QTEST(info.audioChannelLayout(), "layout");
    // Lossy formats pad the ends with part of a block.
    QVERIFY2(qAbs(info.duration() - 2500) < 100, qPrintable(QString::number(info.duration())));
}

void MediaFileInfoTest::coverIsNoVideo_data()
{
    QTest::addColumn<QString>("ending");
    QTest::newRow("mp3") << QStringLiteral("mp3");
    QTest::newRow("m4a") << QStringLiteral("m4a");
}

void MediaFileInfoTest::coverIsNoVideo()
{
    QFETCH(QString, ending);
    const QString path = file(QStringLiteral("cover.") + ending);
    QVERIFY(MediaSamples::makeToneWithCover(path, {440, 3, 44100, 2}));

    const MediaFileInfo info(path);
    QVERIFY(info.hasAudio());
    QVERIFY(!info.hasVideo());
    QVERIFY2(qAbs(info.duration() - 3000) < 100, qPrintable(QString::number(info.duration())));
}

void MediaFileInfoTest::soundDurationOfVideoFile()
{
    const QString path = file(QStringLiteral("film.mp4"));
    QVERIFY(MediaSamples::encode({QStringLiteral("-f"), QStringLiteral("lavfi"),
                                  QStringLiteral("-i"), QStringLiteral("color=red:size=64x64:d=4"),
                                  QStringLiteral("-f"), QStringLiteral("lavfi"),
                                  QStringLiteral("-i"), QStringLiteral("sine=d=2"), path}));

    const MediaFileInfo info(path);
    QVERIFY(info.hasVideo());
    QVERIFY2(qAbs(info.duration() - 2000) < 100, qPrintable(QString::number(info.duration())));
}

void MediaFileInfoTest::strangeNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("umlauts") << QStringLiteral("Grüße.wav");
    QTest::newRow("japanese") << QStringLiteral("音楽.wav");
    QTest::newRow("percent and quotes") << QStringLiteral("100%d 'so' \"called\".wav");
    QTest::newRow("looks like a protocol") << QStringLiteral("http:music.wav");
}

void MediaFileInfoTest::strangeNames()
{
    QFETCH(QString, name);
    if (QSysInfo::productType() == QLatin1String("windows"))
        name.remove(QRegularExpression(QStringLiteral("[\":]"))); // not allowed in names there
    const QString plain = file(QStringLiteral("plain.wav"));
    QVERIFY(MediaSamples::makeTone(plain, {440, 1, 44100, 2}));
    QVERIFY(QFile::copy(plain, file(name)));
    QCOMPARE(MediaFileInfo(file(name)).duration(), 1000);
}

void MediaFileInfoTest::unusableFilesYieldZeros_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("no music in here\n").repeated(3000);
    QTest::newRow("play list") << QByteArray("ffconcat version 1.0\nfile 'plain.wav'\n");
    QTest::newRow("header only") << QByteArray("RIFF\xff\xff\xff\xffWAVEfmt ", 16);
    QTest::newRow("frames cut at once") << QByteArray("ID3\x03\0\0\x7f\x7f\x7f\x7f", 10);
}

void MediaFileInfoTest::unusableFilesYieldZeros()
{
    QFETCH(QByteArray, content);
    const QString path = file(QStringLiteral("broken.mp3"));
    QFile broken(path);
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write(content);
    broken.close();

    const MediaFileInfo info(path);
    QVERIFY(!info.isValid());
    QVERIFY(!info.errorText().isEmpty());
    QCOMPARE(info.duration(), 0);
    QCOMPARE(info.audioSampleRate(), 0);
    QCOMPARE(info.audioChannels(), 0);
    QCOMPARE(info.audioChannelLayout(), QString());
}

QTEST_GUILESS_MAIN(MediaFileInfoTest)
#include "MediaFileInfoTest.moc"
