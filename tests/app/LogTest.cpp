// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Log.h"
#include "app/Paths.h"
#include "helpers/TestProcess.h"

#include <QDate>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <cstdio>
#include <memory>
#include <unistd.h>
#include <vector>

using namespace velmora;

namespace
{

Q_LOGGING_CATEGORY(lcSample, "velmora.sample")

const QString kLine = QStringLiteral(R"(\[\d\d:\d\d:\d\d\]\[%1:[0-9a-f]+\]\[%2\]\[%3\] %4: %5\n)");

} // namespace

class LogTest : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_data = std::make_unique<QTemporaryDir>();
        qputenv("VELMORA_DATA_DIR", QFile::encodeName(m_data->path()));
    }

    void cleanup() { Log::uninstall(); }

    void lineForm_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("level");
        QTest::newRow("debug") << int(QtDebugMsg) << "DEBUG";
        QTest::newRow("info") << int(QtInfoMsg) << "INFO";
        QTest::newRow("warning") << int(QtWarningMsg) << "WARNING";
        QTest::newRow("critical") << int(QtCriticalMsg) << "ERROR";
        QTest::newRow("fatal") << int(QtFatalMsg) << "ERROR";
    }

    void lineForm()
    {
        QFETCH(int, type);
        QFETCH(QString, level);
        const QMessageLogContext context("/some/folder/File.cpp", 12, "f()", "velmora.x");
        const QString text = QStringLiteral("50%1 of %2 \u00fc");
        const QString line = Log::formatLine(static_cast<QtMsgType>(type), context, text);
        const QString pattern = kLine.arg(
            QString::number(QCoreApplication::applicationPid()), QStringLiteral("3\\.4\\.6"), level,
            QStringLiteral("velmora\\.x\\(File\\.cpp:12\\)"), QRegularExpression::escape(text));
        QVERIFY2(
            QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(line).hasMatch(),
            qPrintable(line));
    }

    void contextHasNoFolder()
    {
        const QMessageLogContext windows("C:\\build\\src\\File.cpp", 1, nullptr, nullptr);
        QVERIFY(Log::formatLine(QtInfoMsg, windows, QStringLiteral("x"))
                    .endsWith(QStringLiteral("] default(File.cpp:1): x\n")));
        const QMessageLogContext none;
        QVERIFY(Log::formatLine(QtInfoMsg, none, QStringLiteral("x"))
                    .endsWith(QStringLiteral("] default: x\n")));
    }

    void severalLines_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const char *text, const char *expected) {
            QTest::newRow(name) << text << expected;
        };
        row("one", "a", "a");
        row("empty", "", "");
        row("unix", "a\nb\n", "a|b");
        row("windows", "a\r\n\r\nb", "a||b");
        row("progress", "frame 1\rframe 2", "frame 1|frame 2");
    }

    void severalLines()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        const QMessageLogContext context("F.cpp", 1, nullptr, "c");
        QStringList lines = Log::formatLine(QtInfoMsg, context, text).split(QLatin1Char('\n'));
        QCOMPARE(lines.takeLast(), QString());
        const QString start = QStringLiteral("[INFO] c(F.cpp:1): ");
        for (QString &line : lines)
            line.remove(0, line.indexOf(start) + start.size());
        QCOMPARE(lines.join(QLatin1Char('|')), expected);
    }

    void writesToTodaysFile()
    {
        Log::install(QStringLiteral("log_tool"));
        qCWarning(lcSample) << "over there" << 5;
        const QString today = QDate::currentDate().toString(QStringLiteral("yyyy_MM_dd"));
        QFile file(m_data->filePath(QStringLiteral("log/log_tool_%1.txt").arg(today)));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray line = file.readAll();
        QVERIFY(line.contains("][WARNING] velmora.sample(LogTest.cpp:"));
        QVERIFY(line.endsWith("over there 5\n"));
        QCOMPARE(Log::currentFile(), file.fileName());
    }

    void makesItsFolderAgain()
    {
        Log::install(QStringLiteral("log"));
        qInfo("one");
        QVERIFY(QDir(Paths::logFolder()).removeRecursively());
        qInfo("two");
        QVERIFY(content().endsWith("two\n"));
    }

    void troubleIsShownWhenNothingCanBeWritten()
    {
        QTemporaryFile shown;
        QVERIFY(shown.open());
        qputenv("VELMORA_DATA_DIR", QFile::encodeName(shown.fileName() + QStringLiteral("/x")));
        std::fflush(stderr);
        const int before = ::dup(STDERR_FILENO);
        ::dup2(shown.handle(), STDERR_FILENO);
        Log::install(QStringLiteral("log"));
        qInfo("detail");
        qWarning("trouble");
        std::fflush(stderr);
        ::dup2(before, STDERR_FILENO);
        ::close(before);
        shown.seek(0);
        const QByteArray text = shown.readAll();
        QVERIFY2(text.contains("trouble"), text.constData());
        QVERIFY2(!text.contains("detail"), text.constData());
    }

    void manyThreadsAndProcesses()
    {
        constexpr int kProcesses = 3;
        constexpr int kThreads = 8;
        constexpr int kLines = 200;
        Log::install(QStringLiteral("log"));
        const QString file = Log::currentFile();
        Log::uninstall();
        std::vector<std::unique_ptr<QProcess>> processes;
        for (int i = 0; i < kProcesses; ++i) {
            processes.push_back(std::make_unique<QProcess>());
            processes.back()->start(
                testProcessPath(),
                {QStringLiteral("--log"), QString::number(kThreads), QString::number(kLines)});
        }
        for (const auto &process : processes)
            QVERIFY(process->waitForFinished());

        QFile log(file);
        QVERIFY(log.open(QIODevice::ReadOnly));
        const QString pattern =
            kLine.arg(QStringLiteral("(\\d+)"), QStringLiteral("3\\.4\\.6"), QStringLiteral("INFO"),
                      QStringLiteral("default\\(main.cpp:\\d+\\)"),
                      QStringLiteral("process \\1 thread (\\d+) line (\\d+) (\\**)"));
        const QRegularExpression whole(QRegularExpression::anchoredPattern(pattern));
        QHash<QString, int> nextOfThread;
        int count = 0;
        while (!log.atEnd()) {
            const QString line = QString::fromUtf8(log.readLine());
            const QRegularExpressionMatch match = whole.match(line);
            QVERIFY2(match.hasMatch(), qPrintable(line));
            const int number = match.captured(3).toInt();
            QCOMPARE(match.capturedLength(4), number % 200);
            int &expected = nextOfThread[match.captured(1) + QLatin1Char(':') + match.captured(2)];
            QCOMPARE(number, expected++);
            ++count;
        }
        QCOMPARE(count, kProcesses * kThreads * kLines);
    }

    void secretsStayOut()
    {
        Log::install(QStringLiteral("log"));
        qCInfo(lcSample) << "Answer:" << QByteArray("{\"access_token\": \"top-secret\", \"x\": 1}");
        QVERIFY(!content().contains("top-secret"));
        QVERIFY(content().contains("access_token"));
    }

private:
    static QByteArray content()
    {
        QFile file(Log::currentFile());
        file.open(QIODevice::ReadOnly);
        return file.readAll();
    }

    std::unique_ptr<QTemporaryDir> m_data;
};

QTEST_GUILESS_MAIN(LogTest)
#include "LogTest.moc"
