// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/EncoderOptions.h"

#include <QtTest>

using namespace velmora;

class EncoderOptionsTest : public QObject
{
    Q_OBJECT
private slots:
    void bitRate_data()
    {
        QTest::addColumn<int>("height");
        QTest::addColumn<QString>("expected");
        const auto row = [](int height, const char *rate) {
            QTest::newRow(qPrintable(QString::number(height)))
                << height << QString::fromLatin1(rate);
        };
        row(2, "1M");
        row(360, "1M");
        row(361, "2.5M");
        row(480, "2.5M");
        row(481, "6.5M");
        row(720, "6.5M");
        row(721, "10M");
        row(1080, "10M");
        row(1081, "20M");
        row(1440, "20M");
        row(1441, "44M");
        row(2160, "44M");
        row(2161, "56M");
        row(16384, "56M");
        row(0, "10M");
        row(-5, "10M");
    }
    void bitRate()
    {
        QFETCH(int, height);
        QTEST(EncoderOptions::bitRate(height), "expected");
    }

    void videoOptions_data()
    {
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QString>("profile");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *extension, const char *profile, const char *options) {
            QTest::addRow("%s %s", extension, profile)
                << QString::fromLatin1(extension) << QString::fromLatin1(profile)
                << QString::fromLatin1(options);
        };
        const char *h264 = "-b:v 10M -crf 0 -acodec libmp3lame -vcodec h264 -threads 4 -cpu-used 4";
        const char *webm = "-acodec vorbis -strict -2 -vcodec vp8 -ar 44100 -b:v 10M -qmin 0 "
                           "-qmax 50 -crf 0 -speed 16 -threads 8 -deadline realtime -cpu-used 15";
        const char *wmv = "-b:v 10M -crf 0 -acodec wmav2 -vcodec wmv2 -threads 4 -cpu-used 4";
        const char *other = "-b:v 10M -crf 0";
        const char *everywhere = "-acodec aac -vcodec libx264 -preset fast -profile:v high "
                                 "-pix_fmt yuv420p -crf 20 -maxrate 10M -bufsize 20M "
                                 "-colorspace bt709 -color_primaries bt709 -color_trc bt709 "
                                 "-color_range tv";
        for (const char *extension : {"mp4", "avi", "mov", "MP4"})
            row(extension, "original", h264);
        row("webm", "original", webm);
        row("wmv", "original", wmv);
        row("mkv", "original", other);
        row("", "original", other);
        row("mp4", "everywhere", everywhere);
        row("mov", "everywhere", everywhere);
        row("avi", "everywhere", h264);
        row("webm", "everywhere", webm);
        row("wmv", "everywhere", wmv);
        row("mkv", "everywhere", other);
    }
    void videoOptions()
    {
        QFETCH(QString, extension);
        QFETCH(QString, profile);
        const QStringList options =
            EncoderOptions::videoOptions(extension, 1080, outputProfileFromKey(profile));
        QTEST(options.join(QLatin1Char(' ')), "expected");
    }

    void everywhereCeilingFollowsTheHeight()
    {
        const QString options =
            EncoderOptions::videoOptions(QStringLiteral("mp4"), 480, OutputProfile::PlaysEverywhere)
                .join(QLatin1Char(' '));
        QVERIFY2(options.contains(QStringLiteral("-maxrate 2.5M -bufsize 5M")),
                 qPrintable(options));
    }

    void evenSize_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QSize>("expected");
        QTest::newRow("even") << QSize(640, 480) << QSize(640, 480);
        QTest::newRow("odd width") << QSize(641, 480) << QSize(642, 480);
        QTest::newRow("odd height") << QSize(640, 1) << QSize(640, 2);
    }
    void evenSize()
    {
        QFETCH(QSize, size);
        QTEST(EncoderOptions::evenSize(size), "expected");
    }

    void seconds_data()
    {
        QTest::addColumn<qint64>("milliseconds");
        QTest::addColumn<QString>("expected");
        QTest::newRow("zero") << qint64(0) << QStringLiteral("0.000");
        QTest::newRow("whole") << qint64(65000) << QStringLiteral("65.000");
        QTest::newRow("padded") << qint64(1007) << QStringLiteral("1.007");
        QTest::newRow("a day of slides")
            << qint64(86400) * 1000 * 1000 << QStringLiteral("86400000.000");
    }
    void seconds()
    {
        QFETCH(qint64, milliseconds);
        QTEST(EncoderOptions::seconds(milliseconds), "expected");
    }

    void profileKeys()
    {
        for (const OutputProfile profile :
             {OutputProfile::OriginalQuality, OutputProfile::PlaysEverywhere})
            QCOMPARE(outputProfileFromKey(outputProfileKey(profile)), profile);
        QCOMPARE(outputProfileFromKey(QStringLiteral("Everywhere?")),
                 OutputProfile::OriginalQuality);
    }
};

QTEST_APPLESS_MAIN(EncoderOptionsTest)
#include "EncoderOptionsTest.moc"
