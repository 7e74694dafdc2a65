// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/LogCapture.h"
#include "sharing/upload/UploadFixture.h"

#include <QTcpServer>
#include <QTest>

using namespace velmora;

namespace
{

const QString kTitle = QStringLiteral("Ferien \u00fcber & \"unter\" Wasser \u65e5\u672c");

} // namespace

/// How the program gets its tokens: signing in, renewing, and what is asked again.
class SignInTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_services.isRunning()); }
    void init()
    {
        m_browser.stops = false;
        m_browser.visited.clear();
    }

    void firstUploadSignsIn_data()
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
        QTest::newRow("googledrive")
            << "gd"
            << "/file/d/%1" << list("authorize token upload") << list("refresh upload");
        QTest::newRow("dropbox") << "db"
                                 << "/home/Apps/Velmora%20Videos?preview=My%20show.mp4"
                                 << list("authorize token single") << list("single");
    }

    void firstUploadSignsIn()
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
        QVERIFY(user.hasArrived());
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

    void signInFails_data();
    void signInFails()
    {
        QFETCH(QJsonObject, failure);
        for (const char *service : {"youtube", "dropbox"}) {
            UploadFixture user(m_services);
            user.configure({{QStringLiteral("network/timeout"), QStringLiteral("1")}});
            if (failure.isEmpty())
                m_services.control({{QStringLiteral("answer"), QStringLiteral("deny")}});
            else
                m_services.fail(QStringLiteral("token"), failure, 9);
            const UploadCourse course = user.run(QLatin1String(service), user.video(100));
            QCOMPARE(course.failed, QStringList{QStringLiteral("Authorization error")});
            QCOMPARE(course.ends(), 1);
            QCOMPARE(course.starts, 0);
            QVERIFY(user.load(QStringLiteral("yt")).isEmpty());
            QVERIFY(user.load(QStringLiteral("db")).isEmpty());
            if (failure.isEmpty()) {
                QTRY_VERIFY(m_browser.lastPage.contains("Service has not been"));
            }
        }
    }

    void refreshFallsBack_data();
    void refreshFallsBack()
    {
        QFETCH(QJsonObject, failure);
        QFETCH(QString, logged);
        QFETCH(QString, error);
        const QHash<QString, QString> services{
            {QStringLiteral("youtube"), QStringLiteral("yt")},
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

    void cancelledSignInCanBeRepeated()
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

    void takenPortEndsTheSignIn()
    {
        QTcpServer other;
        QVERIFY(other.listen(QHostAddress::LocalHost));
        for (const char *service : {"youtube", "googledrive", "dropbox"}) {
            UploadFixture user(m_services);
            user.configure({{QLatin1String(service) + QStringLiteral("/port"),
                             QString::number(other.serverPort())}});
            const UploadCourse course = user.run(QLatin1String(service), user.video(10));
            QCOMPARE(course.failed, QStringList{QStringLiteral("Authorization error")});
        }
        QVERIFY(m_browser.visited.isEmpty()); // Nobody signs in to somebody else's port.
    }

private:
    FakeServices m_services{true};
    ScriptedBrowser m_browser;
};

void SignInTest::signInFails_data()
{
    QTest::addColumn<QJsonObject>("failure"); ///< Of the token's exchange; none: denied.
    QTest::newRow("denied") << QJsonObject();
    const char *failures[][2] = {
        {"server error", R"({"status": 500, "body": "{}"})"},
        {"refused", R"({"status": 400, "body": "{\"error\": \"invalid_grant\"}"})"},
        {"no token", R"({"status": 200, "body": "{\"expires_in\": 5}"})"},
        {"empty object", R"({"status": 200, "body": "{}"})"},
        {"empty", R"({"status": 200})"},
        {"no JSON", R"({"status": 200, "body": "[1]"})"},
        {"no type", R"({"status": 200, "body": "{\"access_token\": \"a\"}", "type": ""})"},
        {"other type", R"({"status": 200, "body": "access_token=a", "type": "image/png"})"},
        {"broken token", R"({"status": 200, "body": "{\"access_token\": \"a\\r\\nX: y\"}"})"},
        {"lost", R"({"drop": 10})"},
        {"redirected", R"({"status": 307, "headers": {"Location": "/elsewhere"}})"},
        {"silent", R"({"hang": true})"},
        {"endless", R"({"endless": true})"}};
    for (const auto &failure : failures)
        QTest::newRow(failure[0]) << FakeServices::action(failure[1]);
}

void SignInTest::refreshFallsBack_data()
{
    QTest::addColumn<QJsonObject>("failure");
    QTest::addColumn<QString>("logged");
    QTest::addColumn<QString>("error"); ///< Empty: the user signs in again.
    const char *invalid = "Inavlid answer";
    const char *missing = "Failed to update access token";
    const char *failures[][3] = {
        {"not JSON", R"({"status": 200, "body": "<html>"})", invalid},
        {"array", R"({"status": 200, "body": "[]"})", invalid},
        {"server error", R"({"status": 503})", invalid},
        {"redirect", R"({"status": 302, "headers": {"Location": "/"}})", invalid},
        {"revoked", R"({"status": 400, "body": "{\"error\": \"invalid_grant\"}"})", missing},
        {"number", R"({"status": 200, "body": "{\"access_token\": 5}"})", missing}};
    for (const auto &failure : failures)
        QTest::newRow(failure[0]) << FakeServices::action(failure[1]) << failure[2] << QString();
    const char *none = "No answer to the refresh";
    QTest::newRow("lost") << FakeServices::action(R"({"drop": 0})") << none
                          << "The service cannot be reached.";
    QTest::newRow("silent") << FakeServices::action(R"({"hang": true})") << none
                            << "The service does not answer.";
}

QTEST_MAIN(SignInTest)
#include "SignInTest.moc"
