// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/CacheSweeper.h"
#include "generator/pipeline/RenderJob.h"
#include "helpers/DeadLock.h"
#include "helpers/ProcessControl.h"
#include "helpers/RenderFixture.h"
#include "services/MetricSender.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QtTest>

using namespace velmora;

/// Renders that cannot succeed.
class RenderFailuresTest : public QObject
{
    Q_OBJECT

    RenderFixture m_fixture;
    QStringList m_photos;

    RenderRequest request(bool parallel = false) const
    {
        RenderRequest made =
            m_fixture.request(m_photos, m_fixture.output(QStringLiteral("video.mp4")));
        made.parallel = parallel;
        // This profile has the joined picture copied into the output, by one more run.
        made.profile = OutputProfile::PlaysEverywhere;
        return made;
    }

    /// In place of FFmpeg, a program that does @p action in its run number @p call; see
    /// tests/fakes/fakeencoder.cpp.
    void fakeEncoder(int call, const QString &action) const
    {
        const QString ffmpeg = QStandardPaths::findExecutable(QStringLiteral("ffmpeg"));
        QVERIFY(!ffmpeg.isEmpty());
        const QString counter = m_fixture.path(QStringLiteral("calls"));
        QFile::remove(counter);
        const QStringList orders{ffmpeg, counter, QString::number(call), action};
        const QString file =
            m_fixture.file(QStringLiteral("orders"), orders.join(QLatin1Char('\n')).toUtf8());
        qputenv("VELMORA_FAKE_ENCODER", QFile::encodeName(file));
        const QString program = QStandardPaths::findExecutable(
            QStringLiteral("fakeencoder"), {QCoreApplication::applicationDirPath()});
        qputenv("VELMORA_FFMPEG", QFile::encodeName(program));
    }

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
        QFile old(m_fixture.output(QStringLiteral("video.mp4")));
        QVERIFY(old.open(QIODevice::WriteOnly));
        old.write("old");
        // What a killed render left goes, whatever this one ends with.
        const QString dead = m_fixture.cacheFolder() + QStringLiteral("/render-dead01");
        QVERIFY(QDir().mkpath(dead));
        QFile lock(dead + QLatin1Char('/') + CacheSweeper::kLockFile);
        QVERIFY(lock.open(QIODevice::WriteOnly));
        lock.write(deadLock());
    }

    void cleanup()
    {
        qunsetenv("VELMORA_FFMPEG");
        if (QTest::currentTestFunction() == QByteArray("withoutACacheNothingIsRendered"))
            QDir(m_fixture.cacheFolder()).removeRecursively(); // another folder was swept
        QFile old(m_fixture.output(QStringLiteral("video.mp4")));
        QVERIFY(old.open(QIODevice::ReadOnly));
        QCOMPARE(old.readAll(), QByteArray("old"));
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
        const RenderOutcome outcome = m_fixture.render(request(parallel));
        QCOMPARE(outcome.kind, RenderOutcome::Failed);
        QCOMPARE(outcome.endings, 1);
        QCOMPARE(outcome.error.code, QString(RenderErrorCode::kEncoder));
        if (action.contains(QLatin1String("no luck")))
            QVERIFY2(outcome.error.text.contains(QLatin1String("no luck")),
                     qPrintable(outcome.error.text));
        else
            QVERIFY(!outcome.error.text.isEmpty());
    }

    void aFullDiskIsToldAsSuch()
    {
        fakeEncoder(2, QStringLiteral("err|x: No space left on device|exit|1"));
        const RenderOutcome outcome = m_fixture.render(request());
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
        QFile file(mark);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const qint64 pid = file.readAll().toLongLong();
        QVERIFY(pid > 0);
        QTRY_VERIFY(!ProcessControl::isAlive(pid));
    }

    void failuresAreCounted_data()
    {
        QTest::addColumn<int>("call");
        QTest::newRow("a segment") << 2;
        QTest::newRow("the total join") << 8;
    }

    void failuresAreCounted()
    {
        QFETCH(int, call);
        const auto told = [](const char *event) {
            return MetricSender::instance().pending().filter(QLatin1String(event)).size();
        };
        const int failures = told("err1:");
        const int starts = told("gres:160x90");
        fakeEncoder(call, QStringLiteral("exit|1"));
        m_fixture.render(request());
        QCOMPARE(told("gres:160x90"), starts + 1);
        QCOMPARE(told("err1:"), failures + 1);
        QCOMPARE(told("end:"), 0);
    }

    void refusesRequestsThatMakeNoVideo()
    {
        RenderRequest none;
        QCOMPARE(m_fixture.render(std::move(none)).error.code, QString(RenderErrorCode::kRequest));
        const RenderOutcome empty =
            m_fixture.render(m_fixture.request({}, m_fixture.output(QStringLiteral("video.mp4"))));
        QCOMPARE(empty.error.code, QString(RenderErrorCode::kRequest));
        QCOMPARE(empty.error.text, QStringLiteral("The slideshow has no slides."));
        RenderRequest tiny = request();
        tiny.project->setResolution({2, 2});
        QCOMPARE(m_fixture.render(std::move(tiny)).error.code, QString(RenderErrorCode::kRequest));
    }

    void badInputRendersNothing()
    {
        RenderRequest bad =
            m_fixture.request(m_photos + QStringList{m_fixture.path(QStringLiteral("gone.jpg"))},
                              m_fixture.output(QStringLiteral("video.mp4")));
        const RenderOutcome outcome = m_fixture.render(std::move(bad));
        QCOMPARE(outcome.error.code, QString(RenderErrorCode::kInput));
        QVERIFY(outcome.error.text.contains(QLatin1String("gone.jpg")));
        QCOMPARE(outcome.stages, QStringList{QStringLiteral("check")});
    }

    void aPhotoThatVanishesIsNamed()
    {
        const QString photo = m_fixture.photo(QStringLiteral("vanishing.jpg"), 5);
        RenderJob job(m_fixture.request(m_photos + QStringList{photo},
                                        m_fixture.output(QStringLiteral("video.mp4"))),
                      m_fixture.settings, m_fixture.cacheFolder());
        job.setPaused(true);
        connect(&job, &RenderJob::stageChanged, &job, [&](const QString &stage) {
            if (stage != QLatin1String("frames"))
                return;
            QFile::remove(photo);
            job.setPaused(false);
        });
        const RenderOutcome outcome = RenderFixture::run(job);
        QCOMPARE(outcome.error.code, QString(RenderErrorCode::kInput));
        QVERIFY(outcome.error.text.contains(photo));
    }

    void twoRendersOfTheSameVideo()
    {
        RenderJob first(request(), m_fixture.settings, m_fixture.cacheFolder());
        first.setPaused(true);
        RenderOutcome second;
        connect(&first, &RenderJob::stageChanged, &first, [&](const QString &stage) {
            if (stage != QLatin1String("frames"))
                return;
            second = m_fixture.render(request());
            first.cancel();
        });
        QCOMPARE(RenderFixture::run(first).kind, RenderOutcome::Cancelled);
        QCOMPARE(second.error.code, QString(RenderErrorCode::kBusy));
        QVERIFY(second.error.text.contains(QLatin1String("video.mp4")));
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
