// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Identity.h"
#include "generator/worker/WorkerProtocol.h"
#include "helpers/Files.h"
#include "helpers/HttpServer.h"
#include "helpers/ProcessControl.h"
#include "helpers/RenderFixture.h"
#include "helpers/VideoProbe.h"
#include "helpers/Words.h"
#include "platform/ProcessTree.h"
#include "programs/velmoratool/HelpText.h"

#include <QtTest>

using namespace velmora;

/// Runs the real program as a user or a script does.
class VelmoratoolTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        m_photo = m_fixture.photo(QStringLiteral("photo.jpg"), 1);
        m_fixture.photo(QStringLiteral("second.png"), 2);
        m_fixture.file(QStringLiteral("text.jpg"), "This is not a picture.");
        m_fixture.file(QStringLiteral("broken.json"), "{\"images\": [");
        m_fixture.file(QStringLiteral("broken.mp3"), "This is not music.");
    }

    void tellsAboutItself_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("output");
        const QString usage = QStringLiteral("Usage: velmoratool make");
        const QString version = QStringLiteral("velmoratool ") + programVersion();
        QTest::newRow("help") << words("--help") << 0 << usage;
        QTest::newRow("short help") << words("-h") << 0 << usage;
        QTest::newRow("help of make") << words("make --help") << 0 << usage;
        QTest::newRow("help besides") << words("make --photos a.jpg --help") << 0 << usage;
        QTest::newRow("version") << words("--version") << 0 << version;
        QTest::newRow("version of make") << words("make --version") << 0 << version;
        QTest::newRow("nothing") << QStringList() << 2 << QString();
        QTest::newRow("unknown command") << words("mak") << 2 << QString();
    }
    void tellsAboutItself()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, output);
        QCOMPARE(run(arguments), exitCode);
        QVERIFY(m_output.startsWith(output));
        if (exitCode == 0)
            QCOMPARE(m_errors, QString());
        else
            QVERIFY(m_errors.startsWith(QStringLiteral("Usage:")));
    }

    void rendersAnyNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("locale");
        const QString utf8 = QStringLiteral("C.UTF-8");
        QTest::newRow("blanks") << "two  words" << utf8;
        QTest::newRow("quotes") << "it's \"quoted\"" << utf8;
        QTest::newRow("percent signs") << "100% %1 %03d" << utf8;
        QTest::newRow("many letters") << "Käse 日本 Ω" << utf8;
        QTest::newRow("many letters without a language")
            << QStringLiteral("Grüße 中文") << QStringLiteral("C");
    }
    void rendersAnyNames()
    {
        QFETCH(QString, name);
        QFETCH(QString, locale);
        if (onWindows() && (name.contains(QLatin1Char('"')) || locale == QLatin1String("C")))
            QSKIP("Windows has no such names, and no programs without a language.");
        const QString music = m_fixture.sound(name + QStringLiteral(".ogg"), 3);
        const QString output = m_fixture.output(name + QStringLiteral(".mp4"));
        QStringList arguments = tiny({m_fixture.photo(name + QStringLiteral(".jpg"), 3),
                                      m_fixture.photo(name + QStringLiteral(".png"), 4)},
                                     output);
        arguments += words("--captions-from-names --music") << music;
        QCOMPARE(run(arguments, locale), 0);
        QCOMPARE(m_errors, QString());
        QVERIFY(m_output.contains(QStringLiteral("100 %")));
        QVERIFY2(m_output.contains(output), qPrintable(m_output));
        // Two stills, two captions and one transition of a second each.
        QCOMPARE(VideoProbe::frameCount(output), 5 * 25);
        QVERIFY(qAbs(VideoProbe::soundLength(output) - 5) < 0.15);
        QCOMPARE(VideoProbe::decodingErrors(output), QString());
        QVERIFY(QFile::remove(output));
        QCOMPARE(m_fixture.leftovers(), QStringList());
    }

    void refuses_data()
    {
        QTest::addColumn<QString>("photo");
        QTest::addColumn<QString>("output");
        QTest::addColumn<QString>("more");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QStringList>("messages");
        const auto row = [](const char *name, const char *photo, const char *output,
                            const char *more, int exitCode, const char *messages) {
            QTest::newRow(name) << QString::fromUtf8(photo) << QString::fromUtf8(output)
                                << QString::fromUtf8(more) << exitCode
                                << QString::fromUtf8(messages).split(QLatin1Char('|'));
        };
        row("missing photo", "gone.jpg", "out/a.mp4", "", 1, "gone.jpg|does not exist");
        row("no photo at all", "text.jpg", "out/a.mp4", "", 1, "text.jpg|picture");
        row("broken music", "photo.jpg", "out/a.mp4", "--music broken.mp3", 1, "broken.mp3");
        row("no such output folder", "photo.jpg", "nowhere/a.mp4", "", 1, "nowhere|does not exist");
        row("read-only output folder", "photo.jpg", "/proc/a.mp4", "", 1,
            "/proc|cannot be written");
        row("tiny size", "photo.jpg", "out/a.mp4", "--size 2x2", 2, "2x2|too small");
        row("wrong option", "photo.jpg", "out/a.mp4", "--quick", 2, "--quick|--help");
        row("document not writable", "photo.jpg", "out/a.mp4", "--dump-project nowhere/p.json", 1,
            "nowhere/p.json|cannot be written");
    }
    void refuses()
    {
        QFETCH(QString, photo);
        QFETCH(QString, output);
        QFETCH(QString, more);
        QFETCH(QStringList, messages);
        const QStringList arguments =
            tiny({photo}, output) + more.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        QTEST(run(arguments), "exitCode");
        QCOMPARE(m_output, QString());
        for (const QString &message : qAsConst(messages))
            QVERIFY2(m_errors.contains(message), qPrintable(m_errors));
        QCOMPARE(m_fixture.leftovers(), QStringList());
        QCOMPARE(QDir(m_fixture.outputFolder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList());
    }

    void brokenProjectIsNamed()
    {
        QCOMPARE(run(words("make --project broken.json --output out/a.mp4")), 2);
        QVERIFY(m_errors.contains(QStringLiteral("broken.json")));
    }

    void protocolLinesAreWhole()
    {
        const QString output = m_fixture.output(QStringLiteral("json.mp4"));
        QCOMPARE(run(tiny({m_photo, m_photo}, output) << QStringLiteral("--json")), 0);
        const QVector<WorkerMessage> lines = messages();
        QVERIFY(lines.size() > 2);
        qint64 frame = 0;
        qint64 count = 0;
        for (const WorkerMessage &line : lines) {
            QVERIFY(line.kind != WorkerMessage::Kind::Invalid);
            if (line.kind != WorkerMessage::Kind::Progress)
                continue;
            QVERIFY(line.frame >= frame);
            frame = line.frame;
            QVERIFY(count == 0 || line.count == count);
            count = line.count;
        }
        QVERIFY(count >= 3 * 25);
        QCOMPARE(frame, count);
        QVERIFY(lines.last().kind == WorkerMessage::Kind::Finished);
        QCOMPARE(lines.last().fileName, output);

        QCOMPARE(run(tiny({QStringLiteral("text.jpg")}, output) << QStringLiteral("--json")), 1);
        QVERIFY(messages().last().kind == WorkerMessage::Kind::Failed);
        QVERIFY(messages().last().error.text.contains(QStringLiteral("text.jpg")));
        QVERIFY(m_errors.contains(QStringLiteral("text.jpg")));
        QVERIFY(QFile::remove(output));
    }

    void interruptLeavesNothing_data()
    {
        QTest::addColumn<bool>("interrupted");
        QTest::addColumn<bool>("wholeGroup");
        QTest::newRow("interrupt") << true << false;
        QTest::newRow("Ctrl-C in a terminal") << true << true;
        QTest::newRow("end of session") << false << false;
    }
    void interruptLeavesNothing()
    {
        QFETCH(bool, interrupted);
        QFETCH(bool, wholeGroup);
        if ((!interrupted || wholeGroup) && onWindows())
            QSKIP("Windows asks programs without windows through their console only, all at once.");
        const QString output = m_fixture.file(QStringLiteral("out/kept.mp4"), "older video");
        const QStringList arguments =
            tiny({m_photo, m_photo, m_photo, m_photo}, output) +
            words("--json --time=60 --transition-length=60 --size=640x360");
        const auto tool = ProcessTree::createProcess(ProcessTree::Group::Own);
        QProcess &process = *tool;
        setEnvironment(process);
        ProcessControl::allowInterrupts();
        process.start(program(), arguments);
        m_output.clear();
        while (!m_output.contains(QStringLiteral("progress"))) {
            QVERIFY2(process.waitForReadyRead(60'000), "It never came to the first frame.");
            m_output += QString::fromUtf8(process.readAllStandardOutput());
        }
        if (interrupted)
            QVERIFY(wholeGroup ? ProcessControl::interruptGroup(process.processId())
                               : ProcessControl::interrupt(process.processId()));
        else
            process.terminate();
        QVERIFY(process.waitForFinished(60'000));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 3);
        m_output += QString::fromUtf8(process.readAllStandardOutput());
        QVERIFY(messages().last().kind == WorkerMessage::Kind::Cancelled);

        QCOMPARE(m_fixture.leftovers(), QStringList());
        QDirIterator cache(m_fixture.path(QStringLiteral("data/cache")), QDir::Files | QDir::Hidden,
                           QDirIterator::Subdirectories);
        QVERIFY2(!cache.hasNext(), qPrintable(cache.next()));
        QCOMPARE(readFile(output), QByteArray("older video"));
        QVERIFY(QFile::remove(output));
    }

    void usageIsSentAtTheEnd()
    {
        HttpServer server;
        const QString settings = m_fixture.path(QStringLiteral("data/settings.ini"));
        QVERIFY(QDir().mkpath(QFileInfo(settings).path()));
        m_fixture.file(QStringLiteral("data/settings.ini"), "[General]\nsendStatistics=true\n");
        const QString output = m_fixture.output(QStringLiteral("counted.mp4"));
        QProcess process;
        setEnvironment(process,
                       {{QStringLiteral("VELMORA_METRICS_ADDRESS"), server.url().toString()}});
        process.start(program(), tiny({m_photo}, output));
        QTRY_COMPARE(process.state(), QProcess::NotRunning);
        QVERIFY(QFile::remove(settings));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);
        const QByteArray requests = server.requests.join();
        QVERIFY2(requests.contains("m2=gres:160x90") && requests.contains("m1=end:1"),
                 requests.constData());
        QVERIFY(QFile::remove(output));
    }

    void documentRendersAlike()
    {
        const QString output = m_fixture.output(QStringLiteral("from project.mp4"));
        const QString document = m_fixture.path(QStringLiteral("dumped.json"));
        const QStringList arguments =
            tiny(words("photo.jpg second.png"), output) +
            words("--title Hello --transition checkerboard --dump-project") + QStringList(document);
        QCOMPARE(run(arguments), 0);
        QCOMPARE(m_output, QStringLiteral("The project is ready: %1\n").arg(document));
        QVERIFY(!QFile::exists(output));
        const QJsonObject object = QJsonDocument::fromJson(readFile(document)).object();
        QCOMPARE(object.value(QStringLiteral("resolution")).toString(), QStringLiteral("160x90"));
        QCOMPARE(object.value(QStringLiteral("transition_time")).toInt(), 1);

        QCOMPARE(run(words("make --project") << document), 0);
        // The title with its caption's appearance, then two photos with a transition into each.
        QCOMPARE(VideoProbe::frameCount(output), 6 * 25);
        QVERIFY(QFile::remove(output));
    }

    void terminalShowsABar()
    {
        const QString output = m_fixture.output(QStringLiteral("bar.mp4"));
        const QStringList arguments = tiny({m_photo}, output);
        if (QStandardPaths::findExecutable(QStringLiteral("script")).isEmpty())
            QSKIP("needs the program \"script\"");
        QProcess process; // It runs the program on a terminal of its own.
        setEnvironment(process, {{QStringLiteral("TERM"), QStringLiteral("xterm")}});
        const QString command =
            QLatin1Char('"') + program() + QStringLiteral("\" ") + arguments.join(QLatin1Char(' '));
        process.start(QStringLiteral("script"), words("--quiet --return /dev/null --command")
                                                    << command);
        QVERIFY(process.waitForFinished(120'000));
        QCOMPARE(process.exitCode(), 0);
        const QString shown = QString::fromUtf8(process.readAllStandardOutput());
        QVERIFY2(shown.contains(QRegularExpression(QStringLiteral("\\r\\[#+\\] 100 %"))),
                 qPrintable(shown));
        QVERIFY(QFile::remove(output));
    }

    void manPageIsComplete()
    {
        QFile file(QStringLiteral(MAN_PAGE));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString page =
            QString::fromUtf8(file.readAll()).replace(QStringLiteral("\\-"), QStringLiteral("-"));
        QRegularExpressionMatchIterator options =
            QRegularExpression(QStringLiteral("--[a-z-]+")).globalMatch(helpText());
        QVERIFY(options.hasNext());
        while (options.hasNext()) {
            const QString option = options.next().captured();
            QVERIFY2(page.contains(option), qPrintable(option));
        }
        QVERIFY(page.contains(programVersion()));

        if (QStandardPaths::findExecutable(QStringLiteral("groff")).isEmpty())
            QSKIP("needs the program \"groff\"");
        QProcess groff;
        groff.start(QStringLiteral("groff"), words("-man -ww -Tutf8") << QStringLiteral(MAN_PAGE));
        QVERIFY(groff.waitForFinished(60'000));
        QCOMPARE(groff.exitCode(), 0);
        QCOMPARE(groff.readAllStandardError(), QByteArray());
        QVERIFY(groff.readAllStandardOutput().size() > 1000);
    }

private:
    int run(const QStringList &arguments, const QString &locale = QStringLiteral("C.UTF-8"))
    {
        QProcess process;
        setEnvironment(process, {}, locale);
        process.setWorkingDirectory(m_fixture.path(QString()));
        process.start(program(), arguments);
        process.waitForFinished(120'000);
        m_output = QString::fromUtf8(process.readAllStandardOutput());
        m_errors = QString::fromUtf8(process.readAllStandardError());
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }

    using Variables = QHash<QString, QString>;
    static void setEnvironment(QProcess &process, const Variables &more = {},
                               const QString &locale = QStringLiteral("C.UTF-8"))
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LC_ALL"), locale);
        for (auto it = more.begin(); it != more.end(); ++it)
            environment.insert(it.key(), it.value());
        process.setProcessEnvironment(environment);
    }

    static QString program()
    {
        return QCoreApplication::applicationDirPath() + QStringLiteral("/velmoratool");
    }
    static bool onWindows() { return QSysInfo::productType() == QLatin1String("windows"); }

    /// Arguments for a video of one second per photo.
    QStringList tiny(const QStringList &photos, const QString &output) const
    {
        return words("make --photos") + photos +
               words("--size 160x90 --time 1 --transition-length 1 --output") + QStringList(output);
    }

    QVector<WorkerMessage> messages() const
    {
        QVector<WorkerMessage> result;
        for (const QString &line : m_output.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
            result.append(WorkerProtocol::decode(line.toUtf8()));
        return result;
    }

    RenderFixture m_fixture;
    QString m_photo;
    QString m_output;
    QString m_errors;
};

QTEST_GUILESS_MAIN(VelmoratoolTest)
#include "VelmoratoolTest.moc"
