// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/LogCapture.h"
#include "helpers/Words.h"
#include "sharing/upload/UploadFixture.h"

#include <QDesktopServices>
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
        QTest::addColumn<QString>("page");
        QTest::addColumn<QStringList>("first");
        QTest::addColumn<QStringList>("second");
        QTest::newRow("youtube") << "/watch?v=%1" << words("authorize token upload title")
                                 << words("refresh upload title");
        QTest::newRow("googledrive")
            << "/file/d/%1" << words("authorize token upload") << words("refresh upload");
        QTest::newRow("dropbox") << "/home/Apps/Velmora%20Videos?preview=My%20show.mp4"
                                 << words("authorize token single") << words("single");
    }

    void firstUploadSignsIn()
    {
        QFETCH(QString, page);
        QFETCH(QStringList, first);
        QFETCH(QStringList, second);
        const QString service = QString::fromLatin1(QTest::currentDataTag());
        UploadFixture user(m_services);
        const QString file = user.video(300001);
        QVERIFY(user.controller().isConfigured(service));

        UploadCourse course = user.run(service, file, kTitle);
        QCOMPARE(user.trouble(), QString());
        QCOMPARE(m_services.steps(), first);
        QCOMPARE(course.signIns, 1);
        QCOMPARE(course.starts, 1);
        QCOMPARE(course.ends(), 1);
        QCOMPARE(course.progress.last(), 100);
        QVERIFY(m_browser.lastPage.contains("Service has been connected"));
        QVERIFY(user.hasArrived());
        const bool hasId = page.endsWith(QLatin1String("%1"));
        const QString path = QStringLiteral("/My show.mp4");
        QCOMPARE(user.stored("title"), hasId ? kTitle : path);
        const QString id = hasId ? user.stored("id") : path;
        QCOMPARE(course.finished,
                 (QStringList{id, m_services.url() + (hasId ? page.arg(id) : page)}));

        // The tokens are kept, and the next upload asks nobody.
        QVERIFY(!user.load(service).isEmpty());
        course = user.run(service, file, kTitle);
        QCOMPARE(user.trouble(), QString());
        QCOMPARE(course.signIns, 0);
        QCOMPARE(m_services.steps().mid(first.size()), second);
    }

    void signInFails_data()
    {
        QTest::addColumn<QString>("failure"); ///< Of the token's exchange; none: denied.
        const char *failures[][2] = {
            {"denied", ""},
            {"server error", R"({"status": 500, "body": {}})"},
            {"refused", R"({"status": 400, "body": {"error": "invalid_grant"}})"},
            {"no token", R"({"status": 200, "body": {"expires_in": 5}})"},
            {"empty", R"({"status": 200})"},
            {"broken token", R"({"status": 200, "body": {"access_token": "a\r\nX: y"}})"},
            {"lost", R"({"drop": 10})"},
            {"redirected", R"({"status": 307, "headers": {"Location": "/elsewhere"}})"},
            {"silent", R"({"hang": true})"},
            {"endless", R"({"endless": true})"}};
        for (const auto &failure : failures)
            QTest::newRow(failure[0]) << failure[1];
    }

    void signInFails()
    {
        QFETCH(QString, failure);
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
            QVERIFY(user.load(QLatin1String(service)).isEmpty());
            QTRY_VERIFY(!failure.isEmpty() || m_browser.lastPage.contains("Service has not been"));
        }
    }

    void refreshFallsBack_data()
    {
        QTest::addColumn<QString>("failure");
        QTest::addColumn<QString>("logged");
        QTest::addColumn<QString>("error"); ///< Empty: the user signs in again.
        const char *invalid = "Inavlid answer";
        const char *missing = "Failed to update access token";
        const char *none = "No answer to the refresh";
        const char *failures[][4] = {
            {"not JSON", R"({"status": 200, "body": "<html>"})", invalid, ""},
            {"array", R"({"status": 200, "body": "[]"})", invalid, ""},
            {"server error", R"({"status": 503})", invalid, ""},
            {"redirect", R"({"status": 302, "headers": {"Location": "/"}})", invalid, ""},
            {"revoked", R"({"status": 400, "body": {"error": "invalid_grant"}})", missing, ""},
            {"empty object", R"({"status": 200, "body": {}})", missing, ""},
            {"number", R"({"status": 200, "body": {"access_token": 5}})", missing, ""},
            {"lost", R"({"drop": 0})", none, "The service cannot be reached."},
            {"silent", R"({"hang": true})", none, "The service does not answer."}};
        for (const auto &failure : failures)
            QTest::newRow(failure[0]) << failure[1] << failure[2] << failure[3];
    }

    void refreshFallsBack()
    {
        QFETCH(QString, failure);
        QFETCH(QString, logged);
        QFETCH(QString, error);
        for (const QString &service : kVideoServices) {
            UploadFixture user(m_services);
            user.configure({{QStringLiteral("network/timeout"), QStringLiteral("1")}});
            user.grant(service);
            const QString before = user.load(service);
            m_services.fail(QStringLiteral("refresh"), failure, 9);
            LogCapture log;
            const UploadCourse course = user.run(service, user.video(100));
            QVERIFY(!log.lines().filter(logged).isEmpty());
            QCOMPARE(user.trouble(), error);
            QCOMPARE(course.signIns, error.isEmpty() ? 1 : 0);
            QCOMPARE(user.load(service) == before, !error.isEmpty());
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
        for (const QString &service : kServices) {
            UploadFixture user(m_services);
            user.configure(
                {{service + QStringLiteral("/port"), QString::number(other.serverPort())}});
            const UploadCourse course = user.run(service, user.video(10));
            QCOMPARE(course.failed, QStringList{QStringLiteral("Authorization error")});
        }
        QVERIFY(m_browser.visited.isEmpty()); // Nobody signs in to somebody else's port.
    }

    void noBrowserEndsTheSignIn()
    {
        // Without such a slot the address is opened by nothing.
        QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "none");
        for (const QString &service : kServices) {
            UploadFixture user(m_services);
            const UploadCourse course = user.run(service, user.video(10));
            QCOMPARE(course.failed,
                     QStringList{QStringLiteral("There is no program to show the sign-in page.")});
            QCOMPARE(course.ends(), 1);
        }
        QDesktopServices::setUrlHandler(QStringLiteral("https"), &m_browser, "open");
    }

private:
    FakeServices m_services{true};
    ScriptedBrowser m_browser;
};

QTEST_MAIN(SignInTest)
#include "SignInTest.moc"
