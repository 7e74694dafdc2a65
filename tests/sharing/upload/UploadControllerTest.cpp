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

QJsonObject action(const char *json)
{
    return QJsonDocument::fromJson(json).object();
}

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
    void firstUploadSignsIn_data();
    void firstUploadSignsIn();
    void signInFails_data();
    void signInFails();
    void refreshFallsBack_data();
    void refreshFallsBack();
    void uploadFails_data();
    void uploadFails();
    void titleDoesNotMatter_data();
    void titleDoesNotMatter();
    void cancelEndsEachStep_data();
    void cancelEndsEachStep();
    void cancelledSignInCanBeRepeated();
    void cancelBeforeStart();
    void untrustedCertificateEndsAll_data();
    void untrustedCertificateEndsAll();
    void badFiles_data();
    void badFiles();
    void unconfiguredSaysSo();
    void unknownServiceIsLogged();
    void lostConnectionIsNotRepeated();

private:
    FakeServices m_services{true};
    ScriptedBrowser m_browser;
};

void UploadControllerTest::firstUploadSignsIn_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("page");
    QTest::addColumn<QStringList>("first");
    QTest::addColumn<QStringList>("second");
    const auto list = [](const char *words) {
        return QString::fromLatin1(words).split(QLatin1Char(' '));
    };
    QTest::newRow("youtube") << "yt"
                             << "/watch?v=%1" << list("authorize token upload title")
                             << list("refresh upload title");
    QTest::newRow("googledrive") << "gd"
                                 << "/file/d/%1" << list("authorize token upload")
                                 << list("refresh upload");
    QTest::newRow("dropbox") << "db"
                             << "/home/Apps/Velmora%20Videos?preview=My%20show.mp4"
                             << list("authorize token single") << list("single");
}

void UploadControllerTest::firstUploadSignsIn()
{
    QFETCH(QString, key);
    QFETCH(QString, page);
    QFETCH(QStringList, first);
    QFETCH(QStringList, second);
    const QString service = QString::fromLatin1(QTest::currentDataTag());
    UploadFixture user(m_services);
    const QString file = user.video(300001);
    QVERIFY(user.controller().isConfigured(service));

    UploadCourse course = user.run(service, file, kTitle);
    QCOMPARE(course.failed.join(QString()), QString());
    QCOMPARE(m_services.problems().join(QLatin1Char('\n')), QString());
    QCOMPARE(m_services.steps(), first);
    QCOMPARE(course.signIns, 1);
    QCOMPARE(course.starts, 1);
    QCOMPARE(course.ends(), 1);
    QCOMPARE(course.progress.last(), 100);
    QVERIFY(m_browser.lastPage.contains("Service has been connected"));

    const QJsonObject stored = m_services.files().at(0).toObject();
    QCOMPARE(stored.value(QLatin1String("sha256")).toString(), user.hash());
    const bool box = key == QLatin1String("db");
    QCOMPARE(stored.value(QLatin1String("title")).toString(),
             box ? QStringLiteral("/My show.mp4") : kTitle);
    const QString id =
        box ? QStringLiteral("/My show.mp4") : stored.value(QLatin1String("id")).toString();
    const QString address = m_services.url() + (box ? page : page.arg(id));
    QCOMPARE(course.finished, (QStringList{id, address}));

    // The tokens are kept, and the next upload asks nobody.
    QVERIFY(!user.load(key).isEmpty());
    course = user.run(service, file, kTitle);
    QCOMPARE(course.failed.join(QString()), QString());
    QCOMPARE(course.signIns, 0);
    QCOMPARE(m_services.steps().mid(first.size()), second);
    QCOMPARE(m_services.problems().join(QLatin1Char('\n')), QString());
}

void UploadControllerTest::signInFails_data()
{
    QTest::addColumn<QString>("step");
    QTest::addColumn<QJsonObject>("failure");
    const QString token = QStringLiteral("token");
    QTest::newRow("denied") << QString() << QJsonObject();
    QTest::newRow("server error") << token << action(R"({"status": 500, "body": "{}"})");
    QTest::newRow("refused") << token
                             << action(
                                    R"({"status": 400, "body": "{\"error\": \"invalid_grant\"}"})");
    QTest::newRow("no token") << token
                              << action(R"({"status": 200, "body": "{\"expires_in\": 5}"})");
    QTest::newRow("empty object") << token << action(R"({"status": 200, "body": "{}"})");
    QTest::newRow("empty") << token << action(R"({"status": 200})");
    QTest::newRow("no JSON") << token << action(R"({"status": 200, "body": "[1]"})");
    QTest::newRow("no type")
        << token << action(R"({"status": 200, "body": "{\"access_token\": \"a\"}", "type": ""})");
    QTest::newRow("other type")
        << token << action(R"({"status": 200, "body": "access_token=a", "type": "image/png"})");
    QTest::newRow("broken token")
        << token << action(R"({"status": 200, "body": "{\"access_token\": \"a\\r\\nX: y\"}"})");
    QTest::newRow("lost") << token << action(R"({"drop": 10})");
    QTest::newRow("redirected") << token
                                << action(
                                       R"({"status": 307, "headers": {"Location": "/elsewhere"}})");
    QTest::newRow("silent") << token << action(R"({"hang": true})");
    QTest::newRow("endless") << token << action(R"({"endless": true})");
}

void UploadControllerTest::signInFails()
{
    QFETCH(QString, step);
    QFETCH(QJsonObject, failure);
    for (const char *service : {"youtube", "dropbox"}) {
        UploadFixture user(m_services);
        user.configure({{QStringLiteral("network/timeout"), QStringLiteral("1")}});
        if (step.isEmpty())
            m_services.control({{QStringLiteral("answer"), QStringLiteral("deny")}});
        else
            m_services.fail(step, failure, 9);
        const UploadCourse course = user.run(QLatin1String(service), user.video(100));
        QCOMPARE(course.failed, QStringList{QStringLiteral("Authorization error")});
        QCOMPARE(course.ends(), 1);
        QCOMPARE(course.starts, 0);
        QVERIFY(user.load(QStringLiteral("yt")).isEmpty());
        QVERIFY(user.load(QStringLiteral("db")).isEmpty());
        if (step.isEmpty()) {
            QTRY_VERIFY(m_browser.lastPage.contains("Service has not been"));
        }
    }
}

void UploadControllerTest::refreshFallsBack_data()
{
    QTest::addColumn<QJsonObject>("failure");
    QTest::addColumn<QString>("logged");
    QTest::addColumn<QString>("error");
    const QString invalid = QStringLiteral("Inavlid answer");
    const QString missing = QStringLiteral("Failed to update access token");
    QTest::newRow("not JSON") << action(R"({"status": 200, "body": "<html>"})") << invalid
                              << QString();
    QTest::newRow("array") << action(R"({"status": 200, "body": "[]"})") << invalid << QString();
    QTest::newRow("server error") << action(R"({"status": 503})") << invalid << QString();
    QTest::newRow("redirect") << action(R"({"status": 302, "headers": {"Location": "/"}})")
                              << invalid << QString();
    QTest::newRow("revoked") << action(
                                    R"({"status": 400, "body": "{\"error\": \"invalid_grant\"}"})")
                             << missing << QString();
    QTest::newRow("number") << action(R"({"status": 200, "body": "{\"access_token\": 5}"})")
                            << missing << QString();
    QTest::newRow("lost") << action(R"({"drop": 0})") << QStringLiteral("No answer to the refresh")
                          << QStringLiteral("The service cannot be reached.");
    QTest::newRow("silent") << action(R"({"hang": true})")
                            << QStringLiteral("No answer to the refresh")
                            << QStringLiteral("The service does not answer.");
}

void UploadControllerTest::refreshFallsBack()
{
    QFETCH(QJsonObject, failure);
    QFETCH(QString, logged);
    QFETCH(QString, error);
    const QHash<QString, QString> services{{QStringLiteral("youtube"), QStringLiteral("yt")},
                                           {QStringLiteral("googledrive"), QStringLiteral("gd")}};
    for (auto service = services.begin(); service != services.end(); ++service) {
        UploadFixture user(m_services);
        user.configure({{QStringLiteral("network/timeout"), QStringLiteral("1")}});
        user.grant(service.key(), service.value());
        const QString before = user.load(service.value());
        m_services.fail(QStringLiteral("refresh"), failure, 9);
        LogCapture log;
        const UploadCourse course = user.run(service.key(), user.video(100));
        QVERIFY(!log.lines().filter(logged).isEmpty());
        QCOMPARE(course.failed, error.isEmpty() ? QStringList() : QStringList{error});
        QCOMPARE(course.signIns, error.isEmpty() ? 1 : 0);
        QCOMPARE(user.load(service.value()) == before, !error.isEmpty());
        QCOMPARE(m_services.problems().join(QLatin1Char('\n')), QString());
    }
}

void UploadControllerTest::uploadFails_data()
{
    QTest::addColumn<QJsonObject>("failure");
    QTest::addColumn<QString>("error");
    const QString unknown = QStringLiteral("Unknown error");
    const QString message = QStringLiteral("Over quota");
    const auto answer = [](int status) {
        return QJsonObject{{QStringLiteral("status"), status},
                           {QStringLiteral("body"),
                            QStringLiteral("{\"error\": {\"message\": \" Over\\nquota \"}}")}};
    };
    for (const int status : {200, 400, 401, 403, 429, 500, 503})
        QTest::addRow("%d with message", status) << answer(status) << message;
    for (const int status : {401, 403, 429, 500})
        QTest::addRow("%d alone", status)
            << QJsonObject{{QStringLiteral("status"), status}} << unknown;
    QTest::newRow("early 401") << action(R"({"status": 401, "early": true})") << QString();
    QTest::newRow("error without message")
        << action(R"({"status": 400, "body": "{\"error\": {}}"})") << unknown;
    QTest::newRow("error as text")
        << action(R"({"status": 400, "body": "{\"error\": \"broken\"}"})")
        << QStringLiteral("broken");
    QTest::newRow("not JSON") << action(R"({"status": 200, "body": "<html>", "type": "text/html"})")
                              << unknown;
    QTest::newRow("no identifier")
        << action(R"({"status": 200, "body": "{\"kind\": \"video\"}"})") << unknown;
    QTest::newRow("empty") << action(R"({"status": 200})") << unknown;
    QTest::newRow("redirect")
        << action(R"({"status": 307, "headers": {"Location": "/upload/youtube/v3/videos"}})")
        << QStringLiteral("The answer of the service cannot be understood.");
    QTest::newRow("endless") << action(R"({"endless": true})")
                             << QStringLiteral("The answer of the service cannot be understood.");
    QTest::newRow("silent") << action(R"({"hang": true})")
                            << QStringLiteral("The service does not answer.");
    QTest::newRow("lost at once") << action(R"({"drop": 0})") << QString();
    QTest::newRow("lost in the middle") << action(R"({"drop": 2000000})") << QString();
    QTest::newRow("answer lost") << action(R"({"drop": "answer"})") << QString();
}

void UploadControllerTest::uploadFails()
{
    QFETCH(QJsonObject, failure);
    QFETCH(QString, error);
    const QHash<QString, QString> services{{QStringLiteral("youtube"), QStringLiteral("yt")},
                                           {QStringLiteral("googledrive"), QStringLiteral("gd")}};
    for (auto service = services.begin(); service != services.end(); ++service) {
        UploadFixture user(m_services);
        user.configure({{QStringLiteral("network/timeout"), QStringLiteral("1")}});
        user.grant(service.key(), service.value());
        m_services.fail(QStringLiteral("upload"), failure, 9);
        const UploadCourse course = user.run(
            service.key(), user.video(failure.contains(QLatin1String("drop")) ? 3000000 : 100000),
            kTitle);
        QCOMPARE(course.ends(), 1);
        QCOMPARE(course.failed.size(), 1);
        const QString prefix = QStringLiteral("Error uploading video:");
        // Whether a broken connection is noticed before or after the first answer is chance.
        const QStringList lost{prefix + QStringLiteral("The service cannot be reached."),
                               prefix + QStringLiteral("The connection to the service was lost."),
                               prefix + QStringLiteral("Unknown error")};
        if (error.isEmpty())
            QVERIFY2(lost.contains(course.failed.first()), qPrintable(course.failed.first()));
        else
            QCOMPARE(course.failed.first(), prefix + error);
        QCOMPARE(course.starts, 1);
        QVERIFY(!user.controller().isRunning());
    }
}

void UploadControllerTest::titleDoesNotMatter_data()
{
    QTest::addColumn<QJsonObject>("failure");
    QTest::newRow("server error") << action(R"({"status": 500})");
    QTest::newRow("refused") << action(R"({"status": 403, "body": "{\"error\": {}}"})");
    QTest::newRow("lost") << action(R"({"drop": 0})");
    QTest::newRow("silent") << action(R"({"hang": true})");
}

void UploadControllerTest::titleDoesNotMatter()
{
    QFETCH(QJsonObject, failure);
    UploadFixture user(m_services);
    user.configure({{QStringLiteral("network/timeout"), QStringLiteral("1")}});
    user.grant(QStringLiteral("youtube"), QStringLiteral("yt"));
    m_services.fail(QStringLiteral("title"), failure, 9);
    const UploadCourse course = user.run(QStringLiteral("youtube"), user.video(1000), kTitle);
    const QString id = m_services.files().at(0).toObject().value(QLatin1String("id")).toString();
    QCOMPARE(course.finished,
             (QStringList{id, m_services.url() + QStringLiteral("/watch?v=") + id}));
}

void UploadControllerTest::cancelEndsEachStep_data()
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

void UploadControllerTest::cancelEndsEachStep()
{
    QFETCH(QString, service);
    QFETCH(QString, key);
    QFETCH(QString, step);
    UploadFixture user(m_services);
    if (step != QLatin1String("token"))
        user.grant(service, key);
    m_services.fail(step, action(R"({"hang": true})"), 9);
    user.start(service, user.video(service == QLatin1String("dropbox") ? 9000000 : 100000), kTitle);
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

void UploadControllerTest::cancelledSignInCanBeRepeated()
{
    UploadFixture user(m_services);
    const QString file = user.video(1000);
    m_browser.stops = true; // The user looks at the page and does nothing.
    for (int i = 1; i <= 3; ++i) {
        user.start(QStringLiteral("googledrive"), file);
        QTRY_COMPARE(m_browser.visited.size(), i);
        user.controller().cancel();
        QCOMPARE(user.course.canceled, 1);
        QCOMPARE(user.course.failed, QStringList());
    }
    // Each page has a state and a challenge of its own.
    m_browser.visited.removeDuplicates();
    QCOMPARE(m_browser.visited.size(), 3);
    m_browser.stops = false;
    QCOMPARE(user.run(QStringLiteral("googledrive"), file).finished.size(), 2);
}

void UploadControllerTest::cancelBeforeStart()
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

void UploadControllerTest::untrustedCertificateEndsAll_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("youtube") << "yt";
    QTest::newRow("googledrive") << "gd";
    QTest::newRow("dropbox") << "db";
}

void UploadControllerTest::untrustedCertificateEndsAll()
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

void UploadControllerTest::badFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("error");
    QTest::newRow("missing") << "gone.mp4"
                             << "source file not found";
    QTest::newRow("folder") << "."
                            << "can't open source file for reading";
}

void UploadControllerTest::badFiles()
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

void UploadControllerTest::unconfiguredSaysSo()
{
    UploadFixture user(m_services);
    user.configure({{QStringLiteral("youtube/client_id"), QString()}});
    QVERIFY(!user.controller().isConfigured(QStringLiteral("youtube")));
    QVERIFY(user.controller().isConfigured(QStringLiteral("googledrive")));
    const UploadCourse course = user.run(QStringLiteral("youtube"), user.video(10));
    QCOMPARE(course.failed.size(), 1);
    QVERIFY(
        course.failed.first().startsWith(QLatin1String("Uploading to Youtube is not configured.")));
}

void UploadControllerTest::unknownServiceIsLogged()
{
    UploadFixture user(m_services);
    LogCapture log;
    user.start(QStringLiteral("YouTube"), user.video(10));
    QVERIFY(log.lines().contains(QStringLiteral("IS NULL UPLOADER")));
    QVERIFY(!user.controller().isRunning());
    QCoreApplication::processEvents();
    QCOMPARE(user.course.ends(), 0);
}

void UploadControllerTest::lostConnectionIsNotRepeated()
{
    UploadFixture user(m_services);
    user.grant(QStringLiteral("youtube"), QStringLiteral("yt"));
    m_services.fail(QStringLiteral("upload"), action(R"({"drop": "answer"})"));
    const UploadCourse course = user.run(QStringLiteral("youtube"), user.video(1000));
    QCOMPARE(course.failed.size(), 1);
    QCOMPARE(m_services.files().size(), 1); // It arrived, once.
    QCOMPARE(m_services.steps().count(QStringLiteral("upload")), 1);
}

QTEST_MAIN(UploadControllerTest)
#include "UploadControllerTest.moc"
