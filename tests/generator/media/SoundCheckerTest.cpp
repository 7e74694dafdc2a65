// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/media/SoundChecker.h"
#include "helpers/MediaSamples.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace velmora;

class SoundCheckerTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void acceptsMusic_data();
    void acceptsMusic();
    void namesTheReason_data();
    void namesTheReason();

private:
    QTemporaryDir m_folder;
};

void SoundCheckerTest::initTestCase()
{
    const auto write = [this](const QString &fileName, const QByteArray &bytes) {
        QFile file(m_folder.filePath(fileName));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    };
    QVERIFY(write(QStringLiteral("empty.mp3"), {}));
    QVERIFY(write(QStringLiteral("text.ogg"), QByteArray("words\n").repeated(1000)));
    QVERIFY(write(QStringLiteral("list.wma"), "ffconcat version 1.0\nfile '/tmp/a.wav'\n"));
    QVERIFY(MediaSamples::encode({QStringLiteral("-f"), QStringLiteral("lavfi"),
                                  QStringLiteral("-i"), QStringLiteral("color=red:size=16x16"),
                                  QStringLiteral("-frames:v"), QStringLiteral("1"),
                                  m_folder.filePath(QStringLiteral("picture.jpg"))}));
    const QString whole = m_folder.filePath(QStringLiteral("whole.m4a"));
    QVERIFY(MediaSamples::makeTone(whole, {440, 1, 44100, 2}));
    QFile wholeFile(whole);
    QVERIFY(wholeFile.open(QIODevice::ReadOnly));
    QVERIFY(write(QStringLiteral("cut.m4a"), wholeFile.read(4000)));
    const QString wav = m_folder.filePath(QStringLiteral("whole.wav"));
    QVERIFY(MediaSamples::makeTone(wav, {440, 1, 44100, 2}));
    QFile wavFile(wav);
    QVERIFY(wavFile.open(QIODevice::ReadOnly));
    const QByteArray header = wavFile.read(200);
    QVERIFY(write(QStringLiteral("header.wav"), header.left(header.indexOf("data") + 8)));
}

void SoundCheckerTest::acceptsMusic_data()
{
    QTest::addColumn<QString>("ending");
    for (const char *ending : {"mp3", "m4a", "wav", "wma", "flac"})
        QTest::newRow(ending) << QString::fromLatin1(ending);
}

void SoundCheckerTest::acceptsMusic()
{
    QFETCH(QString, ending);
    const QString path = m_folder.filePath(QStringLiteral("tone.") + ending);
    QVERIFY(MediaSamples::makeTone(path, {440, 1, 44100, 2}));
    QCOMPARE(checkSoundFile(path), QString());
}

void SoundCheckerTest::namesTheReason_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << QStringLiteral("missing.mp3") << QStringLiteral("does not exist");
    QTest::newRow("folder") << QStringLiteral(".") << QStringLiteral("not a file");
    QTest::newRow("empty") << QStringLiteral("empty.mp3") << QStringLiteral("empty");
    QTest::newRow("text") << QStringLiteral("text.ogg") << QStringLiteral("not a media file");
    QTest::newRow("picture") << QStringLiteral("picture.jpg") << QStringLiteral("no sound");
    QTest::newRow("play list") << QStringLiteral("list.wma") << QStringLiteral("play list");
    QTest::newRow("sound cut off before its index")
        << QStringLiteral("cut.m4a") << QStringLiteral("damaged");
    QTest::newRow("header without sound")
        << QStringLiteral("header.wav") << QStringLiteral("Nothing in it can be played");
}

void SoundCheckerTest::namesTheReason()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    const QString found = checkSoundFile(m_folder.filePath(name));
    QVERIFY2(found.contains(reason), qPrintable(found));
}

QTEST_GUILESS_MAIN(SoundCheckerTest)
#include "SoundCheckerTest.moc"
