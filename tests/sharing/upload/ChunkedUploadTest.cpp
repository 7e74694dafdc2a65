// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/LogCapture.h"
#include "sharing/upload/UploadFixture.h"
#include "sharing/upload/dropbox/client/DropboxUploader.h"

#include <QTest>

using namespace velmora;

namespace
{

constexpr int kChunk = 4194304;
constexpr int kLarge = 3 * kChunk + 12345;
const QString kService = QStringLiteral("dropbox");

} // namespace

/// Uploads in pieces: where they are cut, and how they go on after trouble.
class ChunkedUploadTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_services.isRunning()); }

    void cutsAtBoundaries_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QVector<int>>("pieces");
        QTest::newRow("empty") << 0 << "single" << QVector<int>{0};
        QTest::newRow("4 MiB - 1") << kChunk - 1 << "single" << QVector<int>{kChunk - 1};
        QTest::newRow("4 MiB") << kChunk << "single" << QVector<int>{kChunk};
        QTest::newRow("4 MiB + 1") << kChunk + 1 << "start finish" << QVector<int>{kChunk, 1};
        QTest::newRow("8 MiB") << 2 * kChunk << "start finish" << QVector<int>{kChunk, kChunk};
        QTest::newRow("8 MiB + 1")
            << 2 * kChunk + 1 << "start append finish" << QVector<int>{kChunk, kChunk, 1};
    }

    void cutsAtBoundaries()
    {
        QFETCH(int, size);
        UploadFixture user(m_services);
        user.grant(kService);
        const UploadCourse course = user.run(kService, user.video(size));
        QCOMPARE(user.trouble(), QString());
        QTEST(m_services.steps().join(QLatin1Char(' ')), "steps");
        QTEST(lengths(), "pieces");
        QVERIFY(user.hasArrived());
        QVERIFY(size == 0 || course.progress.last() == 100);
        QVERIFY(std::is_sorted(course.progress.begin(), course.progress.end()));
    }

    void namesSurvive_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("query");
        const char *rows[][2] = {{"100%1 %2.mp4", "100%251%20%252.mp4"},
                                 {"a \"b\" \\c.mp4", "a%20%22b%22%20%5Cc.mp4"},
                                 {"\u00fc\u65e5&=#.mp4", "%C3%BC%E6%97%A5%26%3D%23.mp4"},
                                 {"a\nb.mp4", "a%0Ab.mp4"}};
        for (const auto &row : rows)
            QTest::newRow(row[1]) << row[0] << QString::fromLatin1(row[1]);
    }

    void namesSurvive()
    {
        QFETCH(QString, name);
        QFETCH(QString, query);
        for (const int size : {10, kChunk + 1}) {
            UploadFixture user(m_services);
            user.grant(kService);
            const UploadCourse course = user.run(kService, user.video(size, name));
            const QString page =
                m_services.url() + QStringLiteral("/home/Apps/Velmora%20Videos?preview=");
            QCOMPARE(course.finished, (QStringList{QLatin1Char('/') + name, page + query}));
            QCOMPARE(user.stored("title"), QLatin1Char('/') + name);
            QCOMPARE(user.trouble(), QString());
        }
    }

    void goesOnAfterTrouble_data()
    {
        QTest::addColumn<QString>("step");
        QTest::addColumn<QString>("failure");
        QTest::addColumn<int>("times");
        const auto rows = [](const char *name, const char *json, int times) {
            for (const char *step : {"start", "append", "finish"})
                QTest::addRow("%s, %s", name, step) << step << QString::fromLatin1(json) << times;
        };
        // Qt itself repeats a request whose connection broke, twice.
        rows("lost at once", R"({"drop": 0})", 4);
        rows("lost in the middle", R"({"drop": 10000})", 4);
        rows("answer lost", R"({"drop": "answer"})", 1);
        rows("server error", R"({"status": 500})", 3);
        rows("busy", R"({"status": 429, "headers": {"Retry-After": "0"}})", 2);
        rows("silent", R"({"hang": true})", 1);
    }

    void goesOnAfterTrouble()
    {
        QFETCH(QString, step);
        QFETCH(QString, failure);
        QFETCH(int, times);
        UploadFixture user(m_services);
        user.configure({{QStringLiteral("network/timeout"), QStringLiteral("1")}});
        user.grant(kService);
        m_services.fail(step, failure, times);
        m_services.fail(QStringLiteral("refresh"), QStringLiteral(R"({"drop": 0})"), 99);
        const UploadCourse course = user.run(kService, user.video(kLarge));
        QCOMPARE(user.trouble(), QString());
        QVERIFY(user.hasArrived());
        // Only the piece in trouble was sent again.
        if (step != QLatin1String("start"))
            QCOMPARE(lengths(QStringLiteral("start")).size(), 1);
        if (step != QLatin1String("append"))
            QCOMPARE(lengths(QStringLiteral("append")).size(), 2);
        QCOMPARE(course.starts, 1);
        QCOMPARE(course.progress.last(), 100);
    }

    void givesUp_data()
    {
        QTest::addColumn<QString>("failure");
        QTest::addColumn<QString>("error");
        QTest::addColumn<int>("requests");
        QTest::addColumn<QString>("step");
        const auto row = [](const char *name, const char *json, const char *error, int requests = 1,
                            const char *step = "append") {
            QTest::newRow(name) << json << QString::fromLatin1(error) << requests << step;
        };
        const char *unclear = "The answer of the service cannot be understood.";
        row("server stays down", R"({"status": 503})", "503: Unknown error", 6);
        row("forbidden", R"({"status": 403, "body": {"error_summary": "no_permission/"}})",
            "403: no_permission/");
        row("user's message",
            R"({"status": 409, "body": {"error_summary": "full/", "user_message": "No space."}})",
            "409: No space.");
        row("message with language",
            R"({"status": 409, "body": {"user_message": {"text": "Full."}}})", "409: Full.");
        row("not JSON", R"({"status": 400, "body": "<html>"})", "400: Unknown error");
        row("offset before", R"({"status": 409, "body": {"error": {"correct_offset": 5}}})",
            "409: Unknown error");
        row("offset beyond", R"({"status": 409, "body": {"error": {"correct_offset": 1e15}}})",
            "409: Unknown error");
        row("offset unchanged",
            R"({"status": 409, "body": {"error": {"correct_offset": 4194304}}})",
            "409: Unknown error", 6);
        row("redirect", R"({"status": 307, "headers": {"Location": "/"}})",
            "307: The answer of the service cannot be understood.");
        row("no session", R"({"status": 200, "body": {}})", unclear, 1, "start");
        row("bad session", R"({"status": 200, "body": {"session_id": "a\r\nb"}})", unclear, 1,
            "start");
    }

    void givesUp()
    {
        QFETCH(QString, failure);
        QFETCH(QString, error);
        QFETCH(QString, step);
        UploadFixture user(m_services);
        user.grant(kService);
        m_services.fail(step, failure, 99);
        const UploadCourse course = user.run(kService, user.video(kLarge));
        QCOMPARE(course.failed, QStringList{error});
        QCOMPARE(course.ends(), 1);
        QTEST(lengths(step).size(), "requests");
    }

    void expiredTokenIsRenewed_data()
    {
        QTest::addColumn<QString>("step");
        QTest::addColumn<bool>("refreshes");
        for (const char *step : {"start", "append", "finish"}) {
            QTest::addRow("%s, refresh", step) << step << true;
            QTest::addRow("%s, sign-in", step) << step << false;
        }
    }

    void expiredTokenIsRenewed()
    {
        QFETCH(QString, step);
        QFETCH(bool, refreshes);
        UploadFixture user(m_services);
        user.grant(kService);
        if (!refreshes)
            forgetRefreshToken(user);
        if (step == QLatin1String("start"))
            m_services.control({{QStringLiteral("expire"), true}});
        else
            m_services.fail(
                step,
                QStringLiteral(
                    R"({"status": 401, "body": {"error_summary": "expired_access_token/"}})"));
        const UploadCourse course = user.run(kService, user.video(kLarge));
        QCOMPARE(user.trouble(), QString());
        QCOMPARE(course.signIns, refreshes ? 0 : 1);
        QCOMPARE(course.signInEnds, course.signIns);
        QCOMPARE(course.starts, 1);
        QCOMPARE(lengths(QStringLiteral("start")).size(), step == QLatin1String("start") ? 2 : 1);
        QVERIFY(user.hasArrived());
        // The fresh tokens are the stored ones.
        QVERIFY(user.load(kService).contains(QLatin1String("refresh_token")));
        QCOMPARE(user.run(kService, user.video(5)).signIns, 0);
    }

    void earlyRefusalIsNoticed_data()
    {
        QTest::addColumn<bool>("hasRefreshToken");
        QTest::addColumn<int>("retryDelay");
        QTest::addColumn<bool>("refreshFails");
        QTest::addColumn<int>("signIns");
        QTest::newRow("refresh") << true << 600000 << false << 0;
        QTest::newRow("refused refresh") << true << 600000 << true << 1;
        QTest::newRow("sign-in") << false << 1 << false << 1;
    }

    /// The answer is lost with the connection, and repeating the request would not help.
    void earlyRefusalIsNoticed()
    {
        QFETCH(bool, hasRefreshToken);
        QFETCH(int, retryDelay);
        QFETCH(bool, refreshFails);
        UploadFixture user(m_services);
        user.configure({{QStringLiteral("network/retry_delay"), QString::number(retryDelay)}});
        user.grant(kService);
        if (!hasRefreshToken)
            forgetRefreshToken(user);
        m_services.control({{QStringLiteral("expire"), true}, {QStringLiteral("hasty"), true}});
        if (refreshFails)
            m_services.fail(QStringLiteral("refresh"), QStringLiteral(R"({"status": 400})"));
        const UploadCourse course = user.run(kService, user.video(kLarge));
        QCOMPARE(course.failed, QStringList());
        QTEST(course.signIns, "signIns");
        QCOMPARE(m_services.steps().count(QStringLiteral("refresh")), hasRefreshToken ? 1 : 0);
        QVERIFY(user.hasArrived());
    }

    void refusedTokenEndsAfterOneSignIn()
    {
        UploadFixture user(m_services);
        user.grant(kService);
        m_services.fail(QStringLiteral("single"),
                        QStringLiteral(R"({"status": 401, "body": {"error_summary": "no"}})"), 99);
        m_services.fail(QStringLiteral("refresh"),
                        QStringLiteral(R"({"status": 400, "body": {"error": "invalid_grant"}})"));
        const UploadCourse course = user.run(kService, user.video(10));
        QCOMPARE(course.failed, QStringList{QStringLiteral("401: no")});
        QCOMPARE(course.signIns, 1);
    }

    void cancelWhileWaiting()
    {
        UploadFixture user(m_services);
        user.configure({{QStringLiteral("network/retry_delay"), QStringLiteral("60000")}});
        user.grant(kService);
        m_services.fail(QStringLiteral("append"), QStringLiteral(R"({"status": 500})"));
        LogCapture log;
        user.start(kService, user.video(kLarge));
        QTRY_VERIFY(
            !log.lines().filter(QStringLiteral("The upload goes on in 60000 ms")).isEmpty());
        user.controller().cancel();
        QCOMPARE(user.course.canceled, 1);
        QCOMPARE(user.course.ends(), 1);
    }

    void shrinkingFileFails()
    {
        UploadFixture user(m_services);
        user.grant(kService);
        const QString file = user.video(kLarge);
        m_services.fail(QStringLiteral("append"), QStringLiteral(R"({"delay": 0.5})"));
        user.start(kService, file);
        QTRY_VERIFY(m_services.steps().contains(QStringLiteral("append")));
        QVERIFY(QFile::resize(file, kChunk + 5));
        QCOMPARE(user.wait().failed,
                 QStringList{QStringLiteral("can't open source file for reading")});
    }

private:
    static void forgetRefreshToken(UploadFixture &user)
    {
        QJsonObject tokens = QJsonDocument::fromJson(user.load(kService).toUtf8()).object();
        tokens.remove(QStringLiteral("refresh_token"));
        user.save(kService, QString::fromUtf8(QJsonDocument(tokens).toJson()));
    }

    QVector<int> lengths(const QString &step = QString())
    {
        QVector<int> all;
        const QJsonArray requests = m_services.requests();
        for (const QJsonValue &request : requests) {
            if (step.isEmpty() || request[QLatin1String("step")].toString() == step)
                all.append(request[QLatin1String("length")].toInt());
        }
        return all;
    }

    FakeServices m_services{false};
    ScriptedBrowser m_browser;
};

QTEST_MAIN(ChunkedUploadTest)
#include "ChunkedUploadTest.moc"
