// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/CrashDump.h"
#include "helpers/TestProcess.h"

#include <QFile>
#include <QTemporaryDir>

#include <csignal>

using namespace velmora;

constexpr int kLongestDump = 120'000; // ms; Wine reads the symbols of all libraries first

class CrashDumpTest : public QObject
{
    Q_OBJECT

private slots:
    void crashLeavesDump_data()
    {
        QTest::addColumn<QString>("crash");
        QTest::newRow("access violation") << QStringLiteral("--crash");
        QTest::newRow("stack overflow") << QStringLiteral("--overflow-stack");
    }

    void crashLeavesDump()
    {
        QFETCH(QString, crash);
        const QString file =
            m_folder.filePath(QStringLiteral("gr\u00fc\u00dfe \u65e5%1.dmp").arg(crash));
        QProcess process;
        process.start(testProcessPath(), {QStringLiteral("--crash-dump"), file, crash});
        QVERIFY(process.waitForFinished(kLongestDump));
        // The process ends by the exception as if there were no handler.
        QCOMPARE(process.exitStatus(), QProcess::CrashExit);
        QVERIFY(isMiniDump(file));
        QCOMPARE(CrashDump::describe(file).size(), 1);
    }

    void abortLeavesDump()
    {
        const QString file = m_folder.filePath(QStringLiteral("abort.dmp"));
        QProcess process;
        process.start(testProcessPath(),
                      {QStringLiteral("--write-dump"), QStringLiteral("--crash-dump"), file,
                       QStringLiteral("--raise"), QString::number(SIGABRT),
                       QStringLiteral("--exit"), QStringLiteral("3")});
        QVERIFY(process.waitForFinished(kLongestDump));
        QCOMPARE(nextLine(process), QByteArray("refused")); // Not installed yet.
        QCOMPARE(process.exitCode(), 3);
        QVERIFY(isMiniDump(file));
    }

    void unusableFolderIsNoObstacle()
    {
        QProcess process;
        process.start(testProcessPath(),
                      {QStringLiteral("--crash-dump"),
                       m_folder.filePath(QStringLiteral("no/x.dmp")), QStringLiteral("--crash")});
        QVERIFY(process.waitForFinished(kLongestDump));
        QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    }

    void describesNothingFromAnEmptyFile()
    {
        QFile file(m_folder.filePath(QStringLiteral("empty.dmp")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        QCOMPARE(CrashDump::describe(file.fileName()), QStringList());
    }

private:
    static bool isMiniDump(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) && file.read(4) == "MDMP" && file.size() > 1000;
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(CrashDumpTest)
#include "CrashDumpTest.moc"
