// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/RenderJob.h"
#include "helpers/Files.h"
#include "helpers/RenderFixture.h"
#include "helpers/VideoProbe.h"

#include <QtTest>

using namespace velmora;

/// Pause and cancel.
class RenderControlTest : public QObject
{
    Q_OBJECT

    RenderFixture m_fixture;
    QStringList m_photos;

    RenderRequest request(bool parallel) const
    {
        RenderRequest made =
            m_fixture.request(m_photos, m_fixture.output(QStringLiteral("video.mp4")));
        made.parallel = parallel;
        return made;
    }

    static void addModes()
    {
        QTest::addColumn<bool>("parallel");
        QTest::newRow("in order") << false;
        QTest::newRow("parallel") << true;
    }

    QByteArray oldVideo() const { return readFile(m_fixture.output(QStringLiteral("video.mp4"))); }

private slots:
    void initTestCase()
    {
        for (int i = 0; i < 4; ++i)
            m_photos.append(m_fixture.photo(QStringLiteral("%1.jpg").arg(i), i));
    }

    void init() { m_fixture.file(QStringLiteral("out/video.mp4"), "old"); }

    void pausedRendersGoOn_data() { addModes(); }
    void pausedRendersGoOn()
    {
        QFETCH(bool, parallel);
        RenderJob job(request(parallel), m_fixture.settings, m_fixture.cacheFolder());
        job.setPaused(true);
        bool paintedWhilePaused = true;
        connect(&job, &RenderJob::stageChanged, this, [&](const QString &stage) {
            if (stage != QLatin1String("frames"))
                return;
            QTimer::singleShot(250, &job, [&] {
                paintedWhilePaused = hasFrames();
                job.setPaused(false);
            });
        });
        const RenderOutcome outcome = RenderFixture::run(job);
        QVERIFY(!paintedWhilePaused);
        QVERIFY2(outcome.kind == RenderOutcome::Finished, qPrintable(outcome.error.text));
        QCOMPARE(VideoProbe::frameCount(outcome.fileName), 25 * 7);
    }

    void cancels_data()
    {
        QTest::addColumn<bool>("parallel");
        QTest::addColumn<QString>("stage");
        for (const bool parallel : {false, true}) {
            for (const char *stage :
                 {"check", "frames", "segments", "join", "multiplex", "while paused"})
                QTest::addRow("%s %s", stage, parallel ? "parallel" : "in order")
                    << parallel << stage;
        }
    }
    void cancels()
    {
        QFETCH(bool, parallel);
        QFETCH(QString, stage);
        RenderJob job(request(parallel), m_fixture.settings, m_fixture.cacheFolder());
        const bool paused = stage == QLatin1String("while paused");
        job.setPaused(paused);
        connect(&job, &RenderJob::stageChanged, &job, [&](const QString &reached) {
            if (reached == stage)
                job.cancel();
            else if (paused && reached == QLatin1String("frames"))
                QTimer::singleShot(150, &job, &RenderJob::cancel);
        });
        const RenderOutcome outcome = RenderFixture::run(job);
        QCOMPARE(outcome.endings, 1);
        if (outcome.kind == RenderOutcome::Finished && stage == QLatin1String("multiplex"))
            return; // tiny videos may be done before the cancel arrives
        QCOMPARE(outcome.kind, RenderOutcome::Cancelled);
        QCOMPARE(oldVideo(), QByteArray("old"));
        QCOMPARE(m_fixture.leftovers(), QStringList());
    }

    void cancelBeforeTheStartEndsIt()
    {
        RenderJob job(request(false), m_fixture.settings, m_fixture.cacheFolder());
        QTimer::singleShot(0, &job, &RenderJob::cancel);
        const RenderOutcome outcome = RenderFixture::run(job);
        QCOMPARE(outcome.kind, RenderOutcome::Cancelled);
        QCOMPARE(outcome.endings, 1);
    }

    void deletingARunningJobLeavesNothing()
    {
        {
            RenderJob job(request(true), m_fixture.settings, m_fixture.cacheFolder());
            QEventLoop loop;
            connect(&job, &RenderJob::stageChanged, &loop, [&](const QString &stage) {
                if (stage == QLatin1String("segments"))
                    loop.quit();
            });
            connect(&job, &RenderJob::failed, &loop, &QEventLoop::quit);
            job.start();
            loop.exec();
        }
        QCOMPARE(m_fixture.leftovers(), QStringList());
        QCOMPARE(oldVideo(), QByteArray("old"));
    }

private:
    bool hasFrames() const
    {
        return QDirIterator(m_fixture.cacheFolder(), {QStringLiteral("*.jpg")}, QDir::Files,
                            QDirIterator::Subdirectories)
            .hasNext();
    }
};

QTEST_MAIN(RenderControlTest)
#include "RenderControlTest.moc"
