// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Log.h"

#include <QDebug>
#include <QJsonObject>
#include <QMap>
#include <QTest>

using namespace velmora;

namespace
{

/// Texts, and what the log holds of them.
const char *const kTexts[][2] = {
    {"https://h/p?a=1&access_token=SECRET&b=2", "https://h/p?a=1&access_token=***&b=2"},
    {"code=SECRET%2F1&client_secret=SECRET&grant_type=authorization_code",
     "code=***&client_secret=***&grant_type=authorization_code"},
    {R"({"access_token":"SECRET","expires_in":3600})", R"({"access_token":***,"expires_in":3600})"},
    {"{ \"refresh_token\" : \"SE CR\\\"ET\" , \"a\": 1 }", R"({ "refresh_token" : *** , "a": 1 })"},
    {R"({"code": "SECRET"})", R"({"code": ***})"},
    {"Answer: \"{\\\"access_token\\\":\\\"SECRET\\\",\\\"a\\\":1}\"",
     "Answer: \"{\\\"access_token\\\":***\\\",\\\"a\\\":1}\""},
    {"Authorization: Bearer SECRET", "Authorization: ***"},
    {"a\nauthorization:Digest u=\"SECRET\", r=SECRET\nb", "a\nauthorization:***\nb"},
    {"sent Bearer SECRET to h", "sent Bearer *** to h"},
    {"continue=https%3A%2F%2Fh%2F%3Fcode%3DSECRET%26state%3D1&x=1",
     "continue=https%3A%2F%2Fh%2F%3Fcode%3D***%26state%3D1&x=1"},
    {"GET /?code=SECRET HTTP/1.1", "GET /?code=*** HTTP/1.1"},
    {"client_secret=SECRET", "client_secret=***"},
    {"refresh_token: SECRET", "refresh_token: ***"},
    {"{\"access_token\":\"SECRE", R"({"access_token":***)"},
    {"access_token=SECRET access_token=SECRET", "access_token=*** access_token=***"},
};

const char *const kHarmlessTexts[] = {
    "Exit Code:0. Exit status:Normal",
    "Starting ffmpeg.exe -vcodec copy -acodec aac",
    R"({"error":{"code": 403,"message":"no"}})",
    "error code: 5",
    "barcode=7&zipcode=8",
    "Authorization failed",
    "the access_token is missing",
    "",
    "code",
};

} // namespace

class SecretMaskTest : public QObject
{
    Q_OBJECT
private slots:
    void masks_data()
    {
        QTest::addColumn<QString>("masked");
        for (const auto &text : kTexts)
            QTest::newRow(text[0]) << text[1];
        for (const char *text : kHarmlessTexts)
            QTest::newRow(text) << text;
    }

    void masks() { QTEST(Log::maskSecrets(QString::fromUtf8(QTest::currentDataTag())), "masked"); }

    void debugOutput()
    {
        const QString secret = QStringLiteral("SECRET");
        const auto hides = [&secret](const auto &value) {
            QString text;
            QDebug(&text) << value;
            return text.contains(secret) && !Log::maskSecrets(text).contains(secret);
        };
        QVERIFY(hides(QVariantMap{{QStringLiteral("access_token"), secret}}));
        QVERIFY(hides(QJsonObject{{QStringLiteral("client_secret"), secret}}));
        QVERIFY(hides(QPair<QByteArray, QByteArray>("Authorization", "Bearer SECRET")));
        QVERIFY(hides(QMap<QString, QString>{{QStringLiteral("code"), secret}}));
        QVERIFY(hides(QStringLiteral("http://h/?code=SECRET&a=1")));
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
