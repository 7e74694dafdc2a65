// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/media/MediaFileInfo.h"
#include "helpers/Files.h"
#include "helpers/MediaSamples.h"
#include "helpers/Words.h"

#include <QtTest>

using namespace velmora;

class MediaFileInfoTest : public QObject
{
    Q_OBJECT
private slots:
    void factsOfFormats_data()
    {
        QTest::addColumn<QString>("ending");
        QTest::addColumn<QString>("codec");
        QTest::addColumn<int>("sampleRate");
        QTest::addColumn<int>("channels");
        QTest::addColumn<QString>("layout");
        const auto row = [](const char *ending, const char *codec, int sampleRate, int channels,
                            const char *layout) {
            QTest::addRow("%s %s", ending, layout)
                << ending << QString::fromLatin1(codec) << sampleRate << channels << layout;
        };
        row("mp3", "mp3", 44100, 2, "stereo");
        row("mp3", "mp3", 22050, 1, "mono");
        row("m4a", "aac", 48000, 2, "stereo");
        row("wav", "pcm_s16le", 32000, 1, "mono");
        row("wma", "wmav2", 44100, 2, "stereo");
        row("ogg", "vorbis", 48000, 2, "stereo");
        row("flac", "flac", 48000, 6, "5.1");
    }
    void factsOfFormats()
    {
        QFETCH(QString, ending);
        QFETCH(int, sampleRate);
        QFETCH(int, channels);
        const QString path = file(QStringLiteral("100%d Grüße 音楽 'so'.") + ending);
        const QStringList options =
            ending == QLatin1String("ogg") ? MediaSamples::vorbis() : QStringList();
        const MediaSamples::Tone tone{440, 2.5, sampleRate, channels};
        // A cover is no video.
        QVERIFY(ending.startsWith(QLatin1Char('m')) ? MediaSamples::makeToneWithCover(path, tone)
                                                    : MediaSamples::makeTone(path, tone, options));

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

    void soundDurationOfVideoFile()
    {
        const QString path = file(QStringLiteral("film.mp4"));
        QVERIFY(MediaSamples::encode(
            words("-f lavfi -i color=red:size=64x64:d=4 -f lavfi -i sine=d=2") << path));

        const MediaFileInfo info(path);
        QVERIFY(info.hasVideo());
        QVERIFY2(qAbs(info.duration() - 2000) < 100, qPrintable(QString::number(info.duration())));
    }

    void unusableFilesYieldZeros_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("no music in here\n").repeated(3000);
        QTest::newRow("play list") << QByteArray("ffconcat version 1.0\nfile 'plain.wav'\n");
        QTest::newRow("header only") << QByteArray("RIFF\xff\xff\xff\xffWAVEfmt ", 16);
        QTest::newRow("frames cut at once") << QByteArray("ID3\x03\0\0\x7f\x7f\x7f\x7f", 10);
    }
    void unusableFilesYieldZeros()
    {
        QFETCH(QByteArray, content);
        const QString path = file(QStringLiteral("broken.mp3"));
        QVERIFY(writeFile(path, content));

        const MediaFileInfo info(path);
        QVERIFY(!info.isValid());
        QVERIFY(!info.errorText().isEmpty());
        QCOMPARE(info.duration(), 0);
        QCOMPARE(info.audioSampleRate(), 0);
        QCOMPARE(info.audioChannels(), 0);
        QCOMPARE(info.audioChannelLayout(), QString());
    }

private:
    QString file(const QString &name) const { return m_folder.filePath(name); }
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(MediaFileInfoTest)
#include "MediaFileInfoTest.moc"
