// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ServicesConfig.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace velmora;

class ServicesConfigTest : public QObject
{
    Q_OBJECT
private slots:
    void cleanup()
    {
        qunsetenv("VELMORA_METRICS_ADDRESS");
        qunsetenv("VELMORA_YOUTUBE_CLIENT_ID");
    }

    void missingFileConfiguresNothing()
    {
        const ServicesConfig config = ServicesConfig::fromFile(QStringLiteral("/no/such/file"));
        QVERIFY(!config.isConfigured(QStringLiteral("metrics/address")));
    }

    void readsFile()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("services.ini")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[metrics]\naddress=http://h/?a=1,2\n[youtube]\nclient_id =  \"x y\"\nempty=\n");
        file.close();
        const ServicesConfig config = ServicesConfig::fromFile(file.fileName());
        QCOMPARE(config.value(QStringLiteral("metrics/address")),
                 QStringLiteral("http://h/?a=1,2"));
        QCOMPARE(config.value(QStringLiteral("youtube/client_id")), QStringLiteral("x y"));
        QVERIFY(!config.isConfigured(QStringLiteral("youtube/empty")));

        qputenv("VELMORA_METRICS_ADDRESS", "http://other");
        QCOMPARE(config.value(QStringLiteral("metrics/address")), QStringLiteral("http://other"));
        qputenv("VELMORA_YOUTUBE_CLIENT_ID", "");
        if (!qEnvironmentVariableIsSet("VELMORA_YOUTUBE_CLIENT_ID"))
            QSKIP("There are no empty environment variables here.");
        QVERIFY(!config.isConfigured(QStringLiteral("youtube/client_id")));
    }

    void environmentNeedsNoFile()
    {
        qputenv("VELMORA_YOUTUBE_CLIENT_ID", "abc");
        QCOMPARE(ServicesConfig().value(QStringLiteral("youtube/client_id")),
                 QStringLiteral("abc"));
    }
};

QTEST_GUILESS_MAIN(ServicesConfigTest)
#include "ServicesConfigTest.moc"
