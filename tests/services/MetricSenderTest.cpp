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

#include <memory>
#include <thread>
#include <vector>

using namespace velmora;

class MetricSenderTest : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_sender = std::make_unique<MetricSender>();
        m_idle = std::make_unique<QSignalSpy>(m_sender.get(), &MetricSender::idle);
        m_server = std::make_unique<HttpServer>();
    }

    void batchGoesOutAtTheLimit()
    {
        configure("ver=3.4.6", 3);
        m_sender->record(QStringLiteral("upld"), 1);
        m_sender->record(QStringLiteral("wdvd"), QStringLiteral("A&B=\u00fc #100%"));
        QCoreApplication::processEvents();
        QCOMPARE(m_sender->pending().size(), 2);
        QTest::ignoreMessage(QtInfoMsg,
                             QRegularExpression(QStringLiteral("^Analytics: http://127")));
        QTest::ignoreMessage(QtInfoMsg, "Send analitics [OK]");
        m_sender->record(QStringLiteral("err3"), -5);
        QVERIFY(m_idle->wait());
        QCOMPARE(query(0),
                 QByteArray("ver=3.4.6&m1=upld:1&m1=wdvd:A%26B%3D%C3%BC%20%23100%25&m1=err3:-5"));
        QCOMPARE(m_sender->pending(), QStringList());
    }

    void groupIsNumbered()
    {
        configure("a=b", 2);
        m_sender->recordGroup({{QStringLiteral("gres"), QStringLiteral("1920x1080")},
                               {QStringLiteral("gloop"), QStringLiteral("1")}});
        QVERIFY(m_idle->wait());
        QCOMPARE(query(0), QByteArray("a=b&m1=gres:1920x1080&m2=gloop:1"));
    }

    void eventsOfTheFlightGoNext()
    {
        m_server->hold();
        configure("c", 1);
        m_sender->record(QStringLiteral("one"), 1);
        QTRY_COMPARE(m_server->requests.size(), 1);
        m_sender->record(QStringLiteral("two"), 2);
        m_sender->record(QStringLiteral("three"), 3);
        m_sender->SendData(); // One request at a time, whoever asks.
        QCoreApplication::processEvents();
        QCOMPARE(m_server->requests.size(), 1);
        QCOMPARE(m_sender->pending().size(), 2);
        m_server->release();
        QVERIFY(m_idle->wait());
        QCOMPARE(m_server->requests.size(), 2);
        QCOMPARE(query(1), QByteArray("c&m1=two:2&m1=three:3"));
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
        m_server->setStatus("500 Internal Server Error");
        configure("c", 1);
        if (!listening)
            m_server->close();
        for (int i = 0; i < 2; ++i) { // After a failure the next event goes out as ever.
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression(QStringLiteral("^Send analitics failed: .+")));
            m_sender->record(QStringLiteral("upld"), i);
            QVERIFY(m_idle->wait());
            QCOMPARE(m_sender->pending(), QStringList());
        }
        QCOMPARE(m_server->requests.size(), listening ? 2 : 0);
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
        m_sender->configure(address, QString(), 1, enabled);
        m_sender->record(QStringLiteral("upld"), 1);
        m_sender->recordGroup({{QStringLiteral("gres"), QStringLiteral("x")}});
        QCOMPARE(m_sender->pending(), QStringList());
    }

    void manyThreads()
    {
        constexpr int kThreads = 4;
        constexpr int kEvents = 50;
        configure("c", 7);
        std::vector<std::thread> threads;
        for (int t = 0; t < kThreads; ++t)
            threads.emplace_back([this, t] {
                for (int i = 0; i < kEvents; ++i)
                    m_sender->record(QStringLiteral("t%1").arg(t), i);
            });
        for (std::thread &thread : threads)
            thread.join();
        QTRY_COMPARE(m_server->requests.join().count("&m1="), kThreads * kEvents);
    }

    void flushSendsTheRest()
    {
        configure("c", 100);
        m_sender->flush(5000);
        QCOMPARE(m_server->requests.size(), 0);
        m_sender->record(QStringLiteral("upld"), 1);
        m_sender->flush(5000);
        QCOMPARE(query(0), QByteArray("c&m1=upld:1"));
    }

    void flushGivesUpOnASilentService()
    {
        m_server->hold();
        configure("c", 1);
        m_sender->record(QStringLiteral("upld"), 1);
        QTRY_COMPARE(m_server->requests.size(), 1);
        QElapsedTimer elapsed;
        elapsed.start();
        m_sender->flush(200);
        QVERIFY(elapsed.elapsed() < 5000);
        // Networking must not outlive the application object, as the program's sender does.
        QVERIFY(!m_sender->findChild<QNetworkAccessManager *>());
    }

    void setUpFollowsConfiguration()
    {
        const QTemporaryDir folder;
        const auto store = openSettings(folder.filePath(QStringLiteral("settings.ini")));
        setUpMetrics(*m_sender, ServicesConfig(), true, *store);
        m_sender->record(QStringLiteral("upld"), 1);
        QCOMPARE(m_sender->pending(), QStringList());
        QCOMPARE(store->allKeys(), QStringList()); // No identifier before there is a service.

        qputenv("VELMORA_METRICS_ADDRESS", m_server->url().toEncoded());
        qputenv("VELMORA_METRICS_BATCH", "1");
        setUpMetrics(*m_sender, ServicesConfig(), false, *store);
        m_sender->record(QStringLiteral("upld"), 1);
        QCOMPARE(m_sender->pending(), QStringList()); // Nothing before the user has agreed.
        QCOMPARE(store->allKeys(), QStringList());

        for (int i = 0; i < 2; ++i) {
            setUpMetrics(*m_sender, ServicesConfig(), true, *store);
            m_sender->record(QStringLiteral("upld"), 1);
            QVERIFY(m_idle->wait());
        }
        const QByteArray id = store->value(QStringLiteral("installation_id")).toByteArray();
        QVERIFY(!id.isEmpty());
        for (int i = 0; i < 2; ++i)
            QCOMPARE(query(i), QByteArray("ver=3.4.6&id=" + id + "&m1=upld:1"));
    }

private:
    void configure(const char *context, int limit)
    {
        m_sender->configure(m_server->url(), QString::fromLatin1(context), limit, true);
    }

    QByteArray query(int index) const
    {
        return m_server->requests.value(index).replace("GET /?", "").replace(" HTTP/1.1", "");
    }

    std::unique_ptr<HttpServer> m_server;
    std::unique_ptr<MetricSender> m_sender;
    std::unique_ptr<QSignalSpy> m_idle;
};

QTEST_GUILESS_MAIN(MetricSenderTest)
#include "MetricSenderTest.moc"
