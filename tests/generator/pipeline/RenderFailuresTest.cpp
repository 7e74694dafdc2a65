// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/CacheSweeper.h"
#include "generator/pipeline/RenderJob.h"
#include "helpers/DeadLock.h"
#include "helpers/Files.h"
#include "helpers/LogCapture.h"
#include "helpers/ProcessControl.h"
#include "helpers/RenderFixture.h"
#include "platform/TerminationWatcher.h"
#include "services/MetricSender.h"

#include <QtTest>

using namespace velmora;

namespace
{

/// Marks what is translated.
class MarkingTranslator : public QTranslator
{
public:
    static inline const QString kMark = QStringLiteral("[translated]");

    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return kMark + QString::fromUtf8(text);
    }
};

} // namespace

/// Renders that cannot succeed.
class RenderFailuresTest : public QObject
{
    Q_OBJECT

    RenderFixture m_fixture;
    QStringList m_photos;

    RenderRequest request(const QStringList &photos) const
    {
        return m_fixture.request(photos, m_fixture.output(QStringLiteral("video.mp4")));
    }

    RenderRequest request(bool parallel = false) const
    {
        RenderRequest made = request(m_photos);
        made.parallel = parallel;
        // This profile has the joined picture copied into the output, by one more run.
        made.profile = OutputProfile::PlaysEverywhere;
        return made;
    }

    /// Runs the job; once the files are checked, and before the first frame, @p disturb happens.
    template <typename Disturb> static RenderOutcome runDisturbed(RenderJob &job, Disturb disturb)
    {
        job.setPaused(true);
        connect(&job, &RenderJob::stageChanged, &job, [&](const QString &stage) {
            if (stage != QLatin1String("frames"))
                return;
            disturb();
            job.setPaused(false);
        });
        return RenderFixture::run(job);
    }

    void fakeEncoder(int call, const QString &action) const
    {
        m_fixture.fakeTool("VELMORA_FFMPEG", call, action);
    }

    /// The process whose id a fake program wrote to @p file; 0 if it did not yet.
    static qint64 pidIn(const QString &file) { return readFile(file).toLongLong(); }

private slots:
    void initTestCase()
    {
        for (int i = 0; i < 3; ++i)
            m_photos.append(m_fixture.photo(QStringLiteral("%1.jpg").arg(i), i));
        // Events are kept, since they never fill a batch.
        MetricSender::instance().configure(QUrl(QStringLiteral("http://localhost/")), QString(),
                                           100'000, true);
    }

    void init()
    {
        m_fixture.file(QStringLiteral("out/video.mp4"), "old");
        // What a killed render left goes, whatever this one ends with.
        const QString dead = m_fixture.cacheFolder() + QStringLiteral("/render-dead01/");
        QVERIFY(QDir().mkpath(dead) && writeFile(dead + CacheSweeper::kLockFile, deadLock()));
    }

    void cleanup()
    {
        qunsetenv("VELMORA_FFMPEG");
        qunsetenv("VELMORA_TRANSCODER");
        if (QTest::currentTestFunction() == QByteArray("withoutACacheNothingIsRendered"))
            QDir(m_fixture.cacheFolder()).removeRecursively(); // another folder was swept
        QCOMPARE(readFile(m_fixture.output(QStringLiteral("video.mp4"))), QByteArray("old"));
        QCOMPARE(m_fixture.leftovers(), QStringList());
    }

    // Three slides are 5 segments, 2 joins of slides, 1 join of all, 1 copy into the output.
    void encoderFails_data()
    {
        QTest::addColumn<int>("call");
        QTest::addColumn<QString>("action");
        QTest::addColumn<bool>("parallel");
        for (const bool parallel : {false, true}) {
            const char *mode = parallel ? "parallel" : "in order";
            QTest::addRow("first segment, %s", mode) << 1 << "err|no luck|exit|1" << parallel;
            QTest::addRow("killed, %s", mode) << 2 << "crash" << parallel;
            QTest::addRow("a join, %s", mode) << 4 << "err|no luck|exit|1" << parallel;
            QTest::addRow("the total join, %s", mode) << 8 << "err|no luck|exit|1" << parallel;
            QTest::addRow("the last run, %s", mode) << 9 << "err|no luck|exit|1" << parallel;
            QTest::addRow("nothing written, %s", mode) << 9 << "exit|0" << parallel;
        }
    }
    void encoderFails()
    {
        QFETCH(int, call);
        QFETCH(QString, action);
        QFETCH(bool, parallel);
        fakeEncoder(call, action);
        const auto told = [](const char *event) {
            return MetricSender::instance().pending().filter(QLatin1String(event)).size();
        };
        const int failures = told("err1:");
        const int starts = told("gres:160x90");
        const RenderOutcome outcome = m_fixture.render(request(parallel));
        QCOMPARE(told("gres:160x90"), starts + 1);
        QCOMPARE(told("err1:"), failures + 1);
        QCOMPARE(told("end:"), 0);
        QCOMPARE(outcome.kind, RenderOutcome::Failed);
        QCOMPARE(outcome.endings, 1);
        QCOMPARE(outcome.error.code, QString(RenderErrorCode::kEncoder));
        if (action.contains(QLatin1String("no luck")))
            QVERIFY2(outcome.error.text.contains(QLatin1String("no luck")),
                     qPrintable(outcome.error.text));
        else
            QVERIFY(!outcome.error.text.isEmpty());
    }

    void aFullDiskIsToldAsSuch_data()
    {
        QTest::addColumn<QByteArray>("program");
        QTest::addColumn<QString>("action");
        QTest::newRow("encoder") << QByteArray("VELMORA_FFMPEG")
                                 << "err|x: No space left on device|exit|1";
        QTest::newRow("transcoder") << QByteArray("VELMORA_TRANSCODER") << "exit|4";
    }
    void aFullDiskIsToldAsSuch()
    {
        QFETCH(QByteArray, program);
        QFETCH(QString, action);
        m_fixture.fakeTool(program.constData(), 1, action);
        RenderRequest made = request();
        made.project->setAudio({{{m_fixture.sound(QStringLiteral("music.mp3"), 2), {}}}, 0});
        const RenderOutcome outcome = m_fixture.render(std::move(made));
        QCOMPARE(outcome.error.code, QString(RenderErrorCode::kDiskFull));
        QVERIFY2(outcome.error.text.contains(m_fixture.cacheFolder()),
                 qPrintable(outcome.error.text));
    }

    void cancelEndsAHangingEncoder_data()
    {
        QTest::addColumn<int>("call");
        QTest::newRow("segment") << 2;
        QTest::newRow("output") << 9;
    }
    void cancelEndsAHangingEncoder()
    {
        QFETCH(int, call);
        const QString mark = m_fixture.path(QStringLiteral("hanging"));
        QFile::remove(mark);
        fakeEncoder(call, QStringLiteral("pid|%1|hang").arg(mark));
        RenderJob job(request(), m_fixture.settings, m_fixture.cacheFolder());
        QTimer poll;
        connect(&poll, &QTimer::timeout, &job, [&] {
            if (QFileInfo(mark).size() > 0)
                job.cancel();
        });
        poll.start(20);
        const RenderOutcome outcome = RenderFixture::run(job);
        QCOMPARE(outcome.kind, RenderOutcome::Cancelled);
        const qint64 pid = pidIn(mark);
        QVERIFY(pid > 0);
        QTRY_VERIFY(!ProcessControl::isAlive(pid));
    }

    // As when Ctrl-C in a terminal ends the encoder first.
    void anEncoderThatEndsWithTheProgramIsNoFailure()
    {
        if (QSysInfo::productType() == QLatin1String("windows")) {
            CacheSweeper::sweepAll(m_fixture.cacheFolder()); // no render does it here
            QSKIP("There, no process can be interrupted alone.");
        }
        const QString mark = m_fixture.path(QStringLiteral("interrupted"));
        fakeEncoder(2, QStringLiteral("pid|%1|hang").arg(mark));
        const auto termination = createTerminationWatcher([] {});
        QTimer poll;
        connect(&poll, &QTimer::timeout, &poll, [&] {
            const qint64 pid = pidIn(mark);
            if (pid <= 0)
                return;
            poll.stop();
            QVERIFY(ProcessControl::interrupt(QCoreApplication::applicationPid()));
            ProcessControl::kill(pid);
        });
        poll.start(20);
        QCOMPARE(m_fixture.render(request()).kind, RenderOutcome::Cancelled);
    }

    // A video of one slide is not joined, only renamed.
    void aRenameThatFailsIsTold_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("slide") << "vid_c0.mp4";
        QTest::newRow("total") << "vid_c_total.mp4";
    }
    void aRenameThatFailsIsTold()
    {
        QFETCH(QString, name);
        RenderJob job(request({m_photos.first()}), m_fixture.settings, m_fixture.cacheFolder());
        const RenderOutcome outcome = runDisturbed(job, [&] {
            const QDir cache(m_fixture.cacheFolder());
            const QString render = cache.entryList({QStringLiteral("render-*")}).value(0);
            QVERIFY(cache.mkpath(QStringLiteral("%1/video/%2/x").arg(render, name)));
        });
        QVERIFY2(outcome.error.text.endsWith(name + QStringLiteral(" cannot be written.")),
                 qPrintable(outcome.error.text));
    }

    void refusesRequestsThatMakeNoVideo()
    {
        RenderRequest none;
        QCOMPARE(m_fixture.render(std::move(none)).error.code, QString(RenderErrorCode::kRequest));
        const RenderOutcome empty = m_fixture.render(request(QStringList()));
        QCOMPARE(empty.error.code, QString(RenderErrorCode::kRequest));
        QCOMPARE(empty.error.text, QStringLiteral("The slideshow has no slides."));
        RenderRequest tiny = request();
        tiny.project->setResolution({2, 2});
        QCOMPARE(m_fixture.render(std::move(tiny)).error.code, QString(RenderErrorCode::kRequest));
    }

    void badInputRendersNothing()
    {
        const RenderOutcome outcome = m_fixture.render(
            request(m_photos + QStringList{m_fixture.path(QStringLiteral("gone.jpg"))}));
        QCOMPARE(outcome.error.code, QString(RenderErrorCode::kInput));
        QVERIFY(outcome.error.text.contains(QLatin1String("gone.jpg")));
        QCOMPARE(outcome.stages, QStringList{QStringLiteral("check")});
    }

    void aPhotoThatVanishesIsNamed()
    {
        const QString photo = m_fixture.photo(QStringLiteral("vanishing.jpg"), 5);
        RenderJob job(request(m_photos + QStringList{photo}), m_fixture.settings,
                      m_fixture.cacheFolder());
        const RenderOutcome outcome = runDisturbed(job, [&] { QFile::remove(photo); });
        QCOMPARE(outcome.error.code, QString(RenderErrorCode::kInput));
        QVERIFY(outcome.error.text.contains(photo));
    }

    void withoutACacheNothingIsRendered()
    {
        const QString file = m_fixture.file(QStringLiteral("no-folder"), "x");
        RenderJob job(request(), m_fixture.settings, file);
        const RenderOutcome outcome = RenderFixture::run(job);
        QCOMPARE(outcome.error.code, QString(RenderErrorCode::kCache));
        QVERIFY(outcome.error.text.contains(file));
        QVERIFY(MetricSender::instance().pending().filter(QStringLiteral("err5:")).size() > 0);
    }

    void theLogIsNotTranslated_data()
    {
        QTest::addColumn<QString>("action"); // of the first run
        QTest::addColumn<QString>("output");
        const QString video = QStringLiteral("video.mp4");
        QTest::newRow("encoder") << "exit|1" << video;
        QTest::newRow("disk") << "err|No space left on device" << video;
        QTest::newRow("output") << QString() << "none/video.mp4";
    }
    void theLogIsNotTranslated()
    {
        QFETCH(QString, action);
        QFETCH(QString, output);
        fakeEncoder(1, action);
        MarkingTranslator translator;
        QCoreApplication::installTranslator(&translator);
        LogCapture log;
        const RenderOutcome outcome =
            m_fixture.render(m_fixture.request({m_photos.first()}, m_fixture.output(output)));
        QCoreApplication::removeTranslator(&translator);
        QVERIFY(outcome.error.text.contains(MarkingTranslator::kMark));
        QVERIFY(!log.lines(QtWarningMsg).isEmpty());
        QCOMPARE(log.lines().filter(MarkingTranslator::kMark), QStringList());
    }

    void aMissingEncoderIsNamed()
    {
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", "/nonexistent");
        const RenderOutcome outcome = m_fixture.render(request());
        qputenv("PATH", path);
        QCOMPARE(outcome.error.code, QString(RenderErrorCode::kEncoder));
        QVERIFY(outcome.error.text.contains(QLatin1String("FFmpeg")));
    }
};

QTEST_MAIN(RenderFailuresTest)
#include "RenderFailuresTest.moc"
