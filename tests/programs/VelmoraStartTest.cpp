// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/DeadLock.h"
#include "helpers/HttpServer.h"
#include "helpers/ProcessControl.h"
#include "helpers/TestProcess.h"

#include <QDir>
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <memory>

using namespace velmora;

namespace
{

// Logged when the program is up: it holds the lock, listens and has its crash handler.
const QByteArray kReady = ": Load translation: ";

} // namespace

// Starts the real program, without a display, on a data folder of its own.
class VelmoraStartTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void firstStart();
    void secondStartWakesTheFirst();
    void secondStartHandsOverItsFiles();
    void killedProgramOffersToRestore();
    void startsAfterKill();
    void crashIsToldAtTheNextStart();
    void startsAlthoughFirstIsSilent();
    void startsOnGarbage();
    void sweepsWhatAKilledRenderLeft();

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

    QByteArray log() const
    {
        QByteArray all;
        const QDir folder(m_data->filePath(QStringLiteral("log")));
        for (const QString &name : folder.entryList({QStringLiteral("log_*.txt")})) {
            QFile file(folder.filePath(name));
            file.open(QIODevice::ReadOnly);
            all += file.readAll();
        }
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

void VelmoraStartTest::init()
{
    m_data = std::make_unique<QTemporaryDir>();
    QVERIFY(m_data->isValid());
}

void VelmoraStartTest::cleanup()
{
    m_metrics.clear();
}

void VelmoraStartTest::firstStart()
{
    HttpServer server;
    m_metrics = server.url().toString();
    QFile services(m_data->filePath(QStringLiteral("services.ini")));
    QVERIFY(services.open(QIODevice::WriteOnly));
    services.write("[metrics]\naddress=http://127.0.0.1:1/\n");
    services.close();
    QFile settings(m_data->filePath(QStringLiteral("settings.ini")));
    QVERIFY(settings.open(QIODevice::WriteOnly));
    settings.write("[General]\nsendStatistics=true\n");
    settings.close();
    const auto program = start({QStringLiteral("--inst")});
    QTRY_VERIFY_WITH_TIMEOUT(logged(": main window\n"), 90000);
    QVERIFY(QDir(m_data->filePath(QStringLiteral("cache/data"))).exists());
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

void VelmoraStartTest::secondStartWakesTheFirst()
{
    const auto first = start();
    QTRY_VERIFY_WITH_TIMEOUT(logged(": main window\n"), 90000);
    const auto second = start();
    QVERIFY(second->waitForFinished());
    QCOMPARE(second->exitStatus(), QProcess::NormalExit);
    QCOMPARE(second->exitCode(), 0);
    QTRY_VERIFY(logged(": Message received:'Wake up!'\n"));
    QVERIFY(logged(": main window\n"));
    QCOMPARE(first->state(), QProcess::Running);
    end(*first);
}

void VelmoraStartTest::secondStartHandsOverItsFiles()
{
    const auto first = start();
    QTRY_VERIFY_WITH_TIMEOUT(logged(": main window\n"), 90000);
    const auto second = start({QStringLiteral("/no such/photo.png")});
    QVERIFY(second->waitForFinished());
    QCOMPARE(second->exitCode(), 0);
    QTRY_VERIFY(loggedBy(*first, "/no%20such/photo.png"));
    end(*first);
}

void VelmoraStartTest::killedProgramOffersToRestore()
{
    QFile settings(m_data->filePath(QStringLiteral("settings.ini")));
    QVERIFY(settings.open(QIODevice::WriteOnly));
    settings.write("[General]\nautosaveSeconds=1\n");
    settings.close();
    QImage photo(64, 48, QImage::Format_RGB32);
    photo.fill(Qt::darkCyan);
    const QString path = m_data->filePath(QStringLiteral("photo.png"));
    QVERIFY(photo.save(path));

    const auto first = start({path});
    const QString kept = m_data->filePath(QStringLiteral("autosave.json"));
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(kept), 90000);
    QVERIFY(!logged("Offer to restore"));
    end(*first);
    const auto second = start();
    QTRY_VERIFY_WITH_TIMEOUT(loggedBy(*second, "Offer to restore unsaved changes"), 90000);
    end(*second);
    // An unanswered question loses nothing.
    QVERIFY(QFile::exists(kept));
}

void VelmoraStartTest::startsAfterKill()
{
    const auto first = start();
    QTRY_VERIFY_WITH_TIMEOUT(logged(kReady), 90000);
    end(*first);
    QVERIFY(QFile::exists(m_data->filePath(QStringLiteral("velmora.lock"))));
    const auto second = start();
    QTRY_VERIFY_WITH_TIMEOUT(loggedBy(*second, ": main window"), 90000);
    end(*second);
}

void VelmoraStartTest::crashIsToldAtTheNextStart()
{
    const auto first = start();
    QTRY_VERIFY_WITH_TIMEOUT(logged(kReady), 90000);
    QVERIFY(ProcessControl::crash(first->processId()));
    QVERIFY(first->waitForFinished(120'000)); // Wine is slow with dumps
    QCOMPARE(first->exitStatus(), QProcess::CrashExit);
    const QString dump = m_data->filePath(QStringLiteral("velmora.dmp"));
    QVERIFY(QFile::exists(dump));

    const auto second = start();
    QTRY_VERIFY(logged(": Crash dump found: '" + dump.toUtf8() + "'"));
    const QRegularExpression where(
        QStringLiteral(": (Signal 11\\n.*/velmora\\+0x|Mini dump of \\d+ bytes\\n)"),
        QRegularExpression::DotMatchesEverythingOption);
    QTRY_VERIFY(where.match(QString::fromUtf8(log())).hasMatch());
    end(*second);
}

void VelmoraStartTest::startsAlthoughFirstIsSilent()
{
    const auto first = start();
    QTRY_VERIFY_WITH_TIMEOUT(logged(": main window\n"), 90000);
    // Stopped while it writes its settings it would keep their lock, and QSettings of the second
    // start would wait for that without an end.
    QTRY_VERIFY(QFile::exists(m_data->filePath(QStringLiteral("settings.ini"))));
    QTRY_VERIFY(!QFile::exists(m_data->filePath(QStringLiteral("settings.ini.lock"))));
    QVERIFY(ProcessControl::freeze(first->processId()));
    const auto second = start();
    QTRY_VERIFY_WITH_TIMEOUT(loggedBy(*second, ": main window"), 90000);
    end(*second);
    end(*first);
}

void VelmoraStartTest::startsOnGarbage()
{
    QByteArray garbage;
    for (int i = 0; i < 20000; ++i)
        garbage += static_cast<char>(i * i % 251);
    const QByteArray settings =
        "[General]\nlocale=xx\nresolution=@Variant(\\0\\0)\ndefaultTime=-7e99\ngeometry=\"no\n"
        "transitionTime=@Invalid()\nfolder[=\nautosaveSeconds=soon\n[[\n" +
        garbage;
    for (const char *name : {"settings.ini", "services.ini", "project_history.json"}) {
        QFile file(m_data->filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(qstrcmp(name, "settings.ini") == 0 ? settings : garbage);
    }
    const auto program = start();
    QTRY_VERIFY_WITH_TIMEOUT(logged(": main window\n"), 90000);
    // There is no such translation, so that the texts stay English.
    QVERIFY(log().contains("Load translation: velmora_xx"));
    QVERIFY(!program->waitForFinished(1000));
    end(*program);
}

void VelmoraStartTest::sweepsWhatAKilledRenderLeft()
{
    const QString render = m_data->filePath(QStringLiteral("cache/data/render-dead01"));
    QVERIFY(QDir().mkpath(render + QStringLiteral("/video")));
    QFile lock(render + QStringLiteral("/render.lock"));
    QVERIFY(lock.open(QIODevice::WriteOnly));
    lock.write(deadLock());
    lock.close();
    const auto program = start();
    QTRY_VERIFY_WITH_TIMEOUT(!QFile::exists(render), 90000);
    QTRY_VERIFY_WITH_TIMEOUT(logged(": main window\n"), 90000);
    end(*program);
}

QTEST_GUILESS_MAIN(VelmoraStartTest)
#include "VelmoraStartTest.moc"
