// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/worker/Composer.h"
#include "generator/worker/WorkerProtocol.h"
#include "helpers/Files.h"
#include "helpers/ProcessControl.h"
#include "helpers/Words.h"

#include <QtTest>

#include <memory>

using namespace velmora;
using ProcessControl::isAlive;

namespace
{

QByteArray progressLine(int frame, int count)
{
    WorkerMessage message;
    message.kind = WorkerMessage::Kind::Progress;
    message.frame = frame;
    message.count = count;
    return "print " + WorkerProtocol::encode(message);
}

QByteArray finishedLine(const QString &file)
{
    WorkerMessage message;
    message.kind = WorkerMessage::Kind::Finished;
    message.fileName = file;
    return "print " + WorkerProtocol::encode(message);
}

} // namespace

class ComposerTest : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>(QDir::tempPath() +
                                                   QStringLiteral("/it's 100% ü 漢 XXXXXX"));
        qputenv("VELMORA_DATA_DIR", QFile::encodeName(path("data")));
        m_composer = std::make_unique<Composer>();
        m_composer->setProgram(QStringLiteral(FAKE_WORKER));
        m_composer->setStopGrace(200);
        m_signals.clear();
        const auto note = [this](const char *signal, const QString &what = {}) {
            m_signals.append((QLatin1String(signal) + QLatin1Char(' ') + what).trimmed());
        };
        Composer *composer = m_composer.get();
        connect(composer, &Composer::started, this, [note] { note("started"); });
        connect(composer, &Composer::finished, this,
                [note](const QString &file) { note("finished", file); });
        connect(composer, &Composer::failed, this,
                [note](const QString &code) { note("failed", code); });
        connect(composer, &Composer::canceled, this, [note] { note("canceled"); });
        connect(composer, &Composer::progress, this,
                [note](int percent) { note("", QString::number(percent)); });
    }

    void cleanup() { m_composer.reset(); }

    void finishedWithTheFile()
    {
        const QString video = path("video.mp4");
        run(makeVideo());
        QTRY_VERIFY(!m_composer->isRunning());
        QCOMPARE(m_signals, words("started 100") << QStringLiteral("finished ") + video);
        QVERIFY(m_composer->elapsed() > 0);
        QVERIFY(m_composer->errorText().isEmpty());
    }

    void progressNeverGoesBackwards()
    {
        run("print garbage {\n" + progressLine(0, 200) + progressLine(30, 200) +
            progressLine(31, 200) + progressLine(10, 200) + "flood 300000\n" + progressLine(0, 0) +
            progressLine(200, 200) + makeVideo());
        QTRY_VERIFY(!m_composer->isRunning());
        QCOMPARE(m_signals, words("started 0 15 99 100")
                                << QStringLiteral("finished ") + path("video.mp4"));
    }

    void failure_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QString>("text");
        const QString unexpected = QStringLiteral("The render program ended unexpectedly.");
        QTest::newRow("reported")
            << QByteArray("print {\"event\":\"failed\",\"code\":\"ERR_INPUT\",\"text\":\"a.jpg is "
                          "no picture.\"}\nexit 1\n")
            << "a.jpg is no picture.";
        QTest::newRow("crash") << QByteArray("crash\n") << unexpected;
        const QByteArray touch = "touch VIDEO\n";
        const QByteArray finished = finishedLine(QStringLiteral("VIDEO"));
        QTest::newRow("crash after the end") << touch + finished + "crash\n" << unexpected;
        QTest::newRow("no file") << finished << unexpected;
        QTest::newRow("file, but nothing said") << touch << unexpected;
        QTest::newRow("file, but a bad exit code") << touch + finished + "exit 1\n" << unexpected;
        QTest::newRow("cancelled by somebody else") << QByteArray("exit 3\n") << unexpected;
    }
    void failure()
    {
        QFETCH(QByteArray, script);
        run(script.replace("VIDEO", path("video.mp4").toUtf8()));
        QTRY_VERIFY(!m_composer->isRunning());
        QCOMPARE(m_signals.join(QLatin1Char(' ')), QStringLiteral("started failed ERR_GENERATOR"));
        QTEST(m_composer->errorText(), "text");
    }

    void missingProgramFails()
    {
        m_composer->setProgram(path("no such program"));
        run("");
        QTRY_VERIFY(!m_composer->isRunning());
        QCOMPARE(m_signals, QStringList(QStringLiteral("failed ERR_GENERATOR")));
        QVERIFY2(
            m_composer->errorText().contains(QDir::toNativeSeparators(path("no such program"))),
            qPrintable(m_composer->errorText()));
    }

    void deadWorkerLeavesNothingAndTheNextRunWorks()
    {
        const QString helper = path("helper");
        run("helper " + helper.toUtf8() + "\ncrash\n");
        QTRY_COMPARE(m_signals.last(), QStringLiteral("failed ERR_GENERATOR"));
        QTRY_VERIFY(!isAlive(pidIn(helper)));
        m_signals.clear();
        finishedWithTheFile();
    }

    void pauseAndResumeReachTheWorker()
    {
        const QString paused = path("paused");
        run("await paused\ntouch " + paused.toUtf8() + "\nawait running\n" + makeVideo());
        m_composer->pause();
        QVERIFY(m_composer->isPaused());
        QTRY_VERIFY(QFileInfo::exists(paused));
        m_composer->resume();
        QTRY_VERIFY(!m_composer->isRunning());
        QVERIFY(m_signals.last().startsWith(QStringLiteral("finished")));
    }

    void cancelReachesTheWorker()
    {
        run("await canceled\n" + finishedLine(path("video.mp4")) + "exit 3\n");
        m_composer->cancel();
        QCOMPARE(m_signals.last(), QStringLiteral("canceled"));
        m_composer->cancel();
        QTRY_VERIFY(!m_composer->isRunning());
        QCOMPARE(m_signals, words("started canceled"));
    }

    void workerThatIgnoresCancelIsEnded_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::newRow("terminated") << QByteArray("helper HELPER\nhang\n");
        QTest::newRow("killed") << QByteArray("deaf\nhelper HELPER\nhang\n");
    }
    void workerThatIgnoresCancelIsEnded()
    {
        QFETCH(QByteArray, script);
        const QString helper = path("helper");
        run(script.replace("HELPER", helper.toUtf8()));
        // On Windows a file cannot be opened yet while it gets its name.
        qint64 child = 0;
        QTRY_VERIFY((child = pidIn(helper)) > 0);
        QVERIFY(isAlive(child));
        m_composer->cancel();
        QTRY_VERIFY(!m_composer->isRunning());
        QTRY_VERIFY(!isAlive(child));
        QCOMPARE(m_signals.last(), QStringLiteral("canceled"));
    }

    void oldCancelDoesNotReachANewRun()
    {
        run("hang\n");
        m_composer->cancel();
        m_signals.clear();
        // The old worker is still being stopped.
        run("await running\n" + makeVideo());
        QTRY_VERIFY(!m_composer->isRunning());
        QVERIFY(m_signals.last().startsWith(QStringLiteral("finished")));
    }

    void secondRunIsRefused()
    {
        run("await canceled\n");
        const QStringList before = m_signals;
        m_composer->run(path("request.json"));
        QCOMPARE(m_signals, before);
        QVERIFY(m_composer->isRunning());
    }

    void newRunFromASlotOfFailed()
    {
        int runs = 0;
        connect(m_composer.get(), &Composer::failed, this, [&] {
            if (++runs == 1)
                run(makeVideo());
        });
        run("exit 1\n");
        QTRY_VERIFY(m_signals.last().startsWith(QStringLiteral("finished")));
    }

    void destructionEndsTheWorker()
    {
        const QString helper = path("helper");
        run("deaf\nhelper " + helper.toUtf8() + "\nhang\n");
        qint64 child = 0;
        QTRY_VERIFY((child = pidIn(helper)) > 0);
        m_composer.reset();
        QTRY_VERIFY(!isAlive(child));
        QCOMPARE(m_signals, QStringList(QStringLiteral("started")));
    }

private:
    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }

    void run(const QByteArray &script)
    {
        QVERIFY(writeFile(path("request.json"), script));
        m_composer->run(path("request.json"));
    }

    /// The script of a worker that does what it shall.
    QByteArray makeVideo() const
    {
        const QString video = path("video.mp4");
        return "touch " + video.toUtf8() + '\n' + finishedLine(video);
    }

    static qint64 pidIn(const QString &file) { return readFile(file).toLongLong(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Composer> m_composer;
    QStringList m_signals;
};

QTEST_GUILESS_MAIN(ComposerTest)
#include "ComposerTest.moc"
