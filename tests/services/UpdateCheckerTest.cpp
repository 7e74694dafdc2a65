// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/UpdateChecker.h"
#include "app/AppSettings.h"
#include "app/Identity.h"
#include "helpers/LogCapture.h"

#include <QCryptographicHash>
#include <QSettings>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>
#include <QUrlQuery>

using namespace velmora;

namespace
{

/// Gives every request the same raw answer; without one it keeps silent.
class AnsweringServer : public QTcpServer
{
public:
    explicit AnsweringServer(const QByteArray &answer) : m_answer(answer)
    {
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
                const QByteArray data = socket->readAll();
                requests.append(data.left(data.indexOf("\r\n")));
                socket->write(m_answer);
                socket->disconnectFromHost();
            });
        });
        listen(QHostAddress::LocalHost);
    }
    QByteArray address() const
    {
        return "http://127.0.0.1:" + QByteArray::number(serverPort()) + "/version";
    }

    QList<QByteArray> requests;

private:
    QByteArray m_answer;
};

QByteArray ok(const QByteArray &body)
{
    return "HTTP/1.1 200 OK\r\nContent-Type: text/plain\r\nContent-Length: " +
           QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" + body;
}

} // namespace

class UpdateCheckerTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void answers_data();
    void answers();
    void badServers_data();
    void badServers();
    void requestIsComplete();
    void nothingIsSent_data();
    void nothingIsSent();
    void versions_data();
    void versions();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QSettings> m_store;
};

void UpdateCheckerTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_store = openSettings(m_folder->filePath(QStringLiteral("settings.ini")));
    qunsetenv("VELMORA_UPDATE_ADDRESS");
    qputenv("VELMORA_UPDATE_PRODUCT", "vel & mora");
    qputenv("VELMORA_UPDATE_KEY", "k");
}

void UpdateCheckerTest::answers_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("version");
    QTest::newRow("newer") << QByteArray("99.0.0") << QStringLiteral("99.0.0");
    QTest::newRow("with line end") << QByteArray("99.1.2\r\n") << QStringLiteral("99.1.2");
    QTest::newRow("own") << programVersion().toLatin1() << QString();
    QTest::newRow("older") << QByteArray("0.9.9") << QString();
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("page") << QByteArray("<html>99.0.0</html>") << QString();
    QTest::newRow("bytes") << QByteArray("99.0.0\0\xff", 8) << QString();
    QTest::newRow("huge") << QByteArray(5000000, '9') << QString();
}

void UpdateCheckerTest::answers()
{
    QFETCH(QByteArray, body);
    QFETCH(QString, version);
    AnsweringServer server(ok(body));
    qputenv("VELMORA_UPDATE_ADDRESS", server.address());
    UpdateChecker checker(ServicesConfig(), *m_store);
    QSignalSpy found(&checker, &UpdateChecker::newVersionAvalible);
    LogCapture log;
    checker.checkUpdates();
    checker.checkUpdates(); // While one is in flight there is no second one.
    QTRY_VERIFY(checker.isIdle());
    QCOMPARE(server.requests.size(), 1);
    QCOMPARE(found.size(), version.isEmpty() ? 0 : 1);
    if (!version.isEmpty()) {
        QCOMPARE(found.first().first().toString(), version);
        QVERIFY(log.lines().contains(QStringLiteral("Update response:'%1'").arg(version)));
        QVERIFY(log.lines().contains(QStringLiteral("Has new version:'%1'").arg(version)));
    }
}

void UpdateCheckerTest::badServers_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::newRow("error") << QByteArray(
        "HTTP/1.1 500 Oops\r\nContent-Length: 6\r\nConnection: close\r\n\r\n99.0.0");
    QTest::newRow("not HTTP") << QByteArray("99.0.0\r\n\r\n");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("cut off") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 60\r\n\r\n99.0.0");
    QTest::newRow("redirect to a file") << QByteArray(
        "HTTP/1.1 302 Found\r\nLocation: file:///etc/hostname\r\nContent-Length: 0\r\n\r\n");
    QTest::newRow("without end") << "HTTP/1.1 200 OK\r\n\r\n" + QByteArray(200000, '9');
}

void UpdateCheckerTest::badServers()
{
    QFETCH(QByteArray, answer);
    AnsweringServer server(answer);
    qputenv("VELMORA_UPDATE_ADDRESS", server.address());
    UpdateChecker checker(ServicesConfig(), *m_store);
    QSignalSpy found(&checker, &UpdateChecker::newVersionAvalible);
    checker.checkUpdates();
    QTRY_VERIFY(checker.isIdle());
    QVERIFY(!server.requests.isEmpty());
    QCOMPARE(found.size(), 0);
}

void UpdateCheckerTest::requestIsComplete()
{
    AnsweringServer server(ok("1.0.0"));
    qputenv("VELMORA_UPDATE_ADDRESS", server.address());
    UpdateChecker checker(ServicesConfig(), *m_store);
    LogCapture log;
    checker.checkUpdates();
    QTRY_VERIFY(checker.isIdle());
    const QString line = QString::fromLatin1(server.requests.value(0));
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

void UpdateCheckerTest::nothingIsSent_data()
{
    QTest::addColumn<bool>("wanted");
    QTest::addColumn<QByteArray>("address");
    QTest::newRow("switched off") << false << QByteArray("server");
    QTest::newRow("no address") << true << QByteArray();
    QTest::newRow("no host") << true << QByteArray("nonsense");
    QTest::newRow("a file") << true << QByteArray("file:///etc/hostname");
}

void UpdateCheckerTest::nothingIsSent()
{
    QFETCH(bool, wanted);
    QFETCH(QByteArray, address);
    AnsweringServer server(ok("99.0.0"));
    qputenv("VELMORA_UPDATE_ADDRESS", address == "server" ? server.address() : address);
    m_store->setValue(QStringLiteral("autoUpdates"), wanted);
    UpdateChecker checker(ServicesConfig(), *m_store);
    LogCapture log;
    checker.checkUpdates();
    QVERIFY(checker.isIdle());
    QCOMPARE(log.lines(), QStringList());
    QVERIFY(!m_store->contains(QStringLiteral("installation_id")));
}

void UpdateCheckerTest::versions_data()
{
    QTest::addColumn<QByteArray>("offered");
    QTest::addColumn<bool>("newer");
    QTest::newRow("first number") << QByteArray("4.0.0") << true;
    QTest::newRow("first number less") << QByteArray("2.9.9") << false;
    QTest::newRow("second number") << QByteArray("3.5.0") << true;
    QTest::newRow("third number") << QByteArray("3.4.7") << true;
    QTest::newRow("not as text") << QByteArray("3.4.10") << true;
    QTest::newRow("same") << QByteArray("3.4.6") << false;
    QTest::newRow("two numbers") << QByteArray("4.0") << false;
    QTest::newRow("four numbers") << QByteArray("4.0.0.0") << false;
    QTest::newRow("negative") << QByteArray("4.-1.0") << false;
    QTest::newRow("sign") << QByteArray("+4.0.0") << false;
    QTest::newRow("too large") << QByteArray("4.0.99999999999") << false;
    QTest::newRow("other digits") << QByteArray("\xd9\xa4.0.0") << false;
}

void UpdateCheckerTest::versions()
{
    QFETCH(QByteArray, offered);
    QFETCH(bool, newer);
    QCOMPARE(!UpdateChecker::newerVersion(offered, QStringLiteral("3.4.6")).isEmpty(), newer);
}

QTEST_GUILESS_MAIN(UpdateCheckerTest)
#include "UpdateCheckerTest.moc"
