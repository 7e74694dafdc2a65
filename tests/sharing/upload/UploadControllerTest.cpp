// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/UploadController.h"

#include "helpers/LogCapture.h"
#include "helpers/Words.h"
#include "sharing/upload/UploadFixture.h"

#include <QTest>

using namespace velmora;

namespace
{

const QString kYoutube = QStringLiteral("youtube");
const QString kTitle = QStringLiteral("Ferien \u00fcber & \"unter\" Wasser \u65e5\u672c");

} // namespace

/// Uploads to the three services over TLS, with every way in which they can fail.
class UploadControllerTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_services.isRunning()); }
    void uploadFails_data()
    {
        QTest::addColumn<QString>("failure");
        QTest::addColumn<QString>("error"); ///< Empty: one of those for a lost connection.
        for (const int status : {200, 400, 401, 403, 429, 500, 503})
            QTest::addRow("%d with message", status)
                << QStringLiteral(
                       R"({"status": %1, "body": {"error": {"message": " Over\nquota "}}})")
                       .arg(status)
                << "Over quota";
        const char *unknown = "Unknown error";
        for (const int status : {401, 403, 429, 500})
            QTest::addRow("%d alone", status)
                << QStringLiteral(R"({"status": %1})").arg(status) << unknown;
        const char *unclear = "The answer of the service cannot be understood.";
        const char *failures[][3] = {
            {"early 401", R"({"status": 401, "early": true})", ""},
            {"error without message", R"({"status": 400, "body": {"error": {}}})", unknown},
            {"error as text", R"({"status": 400, "body": {"error": "broken"}})", "broken"},
            {"not JSON", R"({"status": 200, "body": "<html>", "type": "text/html"})", unknown},
            {"no identifier", R"({"status": 200, "body": {"kind": "video"}})", unknown},
            {"empty", R"({"status": 200})", unknown},
            {"redirect", R"({"status": 307, "headers": {"Location": "/upload/youtube/v3/videos"}})",
             unclear},
            {"endless", R"({"endless": true})", unclear},
            {"silent", R"({"hang": true})", "The service does not answer."},
            {"lost at once", R"({"drop": 0})", ""},
            {"lost in the middle", R"({"drop": 2000000})", ""},
            {"answer lost", R"({"drop": "answer"})", ""}};
        for (const auto &failure : failures)
            QTest::newRow(failure[0]) << failure[1] << failure[2];
    }

    void uploadFails()
    {
        QFETCH(QString, failure);
        QFETCH(QString, error);
        for (const QString &service : kVideoServices) {
            UploadFixture user(m_services);
            user.configure({{QStringLiteral("network/timeout"), QStringLiteral("1")}});
            user.grant(service);
            m_services.fail(QStringLiteral("upload"), failure, 9);
            const int size = failure.contains(QLatin1String("drop")) ? 3000000 : 100000;
            const UploadCourse course = user.run(service, user.video(size), kTitle);
            QCOMPARE(course.ends(), 1);
            QCOMPARE(course.failed.size(), 1);
            // Whether a broken connection is noticed before or after the first answer is chance.
            const QStringList lost{QStringLiteral("The service cannot be reached."),
                                   QStringLiteral("The connection to the service was lost."),
                                   QStringLiteral("Unknown error")};
            QString told = course.failed.first();
            QVERIFY(told.startsWith(QLatin1String("Error uploading video:")));
            told.remove(0, told.indexOf(QLatin1Char(':')) + 1);
            QVERIFY2(error.isEmpty() ? lost.contains(told) : told == error, qPrintable(told));
            QCOMPARE(course.starts, 1);
            QVERIFY(!user.controller().isRunning());
        }
    }

    void titleDoesNotMatter_data()
    {
        QTest::addColumn<QString>("failure");
        QTest::newRow("server error") << R"({"status": 500})";
        QTest::newRow("refused") << R"({"status": 403, "body": {"error": {}}})";
        QTest::newRow("lost") << R"({"drop": 0})";
        QTest::newRow("silent") << R"({"hang": true})";
    }

    void titleDoesNotMatter()
    {
        QFETCH(QString, failure);
        UploadFixture user(m_services);
        user.configure({{QStringLiteral("network/timeout"), QStringLiteral("1")}});
        user.grant(kYoutube);
        m_services.fail(QStringLiteral("title"), failure, 9);
        const UploadCourse course = user.run(kYoutube, user.video(1000), kTitle);
        const QString id = user.stored("id");
        QCOMPARE(course.finished,
                 (QStringList{id, m_services.url() + QStringLiteral("/watch?v=") + id}));
    }

    void cancelEndsEachStep_data()
    {
        QTest::addColumn<QString>("service");
        QTest::addColumn<QString>("step");
        const QStringList steps[] = {words("token refresh upload title"),
                                     words("token refresh upload"),
                                     words("token start append finish")};
        for (int i = 0; i < kServices.size(); ++i) {
            for (const QString &step : steps[i])
                QTest::addRow("%s, %s", qPrintable(kServices.at(i)), qPrintable(step))
                    << kServices.at(i) << step;
        }
    }

    void cancelEndsEachStep()
    {
        QFETCH(QString, service);
        QFETCH(QString, step);
        UploadFixture user(m_services);
        if (step != QLatin1String("token"))
            user.grant(service);
        m_services.fail(step, QStringLiteral(R"({"hang": true})"), 9);
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
        user.grant(service);
        const UploadCourse course = user.run(service, user.video(1000), kTitle);
        QCOMPARE(course.finished.size(), 2);
        QCOMPARE(course.ends(), 1);
    }

    void cancelBeforeStart()
    {
        UploadFixture user(m_services);
        user.start(kYoutube, user.video(10));
        user.start(QStringLiteral("dropbox"), user.video(10)); // Is not started: one at a time.
        user.controller().cancel();
        QCOMPARE(user.course.canceled, 1);
        QCoreApplication::processEvents();
        QCOMPARE(user.course.ends(), 1);
        QCOMPARE(m_services.steps(), QStringList());
    }

    void untrustedCertificateEndsAll()
    {
        for (const QString &service : kServices) {
            UploadFixture user(m_services);
            user.grant(service);
            user.configure({{QStringLiteral("network/ca_file"), QString()}});
            const UploadCourse course = user.run(service, user.video(10));
            QCOMPARE(course.failed.size(), 1);
            QVERIFY(course.failed.first().contains(
                QLatin1String("The connection to the service is not secure.")));
            QCOMPARE(m_services.steps(), QStringList()); // Not even the token left the machine.
        }
    }

    void badFiles()
    {
        UploadFixture user(m_services);
        const char *rows[][2] = {{"gone.mp4", "source file not found"},
                                 {".", "can't open source file for reading"}};
        for (const auto &row : rows) {
            for (const QString &service : kServices) {
                const UploadCourse course = user.run(service, user.path(row[0]));
                QCOMPARE(course.failed, QStringList{QString::fromLatin1(row[1])});
                QCOMPARE(course.signIns, 0);
            }
        }
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
        user.grant(kYoutube);
        m_services.fail(QStringLiteral("upload"), QStringLiteral(R"({"drop": "answer"})"));
        const UploadCourse course = user.run(kYoutube, user.video(1000));
        QCOMPARE(course.failed.size(), 1);
        QCOMPARE(m_services.files().size(), 1); // It arrived, once.
        QCOMPARE(m_services.steps().count(QStringLiteral("upload")), 1);
    }

private:
    FakeServices m_services{true};
    ScriptedBrowser m_browser;
};

QTEST_MAIN(UploadControllerTest)
#include "UploadControllerTest.moc"
