// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/media/SoundChecker.h"
#include "helpers/Files.h"
#include "helpers/MediaSamples.h"
#include "helpers/Words.h"

#include <QtTest>

using namespace velmora;

class SoundCheckerTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        QVERIFY(writeFile(file("empty.mp3")));
        QVERIFY(writeFile(file("text.ogg"), QByteArray("words\n").repeated(1000)));
        QVERIFY(writeFile(file("list.wma"), "ffconcat version 1.0\nfile '/tmp/a.wav'\n"));
        QVERIFY(MediaSamples::encode(words("-f lavfi -i color=red:size=16x16 -frames:v 1")
                                     << file("picture.jpg")));
        QVERIFY(MediaSamples::makeTone(file("whole.m4a"), {440, 1, 44100, 2}));
        QVERIFY(writeFile(file("cut.m4a"), readFile(file("whole.m4a")).left(4000)));
        QVERIFY(MediaSamples::makeTone(file("whole.wav"), {440, 1, 44100, 2}));
        const QByteArray wav = readFile(file("whole.wav"));
        QVERIFY(writeFile(file("header.wav"), wav.left(wav.indexOf("data") + 8)));
    }

    void acceptsMusic_data()
    {
        QTest::addColumn<QString>("ending");
        for (const char *ending : {"mp3", "m4a", "wav", "wma", "flac"})
            QTest::newRow(ending) << ending;
    }
    void acceptsMusic()
    {
        QFETCH(QString, ending);
        const QString path = m_folder.filePath(QStringLiteral("tone.") + ending);
        QVERIFY(MediaSamples::makeTone(path, {440, 1, 44100, 2}));
        QCOMPARE(checkSoundFile(path), QString());
    }

    void namesTheReason_data()
    {
        QTest::addColumn<QString>("reason");
        QTest::newRow("missing.mp3") << "does not exist";
        QTest::newRow(".") << "not a file";
        QTest::newRow("empty.mp3") << "empty";
        QTest::newRow("text.ogg") << "not a media file";
        QTest::newRow("picture.jpg") << "no sound";
        QTest::newRow("list.wma") << "play list";
        QTest::newRow("cut.m4a") << "damaged"; // before its index
        QTest::newRow("header.wav") << "Nothing in it can be played";
    }
    void namesTheReason()
    {
        QFETCH(QString, reason);
        const QString found = checkSoundFile(file(QTest::currentDataTag()));
        QVERIFY2(found.contains(reason), qPrintable(found));
    }

private:
    QString file(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(SoundCheckerTest)
#include "SoundCheckerTest.moc"
