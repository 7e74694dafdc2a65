// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/MetricSender.h"
#include "app/AppSettings.h"
#include "app/ServicesConfig.h"
#include "helpers/HttpServer.h"
#include "services/MetricSetup.h"

#include <QElapsedTimer>
#include <QNetworkAccessManager>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <memory>
#include <thread>
#include <vector>

using namespace velmora;

class MetricSenderTest : public QObject
{
    Q_OBJECT

private slots:
    void batchGoesOutAtTheLimit()
    {
        HttpServer server;
        MetricSender sender;
        sender.configure(server.url(), QStringLiteral("ver=3.4.6"), 3, true);
        QSignalSpy idle(&sender, &MetricSender::idle);
        sender.record(QStringLiteral("upld"), 1);
        sender.record(QStringLiteral("wdvd"), QStringLiteral("ok"));
        QCoreApplication::processEvents();
        QCOMPARE(sender.pending().size(), 2);
        QTest::ignoreMessage(QtInfoMsg,
                             QRegularExpression(QStringLiteral("^Analytics: http://127")));
        QTest::ignoreMessage(QtInfoMsg, "Send analitics [OK]");
        sender.record(QStringLiteral("err3"), -5);
        QVERIFY(idle.wait());
        QCOMPARE(request(server, 0),
                 QStringLiteral("GET /?ver=3.4.6&m1=upld:1&m1=wdvd:ok&m1=err3:-5 HTTP/1.1"));
        QCOMPARE(sender.pending(), QStringList());
    }

    void groupIsNumbered()
    {
        HttpServer server;
        MetricSender sender;
        sender.configure(server.url(), QStringLiteral("a=b"), 2, true);
        QSignalSpy idle(&sender, &MetricSender::idle);
        sender.recordGroup({{QStringLiteral("gres"), QStringLiteral("1920x1080")},
                            {QStringLiteral("gloop"), QStringLiteral("1")}});
        QVERIFY(idle.wait());
        QCOMPARE(request(server, 0),
                 QStringLiteral("GET /?a=b&m1=gres:1920x1080&m2=gloop:1 HTTP/1.1"));
    }

    void valuesAreEncoded()
    {
        HttpServer server;
        MetricSender sender;
        sender.configure(server.url(), QString(), 1, true);
        QSignalSpy idle(&sender, &MetricSender::idle);
        sender.record(QStringLiteral("vidv"), QStringLiteral("A&B=\u00fc #100%"));
        QVERIFY(idle.wait());
        QCOMPARE(request(server, 0),
                 QStringLiteral("GET /?&m1=vidv:A%26B%3D%C3%BC%20%23100%25 HTTP/1.1"));
    }

    void eventsOfTheFlightGoNext()
    {
        HttpServer server;
        server.hold();
        MetricSender sender;
        sender.configure(server.url(), QStringLiteral("c"), 1, true);
        QSignalSpy idle(&sender, &MetricSender::idle);
        sender.record(QStringLiteral("one"), 1);
        QTRY_COMPARE(server.requests.size(), 1);
        sender.record(QStringLiteral("two"), 2);
        sender.record(QStringLiteral("three"), 3);
        sender.SendData(); // One request at a time, whoever asks.
        QCoreApplication::processEvents();
        QCOMPARE(server.requests.size(), 1);
        QCOMPARE(sender.pending().size(), 2);
        server.release();
        QVERIFY(idle.wait());
        QCOMPARE(server.requests.size(), 2);
        QCOMPARE(request(server, 1), QStringLiteral("GET /?c&m1=two:2&m1=three:3 HTTP/1.1"));
    }

    void failureIsLoggedAndForgotten_data()
    {
        QTest::addColumn<bool>("listening");
        QTest::newRow("server error") << true;
        QTest::newRow("no server") << false;
    }

    void failureIsLoggedAndForgotten()
    {
        QFETCH(bool, listening);
        HttpServer server;
        server.setStatus("500 Internal Server Error");
        MetricSender sender;
        sender.configure(server.url(), QStringLiteral("c"), 1, true);
        if (!listening)
            server.close();
        QSignalSpy idle(&sender, &MetricSender::idle);
        for (int i = 0; i < 2; ++i) { // After a failure the next event goes out as ever.
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression(QStringLiteral("^Send analitics failed: .+")));
            sender.record(QStringLiteral("upld"), i);
            QVERIFY(idle.wait());
            QCOMPARE(sender.pending(), QStringList());
        }
        QCOMPARE(server.requests.size(), listening ? 2 : 0);
    }

    void offDrops_data()
    {
        QTest::addColumn<QUrl>("address");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("switched off") << QUrl(QStringLiteral("http://127.0.0.1:1")) << false;
        QTest::newRow("no address") << QUrl() << true;
        QTest::newRow("no host") << QUrl(QStringLiteral("nonsense")) << true;
    }

    void offDrops()
    {
        QFETCH(QUrl, address);
        QFETCH(bool, enabled);
        MetricSender sender;
        sender.configure(address, QString(), 1, enabled);
        sender.record(QStringLiteral("upld"), 1);
        sender.recordGroup({{QStringLiteral("gres"), QStringLiteral("x")}});
        QCOMPARE(sender.pending(), QStringList());
    }

    void manyThreads()
    {
        constexpr int kThreads = 4;
        constexpr int kEvents = 50;
        HttpServer server;
        MetricSender sender;
        sender.configure(server.url(), QStringLiteral("c"), 7, true);
        std::vector<std::thread> threads;
        for (int t = 0; t < kThreads; ++t)
            threads.emplace_back([&sender, t] {
                for (int i = 0; i < kEvents; ++i)
                    sender.record(QStringLiteral("t%1").arg(t), i);
            });
        const auto received = [&server] {
            QByteArray all;
            for (const QByteArray &line : qAsConst(server.requests))
                all += line;
            return all.count("&m1=");
        };
        for (std::thread &thread : threads)
            thread.join();
        QTRY_COMPARE(received(), kThreads * kEvents);
    }

    void flushSendsTheRest()
    {
        HttpServer server;
        MetricSender sender;
        sender.configure(server.url(), QStringLiteral("c"), 100, true);
        sender.flush(5000);
        QCOMPARE(server.requests.size(), 0);
        sender.record(QStringLiteral("upld"), 1);
        sender.flush(5000);
        QCOMPARE(request(server, 0), QStringLiteral("GET /?c&m1=upld:1 HTTP/1.1"));
    }

    void flushGivesUpOnASilentService()
    {
        HttpServer server;
        server.hold();
        MetricSender sender;
        sender.configure(server.url(), QStringLiteral("c"), 1, true);
        sender.record(QStringLiteral("upld"), 1);
        QTRY_COMPARE(server.requests.size(), 1);
        QElapsedTimer elapsed;
        elapsed.start();
        sender.flush(200);
        QVERIFY(elapsed.elapsed() < 5000);
        // Networking must not outlive the application object, as the program's sender does.
        QVERIFY(!sender.findChild<QNetworkAccessManager *>());
    }

    void setUpFollowsConfiguration()
    {
        const QTemporaryDir folder;
        const auto store = openSettings(folder.filePath(QStringLiteral("settings.ini")));
        MetricSender sender;
        setUpMetrics(sender, ServicesConfig(), *store);
        sender.record(QStringLiteral("upld"), 1);
        QCOMPARE(sender.pending(), QStringList());
        QCOMPARE(store->allKeys(), QStringList()); // No identifier before there is a service.

        HttpServer server;
        qputenv("VELMORA_METRICS_ADDRESS", server.url().toEncoded());
        qputenv("VELMORA_METRICS_BATCH", "1");
        setUpMetrics(sender, ServicesConfig(), *store);
        sender.record(QStringLiteral("upld"), 1);
        QCOMPARE(sender.pending(), QStringList()); // Nothing before the user has agreed.
        QCOMPARE(store->allKeys(), QStringList());

        store->setValue(QStringLiteral("sendStatistics"), true);
        QSignalSpy idle(&sender, &MetricSender::idle);
        for (int i = 0; i < 2; ++i) {
            setUpMetrics(sender, ServicesConfig(), *store);
            sender.record(QStringLiteral("upld"), 1);
            QVERIFY(idle.wait());
        }
        const QString id = store->value(QStringLiteral("installation_id")).toString();
        QVERIFY(!id.isEmpty());
        const QString expected = QStringLiteral("GET /?ver=3.4.6&id=%1&m1=upld:1 HTTP/1.1").arg(id);
        QCOMPARE(request(server, 0), expected);
        QCOMPARE(request(server, 1), expected);
    }

private:
    static QString request(const HttpServer &server, int index)
    {
        return QString::fromLatin1(server.requests.value(index));
    }
};

QTEST_GUILESS_MAIN(MetricSenderTest)
#include "MetricSenderTest.moc"
