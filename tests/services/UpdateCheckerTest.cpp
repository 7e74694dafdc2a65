// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/UpdateChecker.h"
#include "app/AppSettings.h"
#include "app/Identity.h"
#include "helpers/HttpServer.h"
#include "helpers/LogCapture.h"

#include <QCryptographicHash>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUrlQuery>

using namespace velmora;

class UpdateCheckerTest : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_store = openSettings(m_folder->filePath(QStringLiteral("settings.ini")));
        m_server = std::make_unique<HttpServer>();
        qputenv("VELMORA_UPDATE_ADDRESS", m_server->url().toEncoded() + "/version");
        qputenv("VELMORA_UPDATE_PRODUCT", "vel & mora");
        qputenv("VELMORA_UPDATE_KEY", "k");
    }

    void answers_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QString>("version");
        const auto row = [](const char *name, const QByteArray &answer, const char *version = "") {
            QTest::newRow(name) << answer << version;
        };
        const QByteArray ok = "HTTP/1.1 200 OK\r\n\r\n";
        row("newer", ok + "99.0.0", "99.0.0");
        row("with line end", ok + "99.1.2\r\n", "99.1.2");
        row("own", ok + programVersion().toLatin1());
        row("page", ok + "<html>99.0.0</html>");
        row("bytes", ok + QByteArray("99.0.0\0\xff", 8));
        row("huge", ok + QByteArray(5000000, '9'));
        row("error", "HTTP/1.1 500 Oops\r\nContent-Length: 6\r\n\r\n99.0.0");
        row("not HTTP", "99.0.0\r\n\r\n");
        row("nothing", "");
        row("cut off", "HTTP/1.1 200 OK\r\nContent-Length: 60\r\n\r\n99.0.0");
        row("redirect to a file",
            "HTTP/1.1 302 Found\r\nLocation: file:///etc/hostname\r\nContent-Length: 0\r\n\r\n");
    }

    void answers()
    {
        QFETCH(QByteArray, answer);
        QFETCH(QString, version);
        m_server->setRawAnswer(answer);
        LogCapture log;
        QCOMPARE(check(), version);
        const bool newer = !version.isEmpty();
        // Qt asks some of the bad servers again.
        QVERIFY(newer ? m_server->requests.size() == 1 : !m_server->requests.isEmpty());
        const QStringList lines = log.lines();
        QCOMPARE(lines.contains(QStringLiteral("Has new version:'%1'").arg(version)), newer);
        QVERIFY(!newer || lines.contains(QStringLiteral("Update response:'%1'").arg(version)));
    }

    void requestIsComplete()
    {
        LogCapture log;
        QCOMPARE(check(), QString());
        const QString line = QString::fromLatin1(m_server->requests.value(0));
        const QUrl url(line.section(QLatin1Char(' '), 1, 1));
        QCOMPARE(url.path(), QStringLiteral("/version"));
        const QUrlQuery query(url);
        const QString machine = m_store->value(QStringLiteral("installation_id")).toString();
        QCOMPARE(machine.size(), 36);
        QCOMPARE(query.queryItemValue(QStringLiteral("ver")), programVersion());
        QCOMPARE(query.queryItemValue(QStringLiteral("pid"), QUrl::FullyDecoded),
                 QStringLiteral("vel & mora"));
        QCOMPARE(query.queryItemValue(QStringLiteral("mh")), machine);
        const QByteArray sum =
            (programVersion() + QStringLiteral("vel & mora") + machine).toUtf8() + "k";
        QCOMPARE(query.queryItemValue(QStringLiteral("h")).toLatin1(),
                 QCryptographicHash::hash(sum, QCryptographicHash::Md5).toHex());
        QVERIFY(line.indexOf(QStringLiteral("?ver=")) < line.indexOf(QStringLiteral("&pid=")));
        QVERIFY(log.lines().first().startsWith(QStringLiteral("Request url:'http://127.0.0.1:")));
    }

    void nothingIsSent_data()
    {
        QTest::addColumn<bool>("wanted");
        QTest::addColumn<QByteArray>("address");
        QTest::newRow("switched off") << false << QByteArray("server");
        QTest::newRow("no address") << true << QByteArray();
        QTest::newRow("no host") << true << QByteArray("nonsense");
        QTest::newRow("a file") << true << QByteArray("file:///etc/hostname");
    }

    void nothingIsSent()
    {
        QFETCH(bool, wanted);
        QFETCH(QByteArray, address);
        if (address != "server")
            qputenv("VELMORA_UPDATE_ADDRESS", address);
        m_store->setValue(QStringLiteral("autoUpdates"), wanted);
        UpdateChecker checker(ServicesConfig(), *m_store);
        LogCapture log;
        checker.checkUpdates();
        QVERIFY(checker.isIdle());
        QCOMPARE(log.lines(), QStringList());
        QVERIFY(!m_store->contains(QStringLiteral("installation_id")));
    }

    void versions_data()
    {
        QTest::addColumn<bool>("newer");
        for (const char *version : {"4.0.0", "3.5.0", "3.4.7", "3.4.10"})
            QTest::newRow(version) << true;
        for (const char *version : {"2.9.9", "3.4.6", "", "4.0", "4.0.0.0", "4.-1.0", "+4.0.0",
                                    "4.0.99999999999", "\xd9\xa4.0.0"})
            QTest::newRow(version) << false;
    }

    void versions()
    {
        QFETCH(bool, newer);
        const QByteArray offered = QTest::currentDataTag();
        QCOMPARE(!UpdateChecker::newerVersion(offered, QStringLiteral("3.4.6")).isEmpty(), newer);
    }

private:
    /// The version that is announced; empty for none.
    QString check()
    {
        UpdateChecker checker(ServicesConfig(), *m_store);
        QSignalSpy found(&checker, &UpdateChecker::newVersionAvalible);
        checker.checkUpdates();
        checker.checkUpdates(); // While one is in flight there is no second one.
        if (!QTest::qWaitFor([&] { return checker.isIdle(); }) || found.size() > 1)
            return QStringLiteral("no end, or more than one");
        return found.isEmpty() ? QString() : found.first().first().toString();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<HttpServer> m_server;
    std::unique_ptr<QSettings> m_store;
};

QTEST_GUILESS_MAIN(UpdateCheckerTest)
#include "UpdateCheckerTest.moc"
