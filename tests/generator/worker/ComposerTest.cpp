// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/worker/Composer.h"
#include "generator/worker/WorkerProtocol.h"
#include "helpers/ProcessControl.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace velmora;
using ProcessControl::isAlive;

namespace
{

const QString kWorker = QStringLiteral(FAKE_WORKER);

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
        m_composer->setProgram(kWorker);
        m_composer->setStopGrace(200);
        m_signals.clear();
        connect(m_composer.get(), &Composer::started, this,
                [this] { m_signals.append(QStringLiteral("started")); });
        connect(m_composer.get(), &Composer::finished, this, [this](const QString &file) {
            m_signals.append(QStringLiteral("finished ") + file);
        });
        connect(m_composer.get(), &Composer::failed, this,
                [this](const QString &err) { m_signals.append(QStringLiteral("failed ") + err); });
        connect(m_composer.get(), &Composer::canceled, this,
                [this] { m_signals.append(QStringLiteral("canceled")); });
        connect(m_composer.get(), &Composer::progress, this,
                [this](int val) { m_signals.append(QString::number(val)); });
    }

    void cleanup() { m_composer.reset(); }

    void finishedWithTheFile()
    {
        const QString video = path("video.mp4");
        run("touch " + video.toUtf8() + '\n' + finishedLine(video));
        QTRY_VERIFY(!m_composer->isRunning());
        QCOMPARE(m_signals, (QStringList{QStringLiteral("started"), QStringLiteral("100"),
                                         QStringLiteral("finished ") + video}));
        QVERIFY(m_composer->elapsed() > 0);
        QVERIFY(m_composer->errorText().isEmpty());
    }

    void progressNeverGoesBackwards()
    {
        const QString video = path("video.mp4");
        run("touch " + video.toUtf8() + "\nprint garbage {\n" + progressLine(0, 200) +
            progressLine(30, 200) + progressLine(31, 200) + progressLine(10, 200) +
            "flood 300000\n" + progressLine(0, 0) + progressLine(200, 200) + finishedLine(video));
        QTRY_VERIFY(!m_composer->isRunning());
        QCOMPARE(m_signals,
                 (QStringList{QStringLiteral("started"), QStringLiteral("0"), QStringLiteral("15"),
                              QStringLiteral("99"), QStringLiteral("100"),
                              QStringLiteral("finished ") + video}));
    }

    void failure_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QString>("text");
        const QString unexpected = QStringLiteral("The render program ended unexpectedly.");
        QTest::newRow("reported")
            << QByteArray("print {\"event\":\"failed\",\"code\":\"ERR_INPUT\",\"text\":\"a.jpg is "
                          "no picture.\"}\nexit 1\n")
            << QStringLiteral("a.jpg is no picture.");
        QTest::newRow("crash") << QByteArray("crash\n") << unexpected;
        QTest::newRow("crash after the end")
            << QByteArray("touch VIDEO\n") + finishedLine(QStringLiteral("VIDEO")) + "crash\n"
            << unexpected;
        QTest::newRow("no file") << finishedLine(QStringLiteral("VIDEO")) << unexpected;
        QTest::newRow("file, but nothing said") << QByteArray("touch VIDEO\n") << unexpected;
        QTest::newRow("file, but a bad exit code")
            << QByteArray("touch VIDEO\n") + finishedLine(QStringLiteral("VIDEO")) + "exit 1\n"
            << unexpected;
        QTest::newRow("cancelled by somebody else") << QByteArray("exit 3\n") << unexpected;
    }
    void failure()
    {
        QFETCH(QByteArray, script);
        run(script.replace("VIDEO", path("video.mp4").toUtf8()));
        QTRY_VERIFY(!m_composer->isRunning());
        QCOMPARE(m_signals.first(), QStringLiteral("started"));
        QCOMPARE(m_signals.last(), QStringLiteral("failed ERR_GENERATOR"));
        QCOMPARE(m_signals.size(), 2);
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
        const QString video = path("video.mp4");
        run("await paused\ntouch " + paused.toUtf8() + "\nawait running\ntouch " + video.toUtf8() +
            '\n' + finishedLine(video));
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
        QCOMPARE(m_signals, (QStringList{QStringLiteral("started"), QStringLiteral("canceled")}));
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
        QTRY_VERIFY(QFileInfo::exists(helper));
        const qint64 child = pidIn(helper);
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
        const QString video = path("video.mp4");
        m_signals.clear();
        // The old worker is still being stopped.
        run("await running\ntouch " + video.toUtf8() + '\n' + finishedLine(video));
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
        const QString video = path("video.mp4");
        int runs = 0;
        connect(m_composer.get(), &Composer::failed, this, [&] {
            if (++runs == 1)
                run("touch " + video.toUtf8() + '\n' + finishedLine(video));
        });
        run("exit 1\n");
        QTRY_VERIFY(m_signals.last().startsWith(QStringLiteral("finished")));
    }

    void destructionEndsTheWorker()
    {
        const QString helper = path("helper");
        run("deaf\nhelper " + helper.toUtf8() + "\nhang\n");
        QTRY_VERIFY(QFileInfo::exists(helper));
        const qint64 child = pidIn(helper);
        m_composer.reset();
        QTRY_VERIFY(!isAlive(child));
        QCOMPARE(m_signals, QStringList(QStringLiteral("started")));
    }

    void stageIsKept()
    {
        run("print {\"event\":\"stage\",\"stage\":\"Merge slide video\"}\nawait canceled\n");
        QTRY_COMPARE(m_composer->stage(), QStringLiteral("Merge slide video"));
    }

private:
    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }

    void run(const QByteArray &script)
    {
        QFile file(path("request.json"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(script);
        file.close();
        m_composer->run(file.fileName());
    }

    static qint64 pidIn(const QString &file)
    {
        QFile pid(file);
        return pid.open(QIODevice::ReadOnly) ? pid.readAll().toLongLong() : -1;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Composer> m_composer;
    QStringList m_signals;
};

QTEST_GUILESS_MAIN(ComposerTest)
#include "ComposerTest.moc"
