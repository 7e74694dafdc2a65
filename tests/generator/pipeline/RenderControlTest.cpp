// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/RenderJob.h"
#include "helpers/RenderFixture.h"
#include "helpers/VideoProbe.h"

#include <QDir>
#include <QFile>
#include <QTimer>
#include <QtTest>

using namespace velmora;

/// Pause and cancel.
class RenderControlTest : public QObject
{
    Q_OBJECT

    RenderFixture m_fixture;
    QStringList m_photos;

    RenderRequest request(bool parallel, const QString &name = QStringLiteral("video.mp4")) const
    {
        RenderRequest made = m_fixture.request(m_photos, m_fixture.output(name));
        made.parallel = parallel;
        return made;
    }

    static void addModes()
    {
        QTest::addColumn<bool>("parallel");
        QTest::newRow("in order") << false;
        QTest::newRow("parallel") << true;
    }

    QByteArray oldVideo() const
    {
        QFile file(m_fixture.output(QStringLiteral("video.mp4")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private slots:
    void initTestCase()
    {
        for (int i = 0; i < 4; ++i)
            m_photos.append(m_fixture.photo(QStringLiteral("%1.jpg").arg(i), i));
    }

    void init()
    {
        QFile file(m_fixture.output(QStringLiteral("video.mp4")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("old");
    }

    void pausedRendersGoOn_data() { addModes(); }
    void pausedRendersGoOn()
    {
        QFETCH(bool, parallel);
        RenderJob job(request(parallel), m_fixture.settings, m_fixture.cacheFolder());
        job.setPaused(true);
        bool started = false;
        connect(&job, &RenderJob::stageChanged, this, [&](const QString &stage) {
            started = started || stage == QLatin1String("frames");
        });
        bool resumed = false;
        bool paintedWhilePaused = false;
        QTimer resume;
        connect(&resume, &QTimer::timeout, this, [&] {
            if (!started)
                return;
            resume.stop();
            paintedWhilePaused = hasFrames();
            resumed = true;
            job.setPaused(false);
        });
        resume.start(250);
        const RenderOutcome outcome = RenderFixture::run(job);
        QVERIFY(resumed);
        QVERIFY(!paintedWhilePaused);
        QVERIFY2(outcome.kind == RenderOutcome::Finished, qPrintable(outcome.error.text));
        QCOMPARE(VideoProbe::frameCount(outcome.fileName), 25 * 7);
    }

    void cancels_data()
    {
        QTest::addColumn<bool>("parallel");
        QTest::addColumn<QString>("stage");
        for (const bool parallel : {false, true}) {
            for (const char *stage : {"check", "frames", "segments", "join", "multiplex"})
                QTest::addRow("%s %s", stage, parallel ? "parallel" : "in order")
                    << parallel << QString::fromLatin1(stage);
        }
    }

    void cancels()
    {
        QFETCH(bool, parallel);
        QFETCH(QString, stage);
        RenderJob job(request(parallel), m_fixture.settings, m_fixture.cacheFolder());
        connect(&job, &RenderJob::stageChanged, &job, [&](const QString &reached) {
            if (reached == stage)
                job.cancel();
        });
        const RenderOutcome outcome = RenderFixture::run(job);
        QCOMPARE(outcome.endings, 1);
        if (outcome.kind == RenderOutcome::Finished && stage == QLatin1String("multiplex"))
            return; // tiny videos may be done before the cancel arrives
        QCOMPARE(outcome.kind, RenderOutcome::Cancelled);
        QCOMPARE(oldVideo(), QByteArray("old"));
        QCOMPARE(m_fixture.leftovers(), QStringList());
    }

    void cancelsWhilePaused_data() { addModes(); }
    void cancelsWhilePaused()
    {
        QFETCH(bool, parallel);
        RenderJob job(request(parallel), m_fixture.settings, m_fixture.cacheFolder());
        job.setPaused(true);
        connect(&job, &RenderJob::stageChanged, &job, [&](const QString &stage) {
            if (stage == QLatin1String("frames"))
                QTimer::singleShot(150, &job, &RenderJob::cancel);
        });
        const RenderOutcome outcome = RenderFixture::run(job);
        QCOMPARE(outcome.kind, RenderOutcome::Cancelled);
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
        const QDir cache(m_fixture.cacheFolder());
        const QStringList renders = cache.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QString &render : renders) {
            if (!QDir(cache.filePath(render + QStringLiteral("/images")))
                     .entryList(QDir::Files)
                     .isEmpty())
                return true;
        }
        return false;
    }
};

QTEST_MAIN(RenderControlTest)
#include "RenderControlTest.moc"
