// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/wire/PlainMessage.h"
#include "sharing/upload/wire/TokenAnswer.h"
#include "sharing/upload/wire/UploadAnswer.h"

#include <QTest>

using namespace velmora;

/// What services answer, the odd cases; the usual ones are in the tests of uploads.
class AnswersTest : public QObject
{
    Q_OBJECT

private slots:
    void tokens_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("access");
        QTest::addColumn<QString>("refresh");
        QTest::addColumn<QString>("problem");
        const char *json = "application/json";
        const char *form = "application/x-www-form-urlencoded";
        const char *good = R"({"access_token": "a.b", "refresh_token": "1//c"})";
        const char *goodForm = "access_token=a%2Bb&refresh_token=c&scope=x+y";
        const char *rows[][6] = {
            {"JSON", json, good, "a.b", "1//c", ""},
            {"with charset", "Application/JSON; charset=utf-8", good, "a.b", "1//c", ""},
            {"script", "text/javascript", good, "a.b", "1//c", ""},
            {"form", form, goodForm, "a+b", "c", ""},
            {"form as HTML", "text/html", goodForm, "a+b", "c", ""},
            {"blank in token", "text/html", "access_token=a+b", "", "", ""},
            {"no type", "", good, "", "", "Empty Content-type header"},
            {"no data", json, "", "", "", "No received data"},
            {"array", json, "[1]", "", "", "Received data is not a JSON object: [1]"},
            {"nothing in it", json, "{}", "", "", "Received empty JSON object: {}"},
            {"picture", "image/png", good, "", "", "Unknown Content-type: image/png"},
            {"wrong kinds", json, R"({"access_token": ["a"], "refresh_token": 5})", "", "", ""},
            {"header injection", json, R"({"access_token": "a\r\nCookie: b"})", "", "", ""}};
        for (const auto &row : rows)
            QTest::newRow(row[0]) << QByteArray(row[1]) << QByteArray(row[2]) << row[3] << row[4]
                                  << row[5];
    }

    void tokens()
    {
        QFETCH(QByteArray, type);
        QFETCH(QByteArray, body);
        const TokenAnswer answer = TokenAnswer::parse(type, body);
        QTEST(answer.accessToken(), "access");
        QTEST(answer.refreshToken(), "refresh");
        QFETCH(QString, problem);
        if (!problem.isEmpty())
            problem.prepend(QLatin1String("QOAuthOobReplyHandler::networkReplyFinished: "));
        QCOMPARE(answer.problem, problem);
    }

    void links_data()
    {
        QTest::addColumn<QByteArray>("link");
        QTest::addColumn<bool>("usable");
        QTest::newRow("page") << QByteArray("\"https://a.test/file?x=1\"") << true;
        QTest::newRow("script") << QByteArray("\"javascript:alert(1)\"") << false;
        QTest::newRow("file") << QByteArray("\"file:///etc/passwd\"") << false;
        QTest::newRow("no host") << QByteArray("\"https:///x\"") << false;
        QTest::newRow("number") << QByteArray("7") << false;
    }

    void links()
    {
        QFETCH(QByteArray, link);
        const UploadAnswer answer =
            UploadAnswer::parse(R"({"id": "1", "alternateLink": )" + link + "}");
        QVERIFY(!answer.isError);
        QTEST(!answer.alternateLink().isEmpty(), "usable");
    }

    void messages_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("plain");
        QTest::newRow("lines") << "a\r\n  b\tc"
                               << "a b c";
        QTest::newRow("control") << QStringLiteral("a\u0007b\u202eevil\u200b")
                                 << QStringLiteral("a b evil");
        QTest::newRow("letters") << QStringLiteral("\u00fc\u65e5")
                                 << QStringLiteral("\u00fc\u65e5");
        QTest::newRow("long") << QString(5000, QLatin1Char('x'))
                              << QString(299, QLatin1Char('x')) + QChar(0x2026);
        const QString face = QString::fromUcs4(U"\U0001F600");
        QTest::newRow("pairs stay whole") << face.repeated(400).prepend(QLatin1Char('a'))
                                          << QLatin1Char('a') + face.repeated(149) + QChar(0x2026);
    }

    void messages()
    {
        QFETCH(QString, text);
        QTEST(plainMessage(text), "plain");
    }
};

QTEST_GUILESS_MAIN(AnswersTest)
#include "AnswersTest.moc"
