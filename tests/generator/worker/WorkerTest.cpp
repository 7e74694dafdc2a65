// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Paths.h"
#include "generator/worker/Composer.h"
#include "generator/worker/WorkerOutputReader.h"
#include "helpers/ProcessControl.h"
#include "helpers/RenderFixture.h"
#include "helpers/Words.h"

#include <QtTest>

#include <memory>

using namespace velmora;
using ProcessControl::isAlive;

namespace
{

QString program()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/velmoratool");
}

} // namespace

/// The real worker program, as the editor and as nobody drives it.
class WorkerTest : public QObject
{
    Q_OBJECT
private slots:
    void cleanup() { qunsetenv("VELMORA_FFMPEG"); }

    void init()
    {
        m_fixture.reset(); // gives the data folder back before the next one takes it
        m_fixture = std::make_unique<RenderFixture>();
        m_output = m_fixture->output(QStringLiteral("it's a 100% vidéo 漢.mp4"));
    }

    void editorCancels_data()
    {
        QTest::addColumn<bool>("paused");
        QTest::newRow("running") << false;
        QTest::newRow("paused") << true;
    }
    void editorCancels()
    {
        QFETCH(bool, paused);
        Composer composer;
        composer.setStopGrace(kPatience); // the worker must obey, not be forced
        QSignalSpy progress(&composer, &Composer::progress);
        composer.run(request(200));
        QTRY_VERIFY(!progress.isEmpty());
        if (paused)
            composer.pause();
        composer.cancel();
        QTRY_VERIFY_WITH_TIMEOUT(!composer.isRunning(), kPatience / 2);
        QVERIFY(!QFileInfo::exists(m_output));
        QCOMPARE(leftovers(), QStringList());
    }

    void editorLearnsWhatIsWrong()
    {
        Composer composer;
        QSignalSpy failed(&composer, &Composer::failed);
        const QString file = request(2);
        QVERIFY(QFile::remove(m_fixture->path(QStringLiteral("photo1.png"))));
        composer.run(file);
        QTRY_COMPARE(failed.size(), 1);
        QVERIFY2(composer.errorText().contains(QStringLiteral("photo1.png")),
                 qPrintable(composer.errorText()));
    }

    void killedWorkerLeavesNothing()
    {
        auto composer = std::make_unique<Composer>();
        QSignalSpy progress(composer.get(), &Composer::progress);
        composer->run(request(200));
        QTRY_VERIFY(!progress.isEmpty());
        const qint64 worker = workerPid();
        QVERIFY(isAlive(worker));
        QVector<qint64> encoders;
        QTRY_VERIFY(!(encoders = ProcessControl::childrenOf(worker)).isEmpty());
        QVERIFY(ProcessControl::kill(worker));
        QTRY_VERIFY(!composer->isRunning());
        QVERIFY(!composer->errorText().isEmpty());
        for (const qint64 encoder : qAsConst(encoders))
            QTRY_VERIFY(!isAlive(encoder));
        composer.reset(); // It ends its sweep, which makes files of its own for a moment.
        QCOMPARE(leftovers(), QStringList());
    }

    void killedWhileMultiplexingLeavesNothing()
    {
        m_output = m_fixture->output(QStringLiteral("video.mp4"));
        // Two slides are 3 segments, 1 join of a slide, 1 join of all; then comes the output.
        m_fixture->settings.outputProfile = outputProfileKey(OutputProfile::PlaysEverywhere);
        m_fixture->fakeTool("VELMORA_FFMPEG", 6, QStringLiteral("touch|OUTPUT|hang"));
        auto composer = std::make_unique<Composer>();
        composer->run(request(2));
        QTRY_COMPARE(composer->stage(), QStringLiteral("multiplex"));
        QTRY_VERIFY(!unfinishedVideos().isEmpty());
        QVERIFY(ProcessControl::kill(workerPid()));
        QTRY_VERIFY(!composer->isRunning());
        composer.reset();
        QCOMPARE(leftovers(), QStringList());
    }

    void badArguments_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("reason");
        const QStringList all =
            words("--session_id /nowhere/x --cache /nowhere/x --request /nowhere/x");
        const QString needs = QStringLiteral("needs --session_id, --cache and --request");
        QTest::newRow("no request") << QStringList(all.mid(0, 4)) << needs;
        QTest::newRow("no session") << QStringList(all.mid(2)) << needs;
        QTest::newRow("empty cache")
            << QStringList(all.mid(0, 3) + QStringList(QString()) + all.mid(4)) << needs;
        QTest::newRow("too much") << all + words("/nowhere/x") << needs;
        QTest::newRow("unknown option") << all + words("--fast") << "fast";
        QTest::newRow("missing value") << words("--session_id") << "session_id";
        QTest::newRow("missing request") << all << "/nowhere/x";
        for (const char *content : {"", "slides", "{\"name\":\"x\",\"slides\":[{", "[1,2]"})
            QTest::addRow("request '%s'", content)
                << QStringList(QLatin1String(content)) << "bad.json";
    }
    void badArguments()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, reason);
        if (reason == QLatin1String("bad.json"))
            arguments = workerArguments(m_fixture->file(reason, arguments.first().toUtf8()));
        QProcess process;
        process.start(program(), arguments);
        QVERIFY(process.waitForFinished(kPatience));
        QCOMPARE(process.exitCode(), int(kExitBadArguments));
        const auto messages = WorkerOutputReader().feed(process.readAllStandardOutput());
        QCOMPARE(messages.size(), 1);
        QCOMPARE(messages[0].kind, WorkerMessage::Kind::Failed);
        QVERIFY2(messages[0].error.text.contains(reason), qPrintable(messages[0].error.text));
    }

    void rendersForNobody_data()
    {
        QTest::addColumn<QString>("redirection");
        QTest::newRow("reader gone") << "| :";
        QTest::newRow("closed") << "<&- >&- 2>&-";
        QTest::newRow("full device") << ">/dev/full";
    }
    void rendersForNobody()
    {
        QFETCH(QString, redirection);
        if (QStandardPaths::findExecutable(QStringLiteral("sh")).isEmpty())
            QSKIP("needs a shell");
        const QStringList arguments{QStringLiteral("-c"),
                                    QStringLiteral("\"$0\" \"$@\" ") + redirection, program()};
        QProcess process;
        process.start(QStringLiteral("/bin/sh"), arguments + workerArguments(request(2)));
        QVERIFY(process.waitForFinished(kPatience));
        QVERIFY(QFileInfo(m_output).size() > 0);
        QVERIFY(!process.readAllStandardError().contains("event"));
    }

private:
    /// Writes a document of @p slides slides and returns its path.
    QString request(int slides)
    {
        QStringList photos;
        for (int i = 0; i < slides; ++i)
            photos.append(i < 2 ? m_fixture->photo(QStringLiteral("photo%1.png").arg(i), i)
                                : photos[i % 2]);
        m_fixture->settings.transitionTime = 1;
        const QString path = m_fixture->path(QStringLiteral("request.json"));
        const RenderRequest render = m_fixture->request(photos, m_output);
        QString error;
        return RenderRequest::save(*render.project, m_fixture->settings, path, &error) ? path
                                                                                       : QString();
    }

    QStringList workerArguments(const QString &requestFile) const
    {
        return {QStringLiteral("--session_id"), QStringLiteral("test"),
                QStringLiteral("--cache"),      m_fixture->cacheFolder(),
                QStringLiteral("--request"),    requestFile};
    }

    /// The worker that owns the only cache folder.
    static qint64 workerPid()
    {
        QDirIterator locks(Paths::cacheFolder(), {QStringLiteral("render.lock")}, QDir::Files,
                           QDirIterator::Subdirectories);
        qint64 pid = -1;
        QString host;
        QString name;
        if (locks.hasNext())
            QLockFile(locks.next()).getLockInfo(&pid, &host, &name);
        return pid;
    }

    QStringList unfinishedVideos() const
    {
        return QDir(m_fixture->outputFolder())
            .entryList({QStringLiteral(".*.part-*")}, QDir::Files | QDir::Hidden);
    }

    /// What a render of the editor's could leave: session values, cached files, parts of videos.
    QStringList leftovers() const
    {
        QStringList files =
            QDir(Paths::dataFolder() + QStringLiteral("/sessions")).entryList(QDir::Files);
        QDirIterator cache(Paths::cacheFolder(), QDir::Files | QDir::Hidden,
                           QDirIterator::Subdirectories);
        while (cache.hasNext())
            files.append(cache.next());
        files += QDir(m_fixture->outputFolder()).entryList(QDir::Files | QDir::Hidden);
        files.removeAll(QFileInfo(m_output).fileName());
        return files;
    }

    std::unique_ptr<RenderFixture> m_fixture;
    QString m_output;
};

QTEST_GUILESS_MAIN(WorkerTest)
#include "WorkerTest.moc"
