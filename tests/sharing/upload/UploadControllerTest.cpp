// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/UploadController.h"

#include "helpers/LogCapture.h"
#include "sharing/upload/UploadFixture.h"

#include <QJsonDocument>
#include <QTest>

using namespace velmora;

namespace
{

const QString kTitle = QStringLiteral("Ferien \u00fcber & \"unter\" Wasser \u65e5\u672c");

} // namespace

/// Uploads to the three services over TLS, with every way in which they can fail.
class UploadControllerTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_services.isRunning()); }
    void init()
    {
        m_browser.stops = false;
        m_browser.visited.clear();
    }

    void uploadFails_data();
    void uploadFails()
    {
        QFETCH(QJsonObject, failure);
        QFETCH(QString, error);
        const QHash<QString, QString> services{
            {QStringLiteral("youtube"), QStringLiteral("yt")},
            {QStringLiteral("googledrive"), QStringLiteral("gd")}};
        for (auto service = services.begin(); service != services.end(); ++service) {
            UploadFixture user(m_services);
            user.configure({{QStringLiteral("network/timeout"), QStringLiteral("1")}});
            user.grant(service.key(), service.value());
            m_services.fail(QStringLiteral("upload"), failure, 9);
            const UploadCourse course = user.run(
                service.key(),
                user.video(failure.contains(QLatin1String("drop")) ? 3000000 : 100000), kTitle);
            QCOMPARE(course.ends(), 1);
            QCOMPARE(course.failed.size(), 1);
            const QString prefix = QStringLiteral("Error uploading video:");
            // Whether a broken connection is noticed before or after the first answer is chance.
            const QStringList lost{prefix + QStringLiteral("The service cannot be reached."),
                                   prefix +
                                       QStringLiteral("The connection to the service was lost."),
                                   prefix + QStringLiteral("Unknown error")};
            if (error.isEmpty())
                QVERIFY2(lost.contains(course.failed.first()), qPrintable(course.failed.first()));
            else
                QCOMPARE(course.failed.first(), prefix + error);
            QCOMPARE(course.starts, 1);
            QVERIFY(!user.controller().isRunning());
        }
    }

    void titleDoesNotMatter_data();
    void titleDoesNotMatter()
    {
        QFETCH(QJsonObject, failure);
        UploadFixture user(m_services);
        user.configure({{QStringLiteral("network/timeout"), QStringLiteral("1")}});
        user.grant(QStringLiteral("youtube"), QStringLiteral("yt"));
        m_services.fail(QStringLiteral("title"), failure, 9);
        const UploadCourse course = user.run(QStringLiteral("youtube"), user.video(1000), kTitle);
        const QString id =
            m_services.files().at(0).toObject().value(QLatin1String("id")).toString();
        QCOMPARE(course.finished,
                 (QStringList{id, m_services.url() + QStringLiteral("/watch?v=") + id}));
    }

    void cancelEndsEachStep_data()
    {
        QTest::addColumn<QString>("service");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("step");
        const auto row = [](const char *service, const char *key, const char *step) {
            QTest::addRow("%s, %s", service, step)
                << QString::fromLatin1(service) << QString::fromLatin1(key)
                << QString::fromLatin1(step);
        };
        for (const char *step : {"token", "refresh", "upload", "title"})
            row("youtube", "yt", step);
        for (const char *step : {"token", "refresh", "upload"})
            row("googledrive", "gd", step);
        for (const char *step : {"token", "start", "append", "finish"})
            row("dropbox", "db", step);
    }

    void cancelEndsEachStep()
    {
        QFETCH(QString, service);
        QFETCH(QString, key);
        QFETCH(QString, step);
        UploadFixture user(m_services);
        if (step != QLatin1String("token"))
            user.grant(service, key);
        m_services.fail(step, FakeServices::action(R"({"hang": true})"), 9);
        user.start(service, user.video(service == QLatin1String("dropbox") ? 9000000 : 100000),
                   kTitle);
        QTRY_VERIFY(m_services.steps().contains(step));
        QCOMPARE(user.course.ends(), 0);
        user.controller().cancel();
        QCOMPARE(user.course.canceled, 1);
        QCOMPARE(user.course.ends(), 1);
        QVERIFY(!user.controller().isRunning());

        // The next one works, and nothing of the first comes late.
        m_services.reset();
        user.grant(service, key);
        const UploadCourse course = user.run(service, user.video(1000), kTitle);
        QCOMPARE(course.finished.size(), 2);
        QCOMPARE(course.ends(), 1);
    }

    void cancelBeforeStart()
    {
        UploadFixture user(m_services);
        user.start(QStringLiteral("youtube"), user.video(10));
        user.start(QStringLiteral("dropbox"), user.video(10)); // Is not started: one at a time.
        user.controller().cancel();
        QCOMPARE(user.course.canceled, 1);
        QCoreApplication::processEvents();
        QCOMPARE(user.course.ends(), 1);
        QCOMPARE(m_services.steps(), QStringList());
    }

    void untrustedCertificateEndsAll_data()
    {
        QTest::addColumn<QString>("key");
        QTest::newRow("youtube") << "yt";
        QTest::newRow("googledrive") << "gd";
        QTest::newRow("dropbox") << "db";
    }

    void untrustedCertificateEndsAll()
    {
        QFETCH(QString, key);
        const QString service = QString::fromLatin1(QTest::currentDataTag());
        UploadFixture user(m_services);
        user.grant(service, key);
        user.configure({{QStringLiteral("network/ca_file"), QString()}});
        const UploadCourse course = user.run(service, user.video(10));
        QCOMPARE(course.failed.size(), 1);
        QVERIFY(course.failed.first().contains(
            QLatin1String("The connection to the service is not secure.")));
        QCOMPARE(m_services.steps(), QStringList()); // Not even the token has left the machine.
    }

    void badFiles_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("error");
        QTest::newRow("missing") << "gone.mp4"
                                 << "source file not found";
        QTest::newRow("folder") << "."
                                << "can't open source file for reading";
    }

    void badFiles()
    {
        QFETCH(QString, name);
        QFETCH(QString, error);
        UploadFixture user(m_services);
        for (const char *service : {"youtube", "googledrive", "dropbox"}) {
            const UploadCourse course =
                user.run(QLatin1String(service), user.path(name.toLatin1().constData()));
            QCOMPARE(course.failed, QStringList{error});
            QCOMPARE(course.signIns, 0);
        }
    }

    void unconfiguredSaysSo()
    {
        UploadFixture user(m_services);
        user.configure({{QStringLiteral("youtube/client_id"), QString()}});
        QVERIFY(!user.controller().isConfigured(QStringLiteral("youtube")));
        QVERIFY(user.controller().isConfigured(QStringLiteral("googledrive")));
        const UploadCourse course = user.run(QStringLiteral("youtube"), user.video(10));
        QCOMPARE(course.failed.size(), 1);
        QVERIFY(course.failed.first().startsWith(
            QLatin1String("Uploading to Youtube is not configured.")));
    }

    void unknownServiceIsLogged()
    {
        UploadFixture user(m_services);
        LogCapture log;
        user.start(QStringLiteral("YouTube"), user.video(10));
        QVERIFY(log.lines().contains(QStringLiteral("IS NULL UPLOADER")));
        QVERIFY(!user.controller().isRunning());
        QCoreApplication::processEvents();
        QCOMPARE(user.course.ends(), 0);
    }

    void lostConnectionIsNotRepeated()
    {
        UploadFixture user(m_services);
        user.grant(QStringLiteral("youtube"), QStringLiteral("yt"));
        m_services.fail(QStringLiteral("upload"), FakeServices::action(R"({"drop": "answer"})"));
        const UploadCourse course = user.run(QStringLiteral("youtube"), user.video(1000));
        QCOMPARE(course.failed.size(), 1);
        QCOMPARE(m_services.files().size(), 1); // It arrived, once.
        QCOMPARE(m_services.steps().count(QStringLiteral("upload")), 1);
    }

private:
    FakeServices m_services{true};
    ScriptedBrowser m_browser;
};

void UploadControllerTest::uploadFails_data()
{
    QTest::addColumn<QJsonObject>("failure");
    QTest::addColumn<QString>("error"); ///< Empty: one of those for a lost connection.
    const char *unknown = "Unknown error";
    for (const int status : {200, 400, 401, 403, 429, 500, 503})
        QTest::addRow("%d with message", status)
            << QJsonObject{{QStringLiteral("status"), status},
                           {QStringLiteral("body"),
                            QStringLiteral("{\"error\": {\"message\": \" Over\\nquota \"}}")}}
            << "Over quota";
    for (const int status : {401, 403, 429, 500})
        QTest::addRow("%d alone", status)
            << QJsonObject{{QStringLiteral("status"), status}} << unknown;
    const char *unclear = "The answer of the service cannot be understood.";
    const char *failures[][3] = {
        {"early 401", R"({"status": 401, "early": true})", ""},
        {"error without message", R"({"status": 400, "body": "{\"error\": {}}"})", unknown},
        {"error as text", R"({"status": 400, "body": "{\"error\": \"broken\"}"})", "broken"},
        {"not JSON", R"({"status": 200, "body": "<html>", "type": "text/html"})", unknown},
        {"no identifier", R"({"status": 200, "body": "{\"kind\": \"video\"}"})", unknown},
        {"empty", R"({"status": 200})", unknown},
        {"redirect", R"({"status": 307, "headers": {"Location": "/upload/youtube/v3/videos"}})",
         unclear},
        {"endless", R"({"endless": true})", unclear},
        {"silent", R"({"hang": true})", "The service does not answer."},
        {"lost at once", R"({"drop": 0})", ""},
        {"lost in the middle", R"({"drop": 2000000})", ""},
        {"answer lost", R"({"drop": "answer"})", ""}};
    for (const auto &failure : failures)
        QTest::newRow(failure[0]) << FakeServices::action(failure[1]) << failure[2];
}

void UploadControllerTest::titleDoesNotMatter_data()
{
    QTest::addColumn<QJsonObject>("failure");
    QTest::newRow("server error") << FakeServices::action(R"({"status": 500})");
    QTest::newRow("refused") << FakeServices::action(
        R"({"status": 403, "body": "{\"error\": {}}"})");
    QTest::newRow("lost") << FakeServices::action(R"({"drop": 0})");
    QTest::newRow("silent") << FakeServices::action(R"({"hang": true})");
}

QTEST_MAIN(UploadControllerTest)
#include "UploadControllerTest.moc"
