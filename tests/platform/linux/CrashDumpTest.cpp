// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/CrashDump.h"
#include "helpers/TestProcess.h"

#include <QTemporaryDir>

#include <csignal>

using namespace velmora;

class CrashDumpTest : public QObject
{
    Q_OBJECT

private slots:
    void crashLeavesDump_data();
    void crashLeavesDump();
    void writeGoesOn();
    void unusableFolderIsNoObstacle();
    void describesNothingFrom_data();
    void describesNothingFrom();

private:
    QTemporaryDir m_folder;
};

void CrashDumpTest::crashLeavesDump_data()
{
    QTest::addColumn<int>("signalNumber");
    QTest::newRow("SIGSEGV") << SIGSEGV;
    QTest::newRow("SIGABRT") << SIGABRT;
    QTest::newRow("SIGBUS") << SIGBUS;
    QTest::newRow("SIGFPE") << SIGFPE;
    QTest::newRow("SIGILL") << SIGILL;
}

void CrashDumpTest::crashLeavesDump()
{
    QFETCH(int, signalNumber);
    const QString file = m_folder.filePath(QStringLiteral("velmora%1.dmp").arg(signalNumber));
    QProcess process;
    process.start(testProcessPath(), {QStringLiteral("--crash-dump"), file,
                                      QStringLiteral("--raise"), QString::number(signalNumber)});
    QVERIFY(process.waitForFinished());
    // The process ends by the signal as if there were no handler.
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    QCOMPARE(process.exitCode(), signalNumber);

    const QStringList lines = CrashDump::describe(file);
    QVERIFY(lines.size() > 3);
    QCOMPARE(lines.first(), QStringLiteral("Signal %1").arg(signalNumber));
    QCOMPARE(lines.filter(QStringLiteral("/testprocess+0x")).isEmpty(), false);
    QCOMPARE(lines.filter(QStringLiteral("/libc.so")).isEmpty(), false);
}

void CrashDumpTest::writeGoesOn()
{
    const QString file = m_folder.filePath(QStringLiteral("written.dmp"));
    QProcess process;
    process.start(testProcessPath(),
                  {QStringLiteral("--write-dump"), QStringLiteral("--crash-dump"), file,
                   QStringLiteral("--write-dump"), QStringLiteral("--exit"), QStringLiteral("3")});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardOutput(), QByteArray("refused\nwritten\n"));
    QCOMPARE(process.exitCode(), 3);
    QCOMPARE(CrashDump::describe(file).value(0), QStringLiteral("Signal 0"));
}

void CrashDumpTest::unusableFolderIsNoObstacle()
{
    QProcess process;
    process.start(testProcessPath(),
                  {QStringLiteral("--crash-dump"), QStringLiteral("/proc/none/x.dmp"),
                   QStringLiteral("--raise"), QString::number(SIGSEGV)});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), SIGSEGV);
}

void CrashDumpTest::describesNothingFrom_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("short") << QByteArray("abc");
    QTest::newRow("text") << QByteArray("signal 11\nsignal 11\nsignal 11\n");
    QTest::newRow("zeros") << QByteArray(4096, '\0');
    QTest::newRow("no end") << QByteArray(100000, '\xff');
}

void CrashDumpTest::describesNothingFrom()
{
    QFETCH(QByteArray, content);
    QFile file(m_folder.filePath(QStringLiteral("foreign.dmp")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    QCOMPARE(CrashDump::describe(file.fileName()), QStringList());
}

QTEST_GUILESS_MAIN(CrashDumpTest)
#include "CrashDumpTest.moc"
