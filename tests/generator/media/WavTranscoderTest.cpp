// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/media/WavTranscoder.h"
#include "helpers/Files.h"
#include "helpers/MediaSamples.h"
#include "helpers/Words.h"

#include <QtTest>

using namespace velmora;

namespace
{

QByteArray noise(int size)
{
    QRandomGenerator generator(7);
    QByteArray bytes;
    while (bytes.size() < size)
        bytes.append(static_cast<char>(generator.bounded(256)));
    return bytes;
}

} // namespace

class WavTranscoderTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        QVERIFY(MediaSamples::makeTone(file(QStringLiteral("tone.mp3")), {440, 3, 44100, 2}));
    }

    void decodesEveryFormat_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("sampleRate");
        QTest::addColumn<int>("channels");
        QTest::addColumn<QStringList>("options");
        const QStringList none;
        QTest::newRow("mp3") << "a.mp3" << 44100 << 2 << none;
        QTest::newRow("mp3, mono, 22 kHz") << "a.mp3" << 22050 << 1 << none;
        QTest::newRow("mp3, 48 kHz, variable bit rate") << "a.mp3" << 48000 << 2 << words("-q:a 4");
        QTest::newRow("mp3 without any header")
            << "a.mp3" << 44100 << 2 << words("-write_xing 0 -id3v2_version 0");
        QTest::newRow("m4a") << "a.m4a" << 48000 << 2 << none;
        QTest::newRow("wma") << "a.wma" << 44100 << 2 << none;
        QTest::newRow("ogg") << "a.ogg" << 48000 << 1 << MediaSamples::vorbis();
        QTest::newRow("flac, surround") << "a.flac" << 48000 << 6 << none;
        QTest::newRow("wav, 8 bit") << "a.wav" << 8000 << 1 << words("-acodec pcm_u8");
        QTest::newRow("mp3 by content, wav by name") << "a.wav" << 44100 << 2 << words("-f mp3");
    }
    void decodesEveryFormat()
    {
        QFETCH(QString, name);
        QFETCH(int, sampleRate);
        QFETCH(int, channels);
        QFETCH(QStringList, options);
        QVERIFY(MediaSamples::makeTone(file(name), {700, 2, sampleRate, channels}, options));

        int damaged = -1;
        const MediaSamples::Sound sound = transcoded(file(name), &damaged);
        QCOMPARE(MediaSamples::format(file(QStringLiteral("out.wav"))), QStringLiteral("44100,2"));
        QVERIFY2(qAbs(MediaSamples::seconds(sound) - 2) < 0.1,
                 qPrintable(QString::number(MediaSamples::seconds(sound))));
        QCOMPARE(MediaSamples::tone(sound, 0.2, 1.8, {350, 643, 700, 762, 1400}), 700);
        QCOMPARE(damaged, 0);
    }

    void decodesWhatItCan_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<double>("seconds");
        const QByteArray tone = readFile(file(QStringLiteral("tone.mp3")));
        const int half = tone.size() / 2;
        QTest::newRow("garbage before") << noise(20000) + tone << 3.0;
        QTest::newRow("much garbage before") << noise(300000) + tone << 3.0;
        QTest::newRow("garbage within") << tone.left(half) + noise(20000) + tone.mid(half) << 3.0;
        QTest::newRow("garbage behind") << tone + noise(20000) << 3.0;
        QTest::newRow("cut off") << tone.left(half) << 1.5;
        QTest::newRow("beginning missing") << tone.mid(half) << 1.5;
        QTest::newRow("broken tag")
            << QByteArray("ID3\x04\0\0\0\0\x10\0", 10) + noise(1500) + tone << 3.0;
    }
    void decodesWhatItCan()
    {
        QFETCH(QByteArray, content);
        QFETCH(double, seconds);
        QVERIFY(writeFile(file(QStringLiteral("damaged.mp3")), content));

        const MediaSamples::Sound sound = transcoded(file(QStringLiteral("damaged.mp3")));
        QVERIFY2(qAbs(MediaSamples::seconds(sound) - seconds) < 0.3,
                 qPrintable(QString::number(MediaSamples::seconds(sound))));
        QCOMPARE(MediaSamples::tone(sound, 0.2, seconds - 0.2, {220, 440, 880}), 440);
    }

    void followsAChangeOfForm()
    {
        const QString low = file(QStringLiteral("low.mp3"));
        QVERIFY(MediaSamples::makeTone(low, {900, 3, 22050, 1}));
        const QString joined = file(QStringLiteral("joined.mp3"));
        QVERIFY(writeFile(joined, readFile(file(QStringLiteral("tone.mp3"))) + readFile(low)));

        const MediaSamples::Sound sound = transcoded(joined);
        QVERIFY(qAbs(MediaSamples::seconds(sound) - 6) < 0.2);
        QCOMPARE(MediaSamples::tone(sound, 0.5, 2.5, {440, 450, 900, 1800}), 440);
        QCOMPARE(MediaSamples::tone(sound, 3.5, 5.5, {440, 450, 900, 1800}), 900);
    }

    void refusesWhatHasNoSound_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("words and words\n").repeated(5000);
        QTest::newRow("noise") << noise(300000);
        QTest::newRow("zeros") << QByteArray(300000, '\0');
        QTest::newRow("a tag alone")
            << QByteArray("ID3\x03\0\0\0\0\0\x40", 10) + QByteArray(64, '\0');
    }
    void refusesWhatHasNoSound()
    {
        QFETCH(QByteArray, content);
        const QString source = file(QStringLiteral("nothing.mp3"));
        QVERIFY(writeFile(source, content));
        const QString target = file(QStringLiteral("kept.wav"));
        QVERIFY(writeFile(target, "older"));

        WavTranscoder transcoder;
        QVERIFY(!transcoder.transcode(source, target));
        QVERIFY2(transcoder.errorText().contains(QDir::toNativeSeparators(source)),
                 qPrintable(transcoder.errorText()));
        QCOMPARE(readFile(target), QByteArray("older"));
        QVERIFY(QDir(m_folder.path()).entryList({QStringLiteral("*.part")}).isEmpty());
    }

    void leavesNothingWhenTheTargetCannotBeWritten()
    {
        WavTranscoder transcoder;
        const QString target = file(QStringLiteral("missing/out.wav"));
        QVERIFY(!transcoder.transcode(file(QStringLiteral("tone.mp3")), target));
        QVERIFY2(transcoder.errorText().contains(QDir::toNativeSeparators(target)),
                 qPrintable(transcoder.errorText()));
    }

private:
    QString file(const QString &name) const { return m_folder.filePath(name); }
    /// What "out.wav" holds then; nothing when @p source cannot be decoded.
    MediaSamples::Sound transcoded(const QString &source, int *damaged = nullptr) const
    {
        WavTranscoder transcoder;
        const QString target = file(QStringLiteral("out.wav"));
        if (!transcoder.transcode(source, target))
            qWarning() << transcoder.errorText();
        if (damaged)
            *damaged = transcoder.damagedCount();
        return MediaSamples::listen(target);
    }

    QTemporaryDir m_folder{QDir::tempPath() + QStringLiteral("/50%1 XXXXXX")};
};

QTEST_GUILESS_MAIN(WavTranscoderTest)
#include "WavTranscoderTest.moc"
