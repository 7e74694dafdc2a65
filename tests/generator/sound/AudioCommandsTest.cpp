// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/sound/AudioCommands.h"

#include <QtTest>

using namespace velmora;

class AudioCommandsTest : public QObject
{
    Q_OBJECT
private slots:
    void lengthsAreSeconds_data()
    {
        QTest::addColumn<qint64>("milliseconds");
        QTest::addColumn<QString>("text");
        QTest::newRow("whole") << qint64(65000) << "65";
        QTest::newRow("with a rest") << qint64(65250) << "65.250";
        QTest::newRow("small rest") << qint64(65004) << "65.004";
        QTest::newRow("below one second") << qint64(40) << "0.040";
        QTest::newRow("none") << qint64(0) << "0";
        QTest::newRow("many hours") << qint64(360000000) << "360000";
    }
    void lengthsAreSeconds()
    {
        QFETCH(qint64, milliseconds);
        QTEST(AudioCommands::seconds(milliseconds), "text");
    }

    void commands_data()
    {
        QTest::addColumn<QStringList>("built");
        QTest::addColumn<QString>("expected");
        const QString a = QStringLiteral("/c/a.wav");
        const QString b = QStringLiteral("/c/b.wav");
        const QString list = QStringLiteral("/c/l.txt");
        const qint64 hours = 7 * 3600 * 1000;

        const auto row = [](const char *name, const QStringList &built, const char *expected) {
            QTest::newRow(name) << built << QString::fromLatin1(expected);
        };
        row("join", AudioCommands::join(list),
            "-f concat -safe 0 -i /c/l.txt -c copy -y -rf64 auto");
        row("cut", AudioCommands::cut(a, 0, 65000), "-t 65 -i /c/a.wav -y");
        row("cut with offset", AudioCommands::cut(a, 12, 65250), "-ss 12 -t 65.250 -i /c/a.wav -y");
        row("cut for a long video", AudioCommands::cut(a, 0, hours),
            "-t 25200 -i /c/a.wav -rf64 auto -y");
        row("fade", AudioCommands::fade(a, 5000, 65000),
            "-i /c/a.wav -filter_complex afade=t=in:ss=0:d=5,afade=t=out:st=60:d=5 -y");
        row("fade with a rest", AudioCommands::fade(a, 1500, 4250),
            "-i /c/a.wav -filter_complex afade=t=in:ss=0:d=1.500,afade=t=out:st=2.750:d=1.500 -y");
        row("fade out", AudioCommands::fadeOut(a, 2000, 9500),
            "-t 9.500 -i /c/a.wav -filter_complex afade=t=out:st=7.500:d=2 -y");
        row("silence", AudioCommands::silence(4000, QStringLiteral("mono"), 22050),
            "-filter_complex aevalsrc=0:duration=4:c=mono:s=22050 -y");
        row("prepend", AudioCommands::prepend(a, b),
            "-i /c/a.wav -i /c/b.wav -filter_complex [0:a:0][1:a:0]#concat=n=2:v=0:a=1[out] "
            "-map [out] -rf64 auto -y");
        row("loop", AudioCommands::loop(list), "-f concat -safe 0 -i /c/l.txt -c copy -rf64 auto");
        row("transcode", AudioCommands::transcode(a, 200000), "-i /c/a.wav");
        row("transcode a long file", AudioCommands::transcode(a, hours), "-i /c/a.wav -rf64 auto");
        row("normalise", AudioCommands::normalise(a),
            "-i /c/a.wav -map 0:a:0 -ac 2 -ar 44100 -acodec pcm_s16le -rf64 auto -y");
    }
    void commands()
    {
        QFETCH(QStringList, built);
        QFETCH(QString, expected);
        QStringList arguments = expected.split(QLatin1Char(' '));
        arguments.replaceInStrings(QStringLiteral("#"), QStringLiteral(" "));
        QCOMPARE(built, arguments);
    }
};

QTEST_GUILESS_MAIN(AudioCommandsTest)
#include "AudioCommandsTest.moc"
