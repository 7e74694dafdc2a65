// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/EncoderProgress.h"

#include <QtTest>

using namespace velmora;

class EncoderProgressTest : public QObject
{
    Q_OBJECT
private slots:
    void seconds_data()
    {
        QTest::addColumn<QString>("output");
        QTest::addColumn<int>("expected");
        const auto row = [](const char *name, const char *output, int expected) {
            QTest::newRow(name) << QString::fromLatin1(output) << expected;
        };
        // As ffmpeg 5.1 writes it, the lines of a run after one another.
        row("running",
            "frame=   28 fps=0.0 q=-1.0 size=     256kB time=00:00:01.08 bitrate=1941.9kbits/s "
            "speed=2.13x    \rframe=   91 fps= 90 q=-1.0 size=    1024kB time=00:00:03.60 "
            "bitrate=2330.2kbits/s speed=3.56x    \r",
            3);
        row("last line",
            "frame=  150 fps=0.0 q=-1.0 Lsize=    1395kB time=01:02:05.96 bitrate=1917.0kbits/s "
            "speed=19.1x    \nvideo:1393kB audio:0kB\n",
            3725);
        row("sound", "size=     512kB time=00:00:02.97 bitrate=1411.4kbits/s speed= 594x\r", 2);
        row("not begun", "frame=    0 fps=0.0 q=0.0 size=       0kB time=N/A bitrate=N/A\r", -1);
        row("negative", "frame=    1 q=0.0 size=       0kB time=-577014:32:22.77 bitrate=N/A", -1);
        row("no such time", "time=00:61:00.00", -1);
        row("cut", "frame=   28 fps=0.0 q=-1.0 size=     256kB time=00:00:01", -1);
        row("nothing", "", -1);
    }
    void seconds()
    {
        QFETCH(QString, output);
        QTEST(EncoderProgress::seconds(output), "expected");
    }

    void logsWhatItFound()
    {
        QLoggingCategory::setFilterRules(QStringLiteral("velmora.generator.debug=true"));
        QTest::ignoreMessage(QtDebugMsg,
                             QRegularExpression(QStringLiteral("^Found timeout from ffmpeg: ")));
        EncoderProgress::seconds(QStringLiteral("time=00:00:01.00"));
        QTest::ignoreMessage(QtDebugMsg, "Failed to parse time from ffmpeg");
        EncoderProgress::seconds(QStringLiteral("time=later"));
    }
};

QTEST_APPLESS_MAIN(EncoderProgressTest)
#include "EncoderProgressTest.moc"
