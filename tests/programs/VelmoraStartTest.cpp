// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/DeadLock.h"
#include "helpers/Files.h"
#include "helpers/HttpServer.h"
#include "helpers/ProcessControl.h"

#include <QImage>
#include <QtTest>

#include <memory>

using namespace velmora;

// Starts the real program, without a display, on a data folder of its own.
class VelmoraStartTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_data = std::make_unique<QTemporaryDir>(); }

    void cleanup() { m_metrics.clear(); }

    void firstStart()
    {
        HttpServer server;
        m_metrics = server.url().toString();
        QVERIFY(writeFile(path("services.ini"), "[metrics]\naddress=http://127.0.0.1:1/\n"));
        QVERIFY(writeFile(path("settings.ini"), "[General]\nsendStatistics=true\n"));
        const auto program = start({QStringLiteral("--inst")});
        QTRY_VERIFY(logged(": main window\n"));
        QVERIFY(QDir(path("cache/data")).exists());
        const QByteArray folder = m_data->path().toUtf8();
        for (const QByteArray &text :
             {": Log file " + folder, ": Log file tool " + folder, QByteArray(": Screen count "),
              QByteArray(": Screen 0 "), QByteArray(": Run from insaller:1\n"),
              QByteArray(": is frun:1\n"), QByteArray(": Load translation: velmora_"),
              QByteArray(": Crash installer setup time:")})
            QVERIFY2(logged(text), text);

        QTRY_COMPARE(server.requests.size(), 1);
        const QByteArray request = server.requests.first();
        QVERIFY(request.startsWith("GET /?ver=3.4.6&id="));
        for (const char *code : {"osid", "prcn", "sram", "tchd", "vidv", "laptop"})
            QVERIFY2(request.contains(QByteArray("=") + code + ':'), request.constData());
        end(*program);
    }

    void secondStartWakesTheFirst()
    {
        const auto first = start();
        QTRY_VERIFY(logged(": main window\n"));
        const auto second = start();
        QVERIFY(second->waitForFinished(kPatience));
        QCOMPARE(second->exitStatus(), QProcess::NormalExit);
        QCOMPARE(second->exitCode(), 0);
        QTRY_VERIFY(logged(": Message received:'Wake up!'\n"));
        const auto third = start({QStringLiteral("/no such/photo.png")});
        QVERIFY(third->waitForFinished(kPatience));
        QCOMPARE(third->exitCode(), 0);
        QTRY_VERIFY(loggedBy(*first, "/no%20such/photo.png"));
        QVERIFY(logged(": main window\n"));
        QCOMPARE(first->state(), QProcess::Running);
        end(*first);
    }

    void killedProgramOffersToRestore()
    {
        QVERIFY(writeFile(path("settings.ini"), "[General]\nautosaveSeconds=1\n"));
        QImage photo(64, 48, QImage::Format_RGB32);
        photo.fill(Qt::darkCyan);
        QVERIFY(photo.save(path("photo.png")));

        const auto first = start({path("photo.png")});
        const QString kept = path("autosave.json");
        QTRY_VERIFY(QFile::exists(kept));
        QVERIFY(!logged("Offer to restore"));
        end(*first);
        QVERIFY(QFile::exists(path("velmora.lock")));
        const auto second = start();
        QTRY_VERIFY(loggedBy(*second, "Offer to restore unsaved changes"));
        end(*second);
        // An unanswered question loses nothing.
        QVERIFY(QFile::exists(kept));
    }

    void crashIsToldAtTheNextStart()
    {
        const auto first = start();
        // It is up then: it holds the lock, listens and has its crash handler.
        QTRY_VERIFY(logged(": Load translation: "));
        QVERIFY(ProcessControl::crash(first->processId()));
        QVERIFY(first->waitForFinished(kPatience)); // Wine is slow with dumps
        QCOMPARE(first->exitStatus(), QProcess::CrashExit);
        const QString dump = path("velmora.dmp");
        QVERIFY(QFile::exists(dump));

        const auto second = start();
        QTRY_VERIFY(logged(": Crash dump found: '" + dump.toUtf8() + "'"));
        const QRegularExpression where(
            QStringLiteral(": (Signal 11\\n.*/velmora\\+0x|Mini dump of \\d+ bytes\\n)"),
            QRegularExpression::DotMatchesEverythingOption);
        QTRY_VERIFY(where.match(QString::fromUtf8(log())).hasMatch());
        end(*second);
    }

    void startsAlthoughFirstIsSilent()
    {
        const auto first = start();
        QTRY_VERIFY(logged(": main window\n"));
        // Stopped while it writes its settings it would keep their lock, and QSettings of the
        // second start would wait for that without an end.
        QTRY_VERIFY(QFile::exists(path("settings.ini")));
        QTRY_VERIFY(!QFile::exists(path("settings.ini.lock")));
        QVERIFY(ProcessControl::freeze(first->processId()));
        const auto second = start();
        QTRY_VERIFY(loggedBy(*second, ": main window"));
        end(*second);
        end(*first);
    }

    void startsOnGarbage()
    {
        QByteArray garbage;
        for (int i = 0; i < 20000; ++i)
            garbage += static_cast<char>(i * i % 251);
        const QByteArray settings =
            "[General]\nlocale=xx\nresolution=@Variant(\\0\\0)\ndefaultTime=-7e99\ngeometry=\"no\n"
            "transitionTime=@Invalid()\nfolder[=\nautosaveSeconds=soon\n[[\n" +
            garbage;
        QVERIFY(writeFile(path("settings.ini"), settings));
        QVERIFY(writeFile(path("services.ini"), garbage));
        QVERIFY(writeFile(path("project_history.json"), garbage));
        const auto program = start();
        QTRY_VERIFY(logged(": main window\n"));
        // There is no such translation, so that the texts stay English.
        QVERIFY(log().contains("Load translation: velmora_xx"));
        QVERIFY(!program->waitForFinished(1000));
        end(*program);
    }

    void sweepsWhatAKilledRenderLeft()
    {
        const QString render = path("cache/data/render-dead01");
        QVERIFY(QDir().mkpath(path("cache/data/render-dead01/video")));
        QVERIFY(writeFile(path("cache/data/render-dead01/render.lock"), deadLock()));
        const auto program = start();
        QTRY_VERIFY(!QFile::exists(render));
        QTRY_VERIFY(logged(": main window\n"));
        end(*program);
    }

private:
    std::unique_ptr<QProcess> start(const QStringList &arguments = {})
    {
        auto process = std::make_unique<QProcess>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("VELMORA_DATA_DIR"), m_data->path());
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        if (!m_metrics.isEmpty())
            environment.insert(QStringLiteral("VELMORA_METRICS_ADDRESS"), m_metrics);
        process->setProcessEnvironment(environment);
        process->start(QCoreApplication::applicationDirPath() + QStringLiteral("/velmora"),
                       arguments);
        return process;
    }

    QString path(const char *name) const { return m_data->filePath(QLatin1String(name)); }

    QByteArray log() const
    {
        QByteArray all;
        const QDir folder(path("log"));
        for (const QString &name : folder.entryList({QStringLiteral("log_*.txt")}))
            all += readFile(folder.filePath(name));
        return all;
    }
    bool logged(const QByteArray &text, int times = 1) const { return log().count(text) == times; }
    /// Whether this very process has written a line with @p text: both write to one file, and how
    /// far the other got before it was stopped depends on the machine.
    bool loggedBy(const QProcess &process, const QByteArray &text) const
    {
        const QByteArray writer = "][" + QByteArray::number(process.processId()) + ':';
        for (const QByteArray &line : log().split('\n')) {
            if (line.contains(writer) && line.contains(text))
                return true;
        }
        return false;
    }

    static void end(QProcess &process)
    {
        process.kill();
        process.waitForFinished();
    }

    std::unique_ptr<QTemporaryDir> m_data;
    QString m_metrics;
};

QTEST_GUILESS_MAIN(VelmoraStartTest)
#include "VelmoraStartTest.moc"
