// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SingleInstance.h"
#include "helpers/ProcessControl.h"
#include "helpers/TestProcess.h"
#include "platform/LocalServerName.h"

#include <QLocalSocket>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>

#include <memory>

using namespace velmora;

class SingleInstanceTest : public QObject
{
    Q_OBJECT

private slots:
    void deliversText_data();
    void deliversText();
    void deliversManyPaths();
    void killedOwnerIsReplaced();
    void silentOwnerTimesOut();
    void releasedOwnerIsReplaced();
    void foldersAreIndependent();
    void survivesForeignClients_data();
    void survivesForeignClients();

private:
    static QByteArray send(const QString &folder, const QString &text, int timeoutMs)
    {
        QProcess process;
        process.start(testProcessPath(), {QStringLiteral("--send-instance"), folder, text,
                                          QString::number(timeoutMs)});
        // The receiving object lives in this thread, so its event loop has to go on.
        QSignalSpy finished(&process,
                            QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished));
        finished.wait(20000);
        return process.readAllStandardOutput().trimmed();
    }
};

void SingleInstanceTest::deliversText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("usual") << QStringLiteral("Wake up!");
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("other letters") << QStringLiteral("gr\u00fc\u00dfe \u65e5\u672c\nline");
    QTest::newRow("long") << QString(30000, QLatin1Char('x'));
}

void SingleInstanceTest::deliversText()
{
    QFETCH(QString, text);
    const QTemporaryDir folder;
    const SingleInstance first(folder.path());
    QSignalSpy received(&first, &SingleInstance::messageReceived);
    QVERIFY(!first.isRunning());
    QCOMPARE(send(folder.path(), text, 5000), QByteArray("delivered"));
    QTRY_COMPARE(received.size(), 1);
    QCOMPARE(received.first().first().toString(), text);
}

void SingleInstanceTest::deliversManyPaths()
{
    const QTemporaryDir folder;
    const SingleInstance first(folder.path());
    QSignalSpy received(&first, &SingleInstance::messageReceived);
    // More than a command line holds.
    const QString text(1 << 20, QLatin1Char('x'));
    bool delivered = false;
    const std::unique_ptr<QThread> sender(QThread::create(
        [&] { delivered = SingleInstance(folder.path()).sendMessage(text, 5000); }));
    sender->start();
    QTRY_VERIFY(sender->isFinished());
    QVERIFY(delivered);
    QTRY_COMPARE(received.size(), 1);
    QCOMPARE(received.first().first().toString(), text);
}

void SingleInstanceTest::killedOwnerIsReplaced()
{
    const QTemporaryDir folder;
    QProcess owner;
    owner.start(testProcessPath(), {QStringLiteral("--hold-instance"), folder.path()});
    QCOMPARE(nextLine(owner), QByteArray("first"));
    QVERIFY(SingleInstance(folder.path()).isRunning());
    owner.kill();
    QVERIFY(owner.waitForFinished());
    // Its lock file and its socket lie there still.
    QVERIFY(QFile::exists(folder.filePath(QStringLiteral("velmora.lock"))));

    const SingleInstance next(folder.path());
    QVERIFY(!next.isRunning());
    QSignalSpy received(&next, &SingleInstance::messageReceived);
    QCOMPARE(send(folder.path(), QStringLiteral("hello"), 5000), QByteArray("delivered"));
    QTRY_COMPARE(received.size(), 1);
}

void SingleInstanceTest::silentOwnerTimesOut()
{
    const QTemporaryDir folder;
    QProcess owner;
    owner.start(testProcessPath(), {QStringLiteral("--hold-instance"), folder.path()});
    QCOMPARE(nextLine(owner), QByteArray("first"));
    QVERIFY(ProcessControl::freeze(owner.processId()));
    SingleInstance second(folder.path());
    QVERIFY(second.isRunning());
    QVERIFY(!second.sendMessage(QStringLiteral("Wake up!"), 200));

    owner.kill();
    QVERIFY(owner.waitForFinished());
    QVERIFY(!second.sendMessage(QStringLiteral("Wake up!"), 200));
    QVERIFY(!second.isRunning()); // The place was free by then.
}

void SingleInstanceTest::releasedOwnerIsReplaced()
{
    const QTemporaryDir folder;
    SingleInstance first(folder.path());
    QSignalSpy old(&first, &SingleInstance::messageReceived);
    first.release();
    const SingleInstance next(folder.path());
    QVERIFY(!next.isRunning());
    QSignalSpy received(&next, &SingleInstance::messageReceived);
    QCOMPARE(send(folder.path(), QStringLiteral("hello"), 5000), QByteArray("delivered"));
    QTRY_COMPARE(received.size(), 1);
    QCOMPARE(old.size(), 0);
}

void SingleInstanceTest::foldersAreIndependent()
{
    const QTemporaryDir one;
    const QTemporaryDir two;
    const SingleInstance first(one.path());
    const SingleInstance second(two.path());
    QVERIFY(!first.isRunning());
    QVERIFY(!second.isRunning());
}

void SingleInstanceTest::survivesForeignClients_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("huge length") << QByteArray("\x7f\xff\xff\xff garbage");
    QTest::newRow("flood") << QByteArray(1 << 23, '\x7f');
}

void SingleInstanceTest::survivesForeignClients()
{
    QFETCH(QByteArray, bytes);
    const QTemporaryDir folder;
    const SingleInstance first(folder.path());
    QSignalSpy received(&first, &SingleInstance::messageReceived);
    QLocalSocket client;
    client.connectToServer(localServerName(folder.path()));
    QVERIFY(client.waitForConnected());
    client.write(bytes);
    client.flush();
    QCOMPARE(send(folder.path(), QStringLiteral("after"), 5000), QByteArray("delivered"));
    QTRY_COMPARE(received.size(), 1);
    QCOMPARE(received.first().first().toString(), QStringLiteral("after"));
}

QTEST_GUILESS_MAIN(SingleInstanceTest)
#include "SingleInstanceTest.moc"
