// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/media/WavTranscoder.h"
#include "helpers/MediaSamples.h"

#include <QDir>
#include <QRandomGenerator>
#include <QTemporaryDir>
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

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

class WavTranscoderTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void decodesEveryFormat_data();
    void decodesEveryFormat();
    void decodesWhatItCan_data();
    void decodesWhatItCan();
    void followsAChangeOfForm();
    void refusesWhatHasNoSound_data();
    void refusesWhatHasNoSound();
    void leavesNothingWhenTheTargetCannotBeWritten();

private:
    QString file(const QString &name) const { return m_folder.filePath(name); }
    QTemporaryDir m_folder;
};

void WavTranscoderTest::initTestCase()
{
    QVERIFY(MediaSamples::makeTone(file(QStringLiteral("tone.mp3")), {440, 3, 44100, 2}));
}

void WavTranscoderTest::decodesEveryFormat_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("sampleRate");
    QTest::addColumn<int>("channels");
    QTest::addColumn<QStringList>("options");
    QTest::newRow("mp3") << QStringLiteral("a.mp3") << 44100 << 2 << QStringList();
    QTest::newRow("mp3, mono, 22 kHz") << QStringLiteral("a.mp3") << 22050 << 1 << QStringList();
    QTest::newRow("mp3, 48 kHz, variable bit rate")
        << QStringLiteral("a.mp3") << 48000 << 2
        << QStringList{QStringLiteral("-q:a"), QStringLiteral("4")};
    QTest::newRow("mp3 without any header")
        << QStringLiteral("a.mp3") << 44100 << 2
        << QStringList{QStringLiteral("-write_xing"), QStringLiteral("0"),
                       QStringLiteral("-id3v2_version"), QStringLiteral("0")};
    QTest::newRow("m4a") << QStringLiteral("a.m4a") << 48000 << 2 << QStringList();
    QTest::newRow("wma") << QStringLiteral("a.wma") << 44100 << 2 << QStringList();
    QTest::newRow("ogg") << QStringLiteral("a.ogg") << 48000 << 1 << MediaSamples::vorbis();
    QTest::newRow("flac, surround") << QStringLiteral("a.flac") << 48000 << 6 << QStringList();
    QTest::newRow("wav, 8 bit") << QStringLiteral("a.wav") << 8000 << 1
                                << QStringList{QStringLiteral("-acodec"), QStringLiteral("pcm_u8")};
    QTest::newRow("mp3 by content, wav by name")
        << QStringLiteral("a.wav") << 44100 << 2
        << QStringList{QStringLiteral("-f"), QStringLiteral("mp3")};
}

void WavTranscoderTest::decodesEveryFormat()
{
    QFETCH(QString, name);
    QFETCH(int, sampleRate);
    QFETCH(int, channels);
    QFETCH(QStringList, options);
    QVERIFY(MediaSamples::makeTone(file(name), {700, 2, sampleRate, channels}, options));

    WavTranscoder transcoder;
    const QString target = file(QStringLiteral("out.wav"));
    QVERIFY2(transcoder.transcode(file(name), target), qPrintable(transcoder.errorText()));
    QCOMPARE(MediaSamples::format(target), QStringLiteral("44100,2"));
    const MediaSamples::Sound sound = MediaSamples::listen(target);
    QVERIFY2(qAbs(MediaSamples::seconds(sound) - 2) < 0.1,
             qPrintable(QString::number(MediaSamples::seconds(sound))));
    QCOMPARE(MediaSamples::tone(sound, 0.2, 1.8, {350, 643, 700, 762, 1400}), 700);
    QCOMPARE(transcoder.damagedCount(), 0);
}

void WavTranscoderTest::decodesWhatItCan_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<double>("seconds");
    const QByteArray tone = read(file(QStringLiteral("tone.mp3")));
    const int half = tone.size() / 2;
    QTest::newRow("garbage before") << noise(20000) + tone << 3.0;
    QTest::newRow("much garbage before") << noise(300000) + tone << 3.0;
    QTest::newRow("garbage within") << tone.left(half) + noise(20000) + tone.mid(half) << 3.0;
    QTest::newRow("garbage behind") << tone + noise(20000) << 3.0;
    QTest::newRow("cut off") << tone.left(half) << 1.5;
    QTest::newRow("beginning missing") << tone.mid(half) << 1.5;
    QTest::newRow("broken tag") << QByteArray("ID3\x04\0\0\0\0\x10\0", 10) + noise(1500) + tone
                                << 3.0;
}

void WavTranscoderTest::decodesWhatItCan()
{
    QFETCH(QByteArray, content);
    QFETCH(double, seconds);
    QVERIFY(write(file(QStringLiteral("damaged.mp3")), content));

    WavTranscoder transcoder;
    const QString target = file(QStringLiteral("out.wav"));
    QVERIFY2(transcoder.transcode(file(QStringLiteral("damaged.mp3")), target),
             qPrintable(transcoder.errorText()));
    const MediaSamples::Sound sound = MediaSamples::listen(target);
    QVERIFY2(qAbs(MediaSamples::seconds(sound) - seconds) < 0.3,
             qPrintable(QString::number(MediaSamples::seconds(sound))));
    QCOMPARE(MediaSamples::tone(sound, 0.2, seconds - 0.2, {220, 440, 880}), 440);
}

void WavTranscoderTest::followsAChangeOfForm()
{
    const QString low = file(QStringLiteral("low.mp3"));
    QVERIFY(MediaSamples::makeTone(low, {900, 3, 22050, 1}));
    const QString joined = file(QStringLiteral("joined.mp3"));
    QVERIFY(write(joined, read(file(QStringLiteral("tone.mp3"))) + read(low)));

    WavTranscoder transcoder;
    const QString target = file(QStringLiteral("out.wav"));
    QVERIFY2(transcoder.transcode(joined, target), qPrintable(transcoder.errorText()));
    const MediaSamples::Sound sound = MediaSamples::listen(target);
    QVERIFY(qAbs(MediaSamples::seconds(sound) - 6) < 0.2);
    QCOMPARE(MediaSamples::tone(sound, 0.5, 2.5, {440, 450, 900, 1800}), 440);
    QCOMPARE(MediaSamples::tone(sound, 3.5, 5.5, {440, 450, 900, 1800}), 900);
}

void WavTranscoderTest::refusesWhatHasNoSound_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("words and words\n").repeated(5000);
    QTest::newRow("noise") << noise(300000);
    QTest::newRow("zeros") << QByteArray(300000, '\0');
    QTest::newRow("a tag alone") << QByteArray("ID3\x03\0\0\0\0\0\x40", 10) + QByteArray(64, '\0');
}

void WavTranscoderTest::refusesWhatHasNoSound()
{
    QFETCH(QByteArray, content);
    const QString source = file(QStringLiteral("nothing.mp3"));
    QVERIFY(write(source, content));
    const QString target = file(QStringLiteral("kept.wav"));
    QVERIFY(write(target, "older"));

    WavTranscoder transcoder;
    QVERIFY(!transcoder.transcode(source, target));
    QVERIFY2(transcoder.errorText().contains(QDir::toNativeSeparators(source)),
             qPrintable(transcoder.errorText()));
    QCOMPARE(read(target), QByteArray("older"));
    QVERIFY(QDir(m_folder.path()).entryList({QStringLiteral("*.part")}).isEmpty());
}

void WavTranscoderTest::leavesNothingWhenTheTargetCannotBeWritten()
{
    WavTranscoder transcoder;
    const QString target = file(QStringLiteral("missing/out.wav"));
    QVERIFY(!transcoder.transcode(file(QStringLiteral("tone.mp3")), target));
    QVERIFY2(transcoder.errorText().contains(QDir::toNativeSeparators(target)),
             qPrintable(transcoder.errorText()));
}

QTEST_GUILESS_MAIN(WavTranscoderTest)
#include "WavTranscoderTest.moc"
