// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/VideoUtil.h"
#include "generator/encoding/EncoderLocator.h"
#include "helpers/LogCapture.h"
#include "helpers/VideoProbe.h"

#include <QDir>
#include <QPainter>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <memory>

using namespace velmora;

Q_DECLARE_METATYPE(VideoUtil::Failure)

namespace
{

const QString kFakeTool = QStringLiteral(FAKE_TOOL);
const QSize kSize(160, 90);

/// A picture of soft colours that tells @p number from its neighbours.
QImage picture(int number)
{
    QImage image(kSize, QImage::Format_RGB32);
    QLinearGradient colours(0, 0, kSize.width(), kSize.height());
    colours.setColorAt(0, QColor(220, 40 + number * 3, 30));
    colours.setColorAt(1, QColor(30, 90, 120 + number * 2));
    QPainter painter(&image);
    painter.fillRect(image.rect(), colours);
    return image;
}

QByteArray fileContent(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

} // namespace

class VideoUtilTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        m_encoder = locateEncoder().program;
        m_probe = QStandardPaths::findExecutable(QStringLiteral("ffprobe"));
        if (m_encoder.isEmpty() || m_probe.isEmpty())
            QSKIP("needs FFmpeg");
    }

    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>(
            QDir::tempPath() + QStringLiteral("/it's a 50%1 [t]est ü 漢 XXXXXX"));
        QVERIFY(m_folder->isValid());
        for (const char *sub : {"images", "video"})
            QVERIFY(QDir(m_folder->path()).mkdir(QLatin1String(sub)));
        m_context = std::make_unique<EncodingContext>();
        m_context->size = kSize;
        m_context->extension = QStringLiteral("mkv");
        m_context->cachePath = m_folder->path();
        m_context->encoder = m_encoder;
    }

    void everyContainer_data()
    {
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QString>("profile");
        for (const char *extension : {"mp4", "avi", "mov", "wmv", "webm", "mkv"})
            QTest::addRow("%s original", extension)
                << QString::fromLatin1(extension) << QStringLiteral("original");
        for (const char *extension : {"mp4", "mov"})
            QTest::addRow("%s everywhere", extension)
                << QString::fromLatin1(extension) << QStringLiteral("everywhere");
    }
    /// The whole way of one video: segments, joins of joins, sound. Nothing may be lost on it.
    void everyContainer()
    {
        QFETCH(QString, extension);
        QFETCH(QString, profile);
        m_context->extension = extension;
        m_context->profile = outputProfileFromKey(profile);
        VideoUtil util(*m_context);
        makeFrames(util, QStringLiteral("_p1"), 50);
        makeFrames(util, QStringLiteral("_t1"), 25);
        makeFrames(util, QStringLiteral("_i1"), 1);
        const QString p = encode(util, QStringLiteral("_p1"), 50, 2000);
        const QString t = encode(util, QStringLiteral("_t1"), 25, 1000, Motion::None);
        const QString still = encode(util, QStringLiteral("_i1"), 1, 1000);
        QCOMPARE(streamHeader(still), streamHeader(p));
        QCOMPARE(streamHeader(t), streamHeader(p));
        const QString slide = joinOf(util, {p, t, still}, "c1");
        const QString total = joinOf(util, {still, slide, slide, t, slide}, "total");
        checkPicture(total);
        checkMultiplex(util, total, QStringLiteral("sine=d=4:r=22050"));
        checkMultiplex(util, total,
                       QStringLiteral("sine=d=40:r=48000,aformat=channel_layouts=5.1"));
        const QString silent = video("silent");
        QVERIFY2(util.finishWithoutSound(total, silent), qPrintable(util.errorText()));
        checkPicture(silent);
        if (profile == QLatin1String("everywhere"))
            checkPlaysEverywhere(silent);
    }

    void segmentLengths_data()
    {
        QTest::addColumn<int>("frames");
        QTest::addColumn<qint64>("duration");
        QTest::addColumn<int>("expected");
        QTest::newRow("one second still") << 1 << qint64(1000) << 25;
        QTest::newRow("still between frames") << 1 << qint64(1010) << 25;
        QTest::newRow("long still") << 1 << qint64(11000) << 275;
        QTest::newRow("one frame") << 1 << qint64(40) << 1;
        QTest::newRow("slowed") << 37 << qint64(2000) << 50;
        QTest::newRow("slowed by a third") << 50 << qint64(3000) << 75;
        QTest::newRow("hurried") << 50 << qint64(1000) << 25;
    }
    void segmentLengths()
    {
        QFETCH(int, frames);
        QFETCH(qint64, duration);
        for (const char *extension : {"mp4", "webm"}) {
            m_context->extension = QLatin1String(extension);
            VideoUtil util(*m_context);
            makeFrames(util, QStringLiteral("_t7"), frames);
            const QString file = encode(util, QStringLiteral("_t7"), frames, duration);
            QTEST(VideoProbe::frames(file, kSize).size(), "expected");
        }
    }

    void progressTextIsShared()
    {
        VideoUtil util(*m_context);
        makeFrames(util, QStringLiteral("_i1"), 1);
        encode(util, QStringLiteral("_i1"), 1, 3000);
        QVERIFY2(m_context->encoderOutput.contains(
                     QRegularExpression(QStringLiteral("time=00:00:0\\d\\.\\d\\d"))),
                 qPrintable(m_context->encoderOutput));
    }

    void removesFrames()
    {
        VideoUtil util(*m_context);
        makeFrames(util, QStringLiteral("_p1"), 3);
        makeFrames(util, QStringLiteral("_p11"), 1);
        util.removeFrames(QStringLiteral("_p1"), 3);
        QCOMPARE(QDir(m_folder->filePath(QStringLiteral("images"))).entryList(QDir::Files),
                 QStringList(QStringLiteral("img_p11_00001.jpg")));
    }

    void missingFramesAreAFailure()
    {
        VideoUtil util(*m_context);
        QVERIFY(!util.encodeSegment(QStringLiteral("_p9"), 50, 2000, video("p9")));
        QVERIFY2(util.errorText().contains(QStringLiteral("img_p9_")),
                 qPrintable(util.errorText()));
        QVERIFY(!util.encodeSegment(QStringLiteral("_p9"), 0, 2000, video("p9")));
        QVERIFY(!util.encodeSegment(QStringLiteral("_p9"), 50, 0, video("p9")));
    }

    void missingSegmentFailsTheJoin()
    {
        VideoUtil util(*m_context);
        makeFrames(util, QStringLiteral("_i1"), 1);
        const QString segment = encode(util, QStringLiteral("_i1"), 1, 1000);
        QVERIFY(!util.join({segment, video("missing")}, m_folder->filePath(QStringLiteral("l.txt")),
                           video("c")));
        QVERIFY(!QFileInfo::exists(video("c")));
    }

    void failedJoinTellsWhy()
    {
        VideoUtil util(*m_context);
        makeFrames(util, QStringLiteral("_i1"), 1);
        const QString segment = encode(util, QStringLiteral("_i1"), 1, 1000);
        const LogCapture log;
        QVERIFY(!util.join({segment, segment}, m_folder->filePath(QStringLiteral("l.txt")),
                           m_folder->filePath(QStringLiteral("none/c.mkv"))));
        QVERIFY2(util.errorText().contains(QStringLiteral("No such file or directory")),
                 qPrintable(util.errorText()));
        QVERIFY(log.lines().filter(QStringLiteral("not on whitelist")).isEmpty());
    }

    void failureKeepsTheOlderFile_data()
    {
        QTest::addColumn<QStringList>("behaviour");
        QTest::addColumn<VideoUtil::Failure>("failure");
        QTest::addColumn<QString>("error");
        const auto full = VideoUtil::Failure::DiskFull;
        const auto other = VideoUtil::Failure::Other;
        const QString part = QStringLiteral("PART");
        QTest::newRow("fails") << QStringList{QStringLiteral("touch"),
                                              part,
                                              QStringLiteral("err"),
                                              QStringLiteral("no such codec"),
                                              QStringLiteral("exit"),
                                              QStringLiteral("1")}
                               << other << QStringLiteral("The encoder failed: no such codec");
        QTest::newRow("crashes") << QStringList{QStringLiteral("touch"), part,
                                                QStringLiteral("crash")}
                                 << other
                                 << QStringLiteral("The encoder failed: It ended unexpectedly.");
        QTest::newRow("disk full")
            << QStringList{QStringLiteral("err"),
                           QStringLiteral("av_interleaved_write_frame(): No space left on device"),
                           QStringLiteral("exit"), QStringLiteral("1")}
            << full << QStringLiteral("The disk is full.");
        // The encoder's way with some containers.
        QTest::newRow("disk full without a failure")
            << QStringList{QStringLiteral("touch"), part, QStringLiteral("err"),
                           QStringLiteral("Error closing file x: No space left on device")}
            << full << QStringLiteral("The disk is full.");
        QTest::newRow("writes nothing") << QStringList{QStringLiteral("touch"), part} << other
                                        << QStringLiteral("The encoder wrote nothing to ");
    }
    void failureKeepsTheOlderFile()
    {
        QFETCH(QStringList, behaviour);
        QFETCH(QString, error);
        m_context->encoder = kFakeTool;
        const QString output = video("out");
        const QString part = m_folder->filePath(QStringLiteral("video/out.part.mkv"));
        behaviour.replaceInStrings(QStringLiteral("PART"), part);
        writeFile(output, "older");
        VideoUtil util(*m_context);
        QVERIFY(!util.executeUtility(behaviour, output, true));
        QTEST(util.failure(), "failure");
        QVERIFY2(util.errorText().startsWith(error), qPrintable(util.errorText()));
        QCOMPARE(fileContent(output), QByteArray("older"));
        QVERIFY(!QFileInfo::exists(part));
    }

    void cancelStopsTheEncoder()
    {
        VideoUtil util(*m_context);
        makeFrames(util, QStringLiteral("_i1"), 1);
        m_context->cancelled = true;
        QVERIFY(!util.encodeSegment(QStringLiteral("_i1"), 1, 80000000, video("i1")));
        QCOMPARE(util.failure(), VideoUtil::Failure::Cancelled);
        QVERIFY(QDir(m_folder->filePath(QStringLiteral("video"))).isEmpty());
    }

    void missingEncoderIsAFailure()
    {
        m_context->encoder = QStringLiteral("/nowhere/ffmpeg");
        QTest::ignoreMessage(QtCriticalMsg, "Failed to start ffmpeg proc");
        VideoUtil util(*m_context);
        QVERIFY(!util.executeUtility({}, video("out"), true));
        QVERIFY(!util.errorText().isEmpty());
    }

    void unsavedFrameIsLogged()
    {
        m_context->cachePath = m_folder->filePath(QStringLiteral("gone"));
        VideoUtil util(*m_context);
        QTest::ignoreMessage(QtCriticalMsg,
                             QRegularExpression(QStringLiteral("^CAN NOT SAVE IMG TO: .*gone")));
        QVERIFY(!util.saveFrame(picture(1), QStringLiteral("_i1"), 1));
        QVERIFY(!util.errorText().isEmpty());
    }

private:
    QString video(const char *name) const
    {
        return m_folder->filePath(
            QStringLiteral("video/%1.%2").arg(QLatin1String(name), m_context->extension));
    }

    static void makeFrames(VideoUtil &util, const QString &prefix, int count)
    {
        for (int number = 1; number <= count; ++number)
            QVERIFY2(util.saveFrame(picture(number % 25), prefix, number),
                     qPrintable(util.errorText()));
    }

    QString encode(VideoUtil &util, const QString &prefix, int frames, qint64 duration,
                   Motion motion = Motion::Any) const
    {
        const QString output = video(("vid" + prefix.toLatin1()).constData());
        if (!util.encodeSegment(prefix, frames, duration, output, motion))
            QTest::qFail(qPrintable(util.errorText()), __FILE__, __LINE__);
        return output;
    }

    QString joinOf(VideoUtil &util, const QStringList &files, const char *name) const
    {
        const QString list = m_folder->filePath(QStringLiteral("merge-files.txt"));
        if (!util.join(files, list, video(name)))
            QTest::qFail(qPrintable(util.errorText()), __FILE__, __LINE__);
        return video(name);
    }

    QString probe(const QString &file, const QStringList &arguments) const
    {
        QStringList all{QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-of"),
                        QStringLiteral("csv=p=0")};
        all << arguments << file;
        return QString::fromUtf8(ToolRunner().run(m_probe, all).standardOutput).trimmed();
    }

    /// Packet times of a stream ("v" or "a") in s, in order of decoding.
    QVector<double> packetTimes(const QString &file, const QString &stream) const
    {
        QVector<double> times;
        const QStringList lines =
            probe(file, {QStringLiteral("-select_streams"), stream, QStringLiteral("-show_entries"),
                         QStringLiteral("packet=pts_time,dts_time")})
                .split(QLatin1Char('\n'));
        for (const QString &line : lines) {
            bool valid = false;
            const double pts = line.section(QLatin1Char(','), 0, 0).toDouble(&valid);
            times.append(valid ? pts : line.section(QLatin1Char(','), 1, 1).toDouble());
        }
        return times;
    }

    void checkPicture(const QString &file) const
    {
        constexpr int kFrames = 25 + 100 + 100 + 25 + 100;
        const QVector<QImage> frames = VideoProbe::frames(file, kSize);
        QCOMPARE(VideoProbe::decodingErrors(file), QString());
        QCOMPARE(frames.size(), kFrames);
        QVector<double> times = packetTimes(file, QStringLiteral("v"));
        std::sort(times.begin(), times.end());
        for (int i = 1; i < times.size(); ++i) {
            const double gap = times[i] - times[i - 1];
            QVERIFY2(std::abs(gap - 0.04) < 0.0015,
                     qPrintable(QStringLiteral("%1 s at frame %2").arg(gap).arg(i)));
        }
        // The still comes first, then slides of transition, caption and still.
        QVERIFY(VideoProbe::meanDifference(frames[10], picture(1)) < 3.0);
        QVERIFY(VideoProbe::meanDifference(frames[25 + 19], picture(20)) < 3.0);
        QVERIFY(VideoProbe::meanDifference(frames[225 + 14], picture(15)) < 3.0);
        QVERIFY(VideoProbe::meanDifference(frames[kFrames - 1], picture(1)) < 3.0);
    }

    /// What a joined video keeps of its first segment only.
    QString streamHeader(const QString &file) const
    {
        return probe(file, {QStringLiteral("-show_data_hash"), QStringLiteral("md5"),
                            QStringLiteral("-show_entries"),
                            QStringLiteral("stream=codec_name,extradata_hash")});
    }

    void checkMultiplex(VideoUtil &util, const QString &total, const QString &source) const
    {
        const QString sound = m_folder->filePath(QStringLiteral("sound.wav"));
        QVERIFY(ToolRunner()
                    .run(m_encoder, {QStringLiteral("-v"), QStringLiteral("error"),
                                     QStringLiteral("-y"), QStringLiteral("-f"),
                                     QStringLiteral("lavfi"), QStringLiteral("-i"), source, sound})
                    .ok());
        const QString output = video("out");
        QVERIFY2(util.multiplex(total, sound, 14000, output), qPrintable(util.errorText()));
        checkPicture(output);
        const QVector<double> picture = packetTimes(output, QStringLiteral("v"));
        const QVector<double> sounds = packetTimes(output, QStringLiteral("a"));
        const double pictureEnd = *std::max_element(picture.begin(), picture.end()) + 0.04;
        QVERIFY2(std::abs(pictureEnd - sounds.last()) < 0.15,
                 qPrintable(QStringLiteral("%1 %2").arg(pictureEnd).arg(sounds.last())));
        QVERIFY(sounds.first() < 0.1);
    }

    void checkPlaysEverywhere(const QString &file) const
    {
        const QString facts =
            probe(file, {QStringLiteral("-show_entries"),
                         QStringLiteral("stream=codec_name,profile,pix_fmt,color_range,"
                                        "color_space,color_transfer,color_primaries")});
        QCOMPARE(facts, QStringLiteral("h264,High,yuv420p,tv,bt709,bt709,bt709"));
        const QByteArray content = fileContent(file);
        QVERIFY(content.indexOf("moov") < content.indexOf("mdat"));
    }

    QString m_encoder;
    QString m_probe;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<EncodingContext> m_context;
};

QTEST_GUILESS_MAIN(VideoUtilTest)
#include "VideoUtilTest.moc"
