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
        const auto rows = [](std::initializer_list<int> heights, const char *rate) {
            for (const int height : heights)
                QTest::newRow(qPrintable(QString::number(height))) << height << rate;
        };
        rows({2, 360}, "1M");
        rows({361, 480}, "2.5M");
        rows({481, 720}, "6.5M");
        rows({721, 1080, 0, -5}, "10M");
        rows({1081, 1440}, "20M");
        rows({1441, 2160}, "44M");
        rows({2161, 16384}, "56M");
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
        QTest::addColumn<int>("height");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *extension, const char *profile, const QString &options,
                            int height = 1080) {
            QTest::addRow("%s %s %d", extension, profile, height)
                << extension << QString::fromLatin1(profile) << height << options;
        };
        const QString h264 = QStringLiteral(
            "-b:v 10M -crf 0 -acodec libmp3lame -vcodec h264 -threads 4 -cpu-used 4");
        const QString webm =
            QStringLiteral("-acodec vorbis -strict -2 -vcodec vp8 -ar 44100 -b:v 10M -qmin 0 "
                           "-qmax 50 -crf 0 -speed 16 -threads 8 -deadline realtime -cpu-used 15");
        const QString wmv =
            QStringLiteral("-b:v 10M -crf 0 -acodec wmav2 -vcodec wmv2 -threads 4 -cpu-used 4");
        const QString other = QStringLiteral("-b:v 10M -crf 0");
        const QString everywhere =
            QStringLiteral("-acodec aac -vcodec libx264 -preset fast -profile:v high "
                           "-pix_fmt yuv420p -crf 20 -maxrate 10M -bufsize 20M "
                           "-colorspace bt709 -color_primaries bt709 -color_trc bt709 "
                           "-color_range tv");
        for (const char *extension : {"mp4", "avi", "mov", "MP4"})
            row(extension, "original", h264);
        row("webm", "original", webm);
        row("wmv", "original", wmv);
        row("mkv", "original", other);
        row("", "original", other);
        row("mp4", "everywhere", everywhere);
        row("mov", "everywhere",
            QString(everywhere)
                .replace(QLatin1String("20M"), QLatin1String("5M"))
                .replace(QLatin1String("10M"), QLatin1String("2.5M")),
            480);
        row("avi", "everywhere", h264);
        row("webm", "everywhere", webm);
        row("wmv", "everywhere", wmv);
        row("mkv", "everywhere", other);
    }
    void videoOptions()
    {
        QFETCH(QString, extension);
        QFETCH(QString, profile);
        QFETCH(int, height);
        const QStringList options =
            EncoderOptions::videoOptions(extension, height, outputProfileFromKey(profile));
        QTEST(options.join(QLatin1Char(' ')), "expected");
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
        QTest::newRow("zero") << qint64(0) << "0.000";
        QTest::newRow("whole") << qint64(65000) << "65.000";
        QTest::newRow("padded") << qint64(1007) << "1.007";
        QTest::newRow("a day of slides") << qint64(86400) * 1000 * 1000 << "86400000.000";
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
