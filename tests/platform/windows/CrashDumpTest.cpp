// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/CrashDump.h"
#include "helpers/Files.h"
#include "helpers/TestProcess.h"
#include "helpers/Words.h"

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
        QTest::newRow("access violation") << "--crash";
        QTest::newRow("stack overflow") << "--overflow-stack";
    }

    void crashLeavesDump()
    {
        QFETCH(QString, crash);
        const QString file =
            m_folder.filePath(QStringLiteral("gr\u00fc\u00dfe \u65e5%1.dmp").arg(crash));
        QProcess process;
        QVERIFY(runTestProcess(process, words("--crash-dump") << file << crash, kLongestDump));
        // The process ends by the exception as if there were no handler.
        QCOMPARE(process.exitStatus(), QProcess::CrashExit);
        QVERIFY(isMiniDump(file));
        QCOMPARE(CrashDump::describe(file).size(), 1);
    }

    void abortLeavesDump()
    {
        const QString file = m_folder.filePath(QStringLiteral("abort.dmp"));
        QProcess process;
        QVERIFY(runTestProcess(process,
                               words("--write-dump --crash-dump")
                                   << file << words("--raise") << QString::number(SIGABRT)
                                   << words("--exit 3"),
                               kLongestDump));
        QCOMPARE(nextLine(process), QByteArray("refused")); // Not installed yet.
        QCOMPARE(process.exitCode(), 3);
        QVERIFY(isMiniDump(file));
    }

    void unusableFolderIsNoObstacle()
    {
        const QString file = m_folder.filePath(QStringLiteral("no/x.dmp"));
        QProcess process;
        QVERIFY(runTestProcess(process, words("--crash-dump") << file << words("--crash"),
                               kLongestDump));
        QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    }

    void describesNothingFromAnEmptyFile()
    {
        const QString file = m_folder.filePath(QStringLiteral("empty.dmp"));
        QVERIFY(writeFile(file));
        QCOMPARE(CrashDump::describe(file), QStringList());
    }

private:
    static bool isMiniDump(const QString &path)
    {
        const QByteArray dump = readFile(path);
        return dump.startsWith("MDMP") && dump.size() > 1000;
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(CrashDumpTest)
#include "CrashDumpTest.moc"
