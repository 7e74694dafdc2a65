// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Log.h"

#include <QDebug>
#include <QJsonObject>
#include <QMap>
#include <QTest>
#include <QVariant>

using namespace velmora;

class SecretMaskTest : public QObject
{
    Q_OBJECT

private slots:
    void masks_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("masked");
        const auto row = [](const char *name, const char *text, const char *masked) {
            QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(masked);
        };
        row("query", "https://h/p?a=1&access_token=SECRET&b=2",
            "https://h/p?a=1&access_token=***&b=2");
        row("form", "code=SECRET%2F1&client_secret=SECRET&grant_type=authorization_code",
            "code=***&client_secret=***&grant_type=authorization_code");
        row("json", R"({"access_token":"SECRET","expires_in":3600})",
            R"({"access_token":***,"expires_in":3600})");
        row("json, spaces", R"({ "refresh_token" : "SE CR\"ET" , "a": 1 })",
            R"({ "refresh_token" : *** , "a": 1 })");
        row("json code", R"({"code": "SECRET"})", R"({"code": ***})");
        row("escaped json", R"(Answer: "{\"access_token\":\"SECRET\",\"a\":1}")",
            R"(Answer: "{\"access_token\":***\",\"a\":1}")");
        row("header", "Authorization: Bearer SECRET", "Authorization: ***");
        row("header, lower case", "a\nauthorization:Digest u=\"SECRET\", r=SECRET\nb",
            "a\nauthorization:***\nb");
        row("bearer alone", "sent Bearer SECRET to h", "sent Bearer *** to h");
        row("encoded", "continue=https%3A%2F%2Fh%2F%3Fcode%3DSECRET%26state%3D1&x=1",
            "continue=https%3A%2F%2Fh%2F%3Fcode%3D***%26state%3D1&x=1");
        row("after a question mark", "GET /?code=SECRET HTTP/1.1", "GET /?code=*** HTTP/1.1");
        row("at the end", "client_secret=SECRET", "client_secret=***");
        row("colon", "refresh_token: SECRET", "refresh_token: ***");
        row("cut off", R"({"access_token":"SECRE)", R"({"access_token":***)");
        row("twice", "access_token=SECRET access_token=SECRET",
            "access_token=*** access_token=***");
    }

    void masks()
    {
        QFETCH(QString, text);
        QTEST(Log::maskSecrets(text), "masked");
    }

    void debugOutput_data()
    {
        QTest::addColumn<QString>("text");
        const auto text = [](const auto &value) {
            QString result;
            QDebug(&result) << value;
            return result;
        };
        QTest::newRow("map") << text(
            QVariantMap{{QStringLiteral("access_token"), QStringLiteral("SECRET")}});
        QTest::newRow("json object")
            << text(QJsonObject{{QStringLiteral("client_secret"), QStringLiteral("SECRET")}});
        QTest::newRow("raw header")
            << text(QPair<QByteArray, QByteArray>("Authorization", "Bearer SECRET"));
        QTest::newRow("code in a map")
            << text(QMap<QString, QString>{{QStringLiteral("code"), QStringLiteral("SECRET")}});
        QTest::newRow("quoted address") << text(QStringLiteral("http://h/?code=SECRET&a=1"));
    }

    void debugOutput()
    {
        QFETCH(QString, text);
        QVERIFY(text.contains(QStringLiteral("SECRET")));
        QVERIFY2(!Log::maskSecrets(text).contains(QStringLiteral("SECRET")),
                 qPrintable(Log::maskSecrets(text)));
    }

    void leavesAlone_data()
    {
        QTest::addColumn<QString>("text");
        for (const char *text :
             {"Exit Code:0. Exit status:Normal", "Starting ffmpeg.exe -vcodec copy -acodec aac",
              R"({"error":{"code": 403,"message":"no"}})", "error code: 5", "barcode=7&zipcode=8",
              "Authorization failed", "the access_token is missing", "", "code"})
            QTest::newRow(text) << QString::fromUtf8(text);
    }

    void leavesAlone()
    {
        QFETCH(QString, text);
        QCOMPARE(Log::maskSecrets(text), text);
    }

    // A matcher that runs out of its limits would leave the value in the text.
    void longValue()
    {
        const QString value = QStringLiteral("S\\\"").repeated(1000000);
        const QString text = QStringLiteral("{\"access_token\":\"%1\"}").arg(value);
        QCOMPARE(Log::maskSecrets(text), QStringLiteral("{\"access_token\":***}"));
    }
};

QTEST_GUILESS_MAIN(SecretMaskTest)
#include "SecretMaskTest.moc"
