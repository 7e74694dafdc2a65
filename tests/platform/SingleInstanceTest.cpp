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
    void init()
    {
        m_place = std::make_unique<QTemporaryDir>();
        m_folder = m_place->path();
    }

    void deliversText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("usual") << "Wake up!";
        QTest::newRow("empty") << "";
        QTest::newRow("other letters") << QStringLiteral("gr\u00fc\u00dfe \u65e5\u672c\nline");
    }

    void deliversText()
    {
        QFETCH(QString, text);
        receives(SingleInstance(m_folder), text);
    }

    void deliversManyPaths()
    {
        const SingleInstance first(m_folder);
        QSignalSpy received(&first, &SingleInstance::messageReceived);
        // More than a command line holds.
        const QString text(1 << 20, QLatin1Char('x'));
        bool delivered = false;
        const std::unique_ptr<QThread> sender(
            QThread::create([&] { delivered = SingleInstance(m_folder).sendMessage(text, 5000); }));
        sender->start();
        QTRY_VERIFY(sender->isFinished());
        QVERIFY(delivered);
        QTRY_COMPARE(received.size(), 1);
        QCOMPARE(received.first().first().toString(), text);
    }

    void killedOwnerIsReplaced()
    {
        QProcess owner;
        holdIn(owner);
        QVERIFY(SingleInstance(m_folder).isRunning());
        owner.kill();
        QVERIFY(owner.waitForFinished());
        // Its lock file and its socket lie there still.
        QVERIFY(QFile::exists(m_folder + QStringLiteral("/velmora.lock")));
        receives(SingleInstance(m_folder));
    }

    void silentOwnerTimesOut()
    {
        QProcess owner;
        holdIn(owner);
        QVERIFY(ProcessControl::freeze(owner.processId()));
        SingleInstance second(m_folder);
        QVERIFY(second.isRunning());
        QVERIFY(!second.sendMessage(QStringLiteral("Wake up!"), 200));

        owner.kill();
        QVERIFY(owner.waitForFinished());
        QVERIFY(!second.sendMessage(QStringLiteral("Wake up!"), 200));
        QVERIFY(!second.isRunning()); // The place was free by then.
    }

    void releasedOwnerIsReplaced()
    {
        SingleInstance first(m_folder);
        QSignalSpy old(&first, &SingleInstance::messageReceived);
        first.release();
        receives(SingleInstance(m_folder));
        QCOMPARE(old.size(), 0);
    }

    void foldersAreIndependent()
    {
        const QTemporaryDir other;
        const SingleInstance first(m_folder);
        QVERIFY(!first.isRunning());
        QVERIFY(!SingleInstance(other.path()).isRunning());
    }

    void survivesForeignClients_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("huge length") << QByteArray("\x7f\xff\xff\xff garbage");
        QTest::newRow("flood") << QByteArray(1 << 23, '\x7f');
    }

    void survivesForeignClients()
    {
        QFETCH(QByteArray, bytes);
        const SingleInstance first(m_folder);
        QLocalSocket client;
        client.connectToServer(localServerName(m_folder));
        QVERIFY(client.waitForConnected());
        client.write(bytes);
        client.flush();
        receives(first);
    }

private:
    /// Has another process be the first one.
    void holdIn(QProcess &owner) const
    {
        owner.start(testProcessPath(), {QStringLiteral("--hold-instance"), m_folder});
        QCOMPARE(nextLine(owner), QByteArray("first"));
    }

    /// Another process finds @p first, which hears the text and nothing else.
    void receives(const SingleInstance &first, const QString &text = QStringLiteral("hello")) const
    {
        QVERIFY(!first.isRunning());
        QSignalSpy received(&first, &SingleInstance::messageReceived);
        QProcess process;
        // The receiving object lives in this thread, so its event loop has to go on.
        QSignalSpy finished(&process,
                            QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished));
        process.start(testProcessPath(),
                      {QStringLiteral("--send-instance"), m_folder, text, QStringLiteral("5000")});
        finished.wait(20000);
        QCOMPARE(process.readAllStandardOutput().trimmed(), QByteArray("delivered"));
        QTRY_COMPARE(received.size(), 1);
        QCOMPARE(received.first().first().toString(), text);
    }

    std::unique_ptr<QTemporaryDir> m_place;
    QString m_folder;
};

QTEST_GUILESS_MAIN(SingleInstanceTest)
#include "SingleInstanceTest.moc"
