// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/CrashDump.h"
#include "helpers/Files.h"
#include "helpers/TestProcess.h"
#include "helpers/Words.h"

#include <QTemporaryDir>

#include <csignal>

using namespace velmora;

class CrashDumpTest : public QObject
{
    Q_OBJECT

private slots:
    void crashLeavesDump_data()
    {
        QTest::addColumn<int>("signalNumber");
        QTest::newRow("SIGSEGV") << SIGSEGV;
        QTest::newRow("SIGABRT") << SIGABRT;
        QTest::newRow("SIGBUS") << SIGBUS;
        QTest::newRow("SIGFPE") << SIGFPE;
        QTest::newRow("SIGILL") << SIGILL;
    }

    void crashLeavesDump()
    {
        QFETCH(int, signalNumber);
        const QString number = QString::number(signalNumber);
        const QString file = m_folder.filePath(QStringLiteral("velmora%1.dmp").arg(number));
        QProcess process;
        QVERIFY(
            runTestProcess(process, words("--crash-dump") << file << words("--raise") << number));
        // The process ends by the signal as if there were no handler.
        QCOMPARE(process.exitStatus(), QProcess::CrashExit);
        QCOMPARE(process.exitCode(), signalNumber);

        const QStringList lines = CrashDump::describe(file);
        QVERIFY(lines.size() > 3);
        QCOMPARE(lines.first(), QStringLiteral("Signal ") + number);
        QVERIFY(!lines.filter(QStringLiteral("/testprocess+0x")).isEmpty());
        QVERIFY(!lines.filter(QStringLiteral("/libc.so")).isEmpty());
    }

    void writeGoesOn()
    {
        const QString file = m_folder.filePath(QStringLiteral("written.dmp"));
        QProcess process;
        QVERIFY(runTestProcess(process, words("--write-dump --crash-dump")
                                            << file << words("--write-dump --exit 3")));
        QCOMPARE(process.readAllStandardOutput(), QByteArray("refused\nwritten\n"));
        QCOMPARE(process.exitCode(), 3);
        QCOMPARE(CrashDump::describe(file).value(0), QStringLiteral("Signal 0"));
    }

    void unusableFolderIsNoObstacle()
    {
        QProcess process;
        QVERIFY(runTestProcess(process, words("--crash-dump /proc/none/x.dmp --crash")));
        QCOMPARE(process.exitCode(), SIGABRT);
    }

    void describesNothingFrom_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("short") << QByteArray("abc");
        QTest::newRow("text") << QByteArray("signal 11\nsignal 11\nsignal 11\n");
        QTest::newRow("zeros") << QByteArray(4096, '\0');
        QTest::newRow("no end") << QByteArray(100000, '\xff');
    }

    void describesNothingFrom()
    {
        QFETCH(QByteArray, content);
        const QString file = m_folder.filePath(QStringLiteral("foreign.dmp"));
        QVERIFY(writeFile(file, content));
        QCOMPARE(CrashDump::describe(file), QStringList());
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(CrashDumpTest)
#include "CrashDumpTest.moc"
