// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/FakeServices.h"
#include "sharing/upload/youtube/YoutubeHandler.h"

#include <QNetworkInterface>
#include <QSignalSpy>
#include <QTcpSocket>
#include <QTest>

#include <vector>

using namespace velmora;

namespace
{

const QString kState = QStringLiteral("the-state");
const QByteArray kGood = "GET /?code=4%2Fa%2Bb&state=the-state HTTP/1.1\r\nHost: x\r\n\r\n";

/// What the handler answers to @p request, sent in pieces of @p pieceSize bytes.
QByteArray ask(quint16 port, const QByteArray &request, int pieceSize = 1 << 20)
{
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, port);
    if (!QTest::qWaitFor([&] { return socket.state() == QAbstractSocket::ConnectedState; }))
        return "no connection";
    for (int i = 0; i < request.size() && socket.isOpen(); i += pieceSize) {
        socket.write(request.mid(i, pieceSize));
        socket.flush();
        QCoreApplication::processEvents();
    }
    if (!QTest::qWaitFor([&] { return socket.state() == QAbstractSocket::UnconnectedState; }))
        return "no end";
    return socket.readAll();
}

} // namespace

/// The port at which a sign-in waits for the browser, visited by it and by everybody else.
class LoopbackReplyHandlerTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_port = freePort();
        m_handler = std::make_unique<YoutubeHandler>(m_port);
        m_handler->setState(kState);
        QVERIFY(m_handler->open());
        m_codes = std::make_unique<QSignalSpy>(m_handler.get(),
                                               &YoutubeHandler::convertedCallbackReceived);
        m_denied = std::make_unique<QSignalSpy>(m_handler.get(), &LoopbackReplyHandler::denied);
    }

    void browserIsAnswered()
    {
        m_handler->acceptCode(QString()); // A page that ended without telling the code.
        QCOMPARE(m_codes->size(), 0);
        const QByteArray page = ask(m_port, kGood, 1); // Byte by byte.
        QVERIFY(page.startsWith("HTTP/1.1 200 OK\r\n"));
        QVERIFY(page.contains("Content-Type: text/html; charset=utf-8\r\n"));
        for (const char *part :
             {"data:image/png;base64,iVBOR", "Service has been connected", "successfully",
              "You can close this page", "#F4EBD1", "#282828", "#c3bcaf"})
            QVERIFY2(page.contains(part), part);
        QVERIFY(!page.contains("%1") && !page.contains("a+b") && !page.contains("the-state"));
        QTRY_COMPARE(m_codes->size(), 1);
        QCOMPARE(m_codes->at(0).at(0).toMap().value(QStringLiteral("code")).toString(),
                 QStringLiteral("4/a+b"));
    }

    void strayRequestsAreNot_data()
    {
        QTest::addColumn<QByteArray>("request");
        QTest::addColumn<QByteArray>("status");
        const char *lines[][3] = {
            {"icon", "GET /favicon.ico?state=the-state&code=x", "404"},
            {"no query", "GET /", "400"},
            {"no state", "GET /?code=x", "400"},
            {"wrong state", "GET /?code=x&state=the-statf", "400"},
            {"denial without state", "GET /?error=access_denied", "400"},
            {"state twice", "GET /?state=x&state=the-state&code=x", "400"},
            {"post", "POST /?code=x&state=the-state", "405"},
            {"options", "OPTIONS *", "400"},
            {"whole address", "GET http://127.0.0.1/?code=x&state=the-state", "400"}};
        for (const auto &line : lines)
            QTest::newRow(line[0])
                << line[1] + QByteArray(" HTTP/1.1\r\n\r\n") << QByteArray(line[2]);
        const QByteArray good = "GET /?code=x&state=the-state HTTP/1.1\r\n";
        const std::pair<const char *, QByteArray> garbage[] = {
            {"HTTP/2", "PRI * HTTP/2.0\r\n\r\nSM\r\n\r\n"},
            {"TLS", QByteArray("\x16\x03\x01\x02\x00\x01\x00\x01\xfc\x03\x03\r\n\r\n", 15)},
            {"zeros", QByteArray(20000, '\0')},
            {"endless line", "GET /?" + QByteArray(1000000, 'a')},
            {"endless head", good + QByteArray(20000, 'a')},
            {"tab", QByteArray(good + "\r\n").replace(' ', '\t')},
            {"blank", "\r\n\r\n"}};
        for (const auto &[name, request] : garbage)
            QTest::newRow(name) << request << QByteArray("400");
    }

    void strayRequestsAreNot()
    {
        QFETCH(QByteArray, request);
        QFETCH(QByteArray, status);
        const QByteArray page = ask(m_port, request);
        // A visitor who sends much more than is read may find the connection reset.
        QVERIFY2(page.startsWith("HTTP/1.1 " + status) ||
                     (request.size() > 16384 && page.isEmpty()),
                 page.left(100).constData());
        QCOMPARE(m_codes->size() + m_denied->size(), 0);
        QVERIFY(!page.contains("successfully"));
        // The browser that comes afterwards is welcome.
        QVERIFY(ask(m_port, kGood).startsWith("HTTP/1.1 200"));
        QTRY_COMPARE(m_codes->size(), 1);
    }

    void secondVisitChangesNothing()
    {
        for (int i = 0; i < 3; ++i)
            QVERIFY(ask(m_port, kGood).contains("successfully"));
        m_handler->acceptCode(QStringLiteral("another"));
        QTRY_COMPARE(m_codes->size(), 1);
        QCOMPARE(m_denied->size(), 0);
    }

    void denialEnds()
    {
        QTcpSocket browser;
        bool answered = false;
        // A dialog that opens then does not hold up the browser.
        connect(m_handler.get(), &LoopbackReplyHandler::denied, this, [&] {
            answered = QTest::qWaitFor(
                [&] { return browser.state() == QAbstractSocket::UnconnectedState; });
        });
        browser.connectToHost(QHostAddress::LocalHost, m_port);
        browser.write("GET /?error=access_denied&state=the-state HTTP/1.1\r\n\r\n");
        QTRY_VERIFY(answered);
        const QByteArray page = browser.readAll();
        QVERIFY(page.contains("Service has not been") && page.contains("connected"));
        QCOMPARE(m_denied->size(), 1);
        ask(m_port, kGood);
        QCOMPARE(m_codes->size(), 0);
    }

    void silentVisitorsHoldUpNobody()
    {
        std::vector<std::unique_ptr<QTcpSocket>> silent;
        for (int i = 0; i < 31; ++i) {
            silent.push_back(std::make_unique<QTcpSocket>());
            silent.back()->connectToHost(QHostAddress::LocalHost, m_port);
            QTRY_COMPARE(silent.back()->state(), QAbstractSocket::ConnectedState);
            silent.back()->write("GET /");
        }
        QVERIFY(ask(m_port, kGood).startsWith("HTTP/1.1 200"));
        silent.clear();
    }

    void onlyThisMachineIsHeard()
    {
        int tried = 0;
        const QList<QHostAddress> addresses = QNetworkInterface::allAddresses();
        for (const QHostAddress &address : addresses) {
            if (address == QHostAddress(QHostAddress::LocalHost))
                continue;
            QTcpSocket socket;
            socket.connectToHost(address, m_port);
            QTRY_VERIFY(socket.state() == QAbstractSocket::UnconnectedState ||
                        socket.state() == QAbstractSocket::ConnectedState);
            QVERIFY2(socket.state() != QAbstractSocket::ConnectedState,
                     qPrintable(address.toString()));
            ++tried;
        }
        if (tried == 0)
            QSKIP("This machine has no other address");
    }

private:
    quint16 m_port = 0;
    std::unique_ptr<YoutubeHandler> m_handler;
    std::unique_ptr<QSignalSpy> m_codes;
    std::unique_ptr<QSignalSpy> m_denied;
};

QTEST_MAIN(LoopbackReplyHandlerTest)
#include "LoopbackReplyHandlerTest.moc"
