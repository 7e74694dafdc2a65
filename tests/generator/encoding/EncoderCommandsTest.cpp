// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/EncoderCommands.h"

#include <QtTest>

using namespace velmora;

namespace
{

const OutputFormat kMkv{{1280, 720}, QStringLiteral("mkv"), OutputProfile::OriginalQuality};
const QString kImages = QStringLiteral("/c/images/");

QString joined(const QStringList &arguments)
{
    return arguments.join(QLatin1Char(' '));
}

} // namespace

class EncoderCommandsTest : public QObject
{
    Q_OBJECT
private slots:
    void segment_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<int>("frames");
        QTest::addColumn<qint64>("duration");
        QTest::addColumn<QString>("expected");
        const QString tail = QStringLiteral(" -b:v 6.5M -crf 0 -y -s 1280x720");
        QTest::newRow("still")
            << kImages << QStringLiteral("_i12") << 1 << qint64(3000)
            << QStringLiteral("-threads 1 -loop 1 -framerate 1 -i /c/images/img_i12_00001.jpg "
                              "-t 3.000 -r 25 -vf fps=25 -frames:v 75") +
                   tail;
        QTest::newRow("sequence")
            << kImages << QStringLiteral("_p3") << 50 << qint64(2000)
            << QStringLiteral("-threads 1 -r 25.000 -start_number 1 -i "
                              "/c/images/img_p3_%05d.jpg -r 25 -vf fps=25 -frames:v 50") +
                   tail;
        QTest::newRow("fewer frames than the output has")
            << kImages << QStringLiteral("_t3") << 50 << qint64(3000)
            << QStringLiteral(
                   "-threads 1 -r 16.667 -start_number 1 -i /c/images/img_t3_%05d.jpg -r 25 "
                   "-vf fps=25 -frames:v 75") +
                   tail;
        QTest::newRow("still below a percent sign")
            << QStringLiteral("/50%d/") << QStringLiteral("_i1") << 1 << qint64(1000)
            << QStringLiteral(
                   "-threads 1 -loop 1 -framerate 1 -pattern_type none -i /50%d/img_i1_00001.jpg "
                   "-t 1.000 -r 25 -vf fps=25 -frames:v 25") +
                   tail;
        QTest::newRow("percent sign in the folder")
            << QStringLiteral("/50%d/") << QStringLiteral("_p1") << 25 << qint64(1000)
            << QStringLiteral(
                   "-threads 1 -r 25.000 -start_number 1 -i /50%%d/img_p1_%05d.jpg -r 25 "
                   "-vf fps=25 -frames:v 25") +
                   tail;
    }
    void segment()
    {
        QFETCH(QString, folder);
        QFETCH(QString, prefix);
        QFETCH(int, frames);
        QFETCH(qint64, duration);
        QTEST(joined(EncoderCommands::segment(folder, prefix, frames, duration, kMkv)), "expected");
    }

    /// What moves is searched for, whatever the profile; what does not only where the table allows.
    void searchesForMotionWhereThereIsSome()
    {
        const auto searches = [](int frames, Motion motion, OutputProfile profile) {
            return !EncoderCommands::segment(kImages, QStringLiteral("_p1"), frames, 1000,
                                             {QSize(640, 360), QStringLiteral("mp4"), profile},
                                             motion)
                        .contains(QStringLiteral("-subq"));
        };
        QVERIFY(searches(25, Motion::Any, OutputProfile::PlaysEverywhere));
        QVERIFY(!searches(25, Motion::None, OutputProfile::PlaysEverywhere));
        QVERIFY(!searches(1, Motion::Any, OutputProfile::PlaysEverywhere));
        QVERIFY(searches(1, Motion::None, OutputProfile::OriginalQuality));
    }

    void frameFileIsNumberedWithFiveDigits()
    {
        QCOMPARE(EncoderCommands::frameFile(kImages, QStringLiteral("_p3"), 1),
                 QStringLiteral("/c/images/img_p3_00001.jpg"));
        // "%1" in a folder name is no place marker.
        QCOMPARE(EncoderCommands::frameFile(QStringLiteral("/%1/"), QStringLiteral("_p3"), 12345),
                 QStringLiteral("/%1/img_p3_12345.jpg"));
    }

    void joinCopiesStreams()
    {
        QCOMPARE(joined(EncoderCommands::join(QStringLiteral("/c/merge-files.txt"))),
                 QStringLiteral("-f concat -safe 0 -i /c/merge-files.txt -c copy -y"));
    }

    void denialsAreTakenOut_data()
    {
        QTest::addColumn<QByteArray>("errors");
        QTest::addColumn<QByteArray>("rest");
        const auto row = [](const char *name, const char *errors, const char *rest) {
            QTest::newRow(name) << QByteArray(errors) << QByteArray(rest);
        };
        // As ffmpeg 5.1 writes them.
        row("repeated",
            "[h264 @ 0x55e7] Codec (h264) not on whitelist 'none'\n"
            "    Last message repeated 1 times\n"
            "/c/total.mp4: No space left on device\n",
            "/c/total.mp4: No space left on device\n");
        row("between progress",
            "frame=    1 fps=0.0\r[vp8 @ 0x5] Codec (vp8) not on whitelist 'none'\nframe=   75\n",
            "frame=    1 fps=0.0\rframe=   75\n");
        row("something else repeated", "[mov @ 0x5] damaged\n    Last message repeated 3 times\n",
            "[mov @ 0x5] damaged\n    Last message repeated 3 times\n");
    }
    void denialsAreTakenOut()
    {
        QFETCH(QByteArray, errors);
        QTEST(EncoderCommands::withoutDenials(errors), "rest");
    }

    void multiplexCopiesThePicture()
    {
        const QString line = joined(EncoderCommands::multiplex(
            QStringLiteral("/v.mkv"), QStringLiteral("/a.wav"), 65250, kMkv));
        QCOMPARE(line, QStringLiteral("-codec_whitelist none -i /v.mkv -i /a.wav -y "
                                      "-map_metadata -1 -filter_complex [1:0]apad -map 0:v:0 "
                                      "-vcodec copy -ac 2 -ar 44100 "
                                      "-shortest -t 65.250"));
    }

    void fastStartOfTheFinalFileOnly()
    {
        const OutputFormat format{
            {640, 360}, QStringLiteral("mp4"), OutputProfile::PlaysEverywhere};
        const QString flag = QStringLiteral("+faststart");
        QVERIFY(EncoderCommands::pictureOnly(QStringLiteral("/v.mp4"), format).contains(flag));
        QVERIFY(EncoderCommands::multiplex(QStringLiteral("/v.mp4"), QStringLiteral("/a.wav"), 1000,
                                           format)
                    .contains(flag));
        QVERIFY(!EncoderCommands::segment(kImages, QStringLiteral("_i1"), 1, 1000, format)
                     .contains(flag));
    }
};

QTEST_APPLESS_MAIN(EncoderCommandsTest)
#include "EncoderCommandsTest.moc"
