// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/ServiceSetup.h"

#include "app/ServicesConfig.h"
#include "sharing/upload/BaseOauth2Uploader.h"
#include "sharing/upload/FakeUploader.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace velmora;

namespace
{

ServicesConfig config(const QByteArray &text)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("services.ini")));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("Cannot write the configuration");
    file.close();
    return ServicesConfig::fromFile(file.fileName());
}

QByteArray section(const char *name, const QByteArray &changes)
{
    return QByteArray("[") + name +
           "]\nclient_id=id\nclient_secret=secret\nfolder=Shows\naccounts=https://a.test/\n"
           "api=https://b.test\nupload=https://c.test\ncontent=https://d.test\nweb=https://"
           "e.test\n" +
           changes;
}

} // namespace

class ServiceSetupTest : public QObject
{
    Q_OBJECT

private slots:
    void factsOfServices_data()
    {
        QTest::addColumn<QString>("tokenKey");
        QTest::addColumn<QString>("authorization");
        QTest::addColumn<QString>("token");
        QTest::addColumn<QString>("scope");
        QTest::addColumn<QString>("upload");
        QTest::addColumn<int>("port");
        QTest::newRow("youtube") << "yt"
                                 << "https://a.test/o/oauth2/v2/auth"
                                 << "https://b.test/oauth2/v4/token"
                                 << "https://b.test/auth/youtube"
                                 << "https://c.test" << 15674;
        QTest::newRow("googledrive") << "gd"
                                     << "https://a.test/o/oauth2/v2/auth"
                                     << "https://b.test/oauth2/v4/token"
                                     << "https://b.test/auth/drive.file"
                                     << "https://c.test" << 15674;
        QTest::newRow("dropbox") << "db"
                                 << "https://a.test/1/oauth2/authorize"
                                 << "https://b.test/oauth2/token"
                                 << ""
                                 << "https://d.test" << 8673;
    }

    void factsOfServices()
    {
        QFETCH(QString, tokenKey);
        QFETCH(QString, authorization);
        QFETCH(QString, token);
        QFETCH(QString, scope);
        QFETCH(QString, upload);
        QFETCH(int, port);
        const char *key = QTest::currentDataTag();
        const ServiceSetup setup = ServiceSetup::read(config(section(key, "")), QLatin1String(key));
        QVERIFY(setup.isComplete());
        QCOMPARE(setup.tokenKey, tokenKey);
        QCOMPARE(setup.authorizationUrl.toString(), authorization);
        QCOMPARE(setup.tokenUrl.toString(), token);
        QCOMPARE(setup.scope, scope);
        QCOMPARE(setup.uploadUrl.toString(), upload);
        QCOMPARE(int(setup.port), port);
    }

    void missingPartsAreNoticed_data()
    {
        QTest::addColumn<QByteArray>("changes");
        QTest::addColumn<QString>("complete"); ///< The services that can still be used.
        const QString none;
        const QString all = QStringLiteral("youtube googledrive dropbox");
        QTest::newRow("all there") << QByteArray() << all;
        for (const char *key : {"client_id=", "client_secret=", "accounts=", "api="})
            QTest::newRow(key) << QByteArray(key) << none;
        QTest::newRow("no upload host") << QByteArray("upload=") << QStringLiteral("dropbox");
        QTest::newRow("no content host")
            << QByteArray("content=") << QStringLiteral("youtube googledrive");
        QTest::newRow("no pages") << QByteArray("web=") << QStringLiteral("googledrive");
        QTest::newRow("no folder")
            << QByteArray("folder=") << QStringLiteral("youtube googledrive");
        QTest::newRow("not secure") << QByteArray("api=http://b.test") << none;
        QTest::newRow("another scheme") << QByteArray("api=ftp://b.test") << none;
        QTest::newRow("no address") << QByteArray("api=b.test") << none;
        QTest::newRow("with password") << QByteArray("api=https://u:p@b.test") << none;
        QTest::newRow("with query") << QByteArray("api=\"https://b.test?x\"") << none;
        QTest::newRow("looks local") << QByteArray("api=http://127.0.0.1.b.test") << none;
        QTest::newRow("local") << QByteArray("api=http://127.0.0.1:8080") << all;
        QTest::newRow("local name") << QByteArray("api=http://localhost:8080") << all;
        QTest::newRow("odd numbers") << QByteArray("port=70000") << all;
    }

    void missingPartsAreNoticed()
    {
        QFETCH(QByteArray, changes);
        QFETCH(QString, complete);
        QStringList usable;
        for (const char *key : {"youtube", "googledrive", "dropbox"}) {
            if (ServiceSetup::read(config(section(key, changes)), QLatin1String(key)).isComplete())
                usable.append(QLatin1String(key));
        }
        QCOMPARE(usable.join(QLatin1Char(' ')), complete);
        QVERIFY(!ServiceSetup::read(config(changes), QStringLiteral("unknown")).isComplete());
    }

    void percentIsCutOff_data()
    {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<qint64>("total");
        QTest::addColumn<int>("percent");
        QTest::newRow("none") << qint64(0) << qint64(3) << 0;
        QTest::newRow("a third") << qint64(1) << qint64(3) << 33;
        QTest::newRow("two thirds") << qint64(2) << qint64(3) << 66;
        QTest::newRow("all") << qint64(3) << qint64(3) << 100;
        QTest::newRow("nearly all of much") << (1LL << 40) - 1 << (1LL << 40) << 99;
        QTest::newRow("too many") << qint64(9) << qint64(3) << 100;
        QTest::newRow("total unknown") << qint64(5) << qint64(-1) << -1;
        QTest::newRow("nothing to send") << qint64(0) << qint64(0) << -1;
    }

    void percentIsCutOff()
    {
        QFETCH(qint64, bytes);
        QFETCH(qint64, total);
        QTEST(uploadPercent(bytes, total), "percent");
    }

    void fakeUploaderCounts()
    {
        FakeUploader uploader(0);
        QSignalSpy progress(&uploader, &BaseUploader::progress);
        QSignalSpy finished(&uploader, &BaseUploader::finished);
        QSignalSpy failed(&uploader, &BaseUploader::failed);
        uploader.startUpload(QString(), QString());
        QVERIFY(finished.wait());
        QCOMPARE(progress.size(), 100);
        QCOMPARE(finished.at(0), (QVariantList{QString(), QString()}));
        uploader.startUpload(QString(), QString());
        uploader.abort();
        QCOMPARE(failed.at(0), QVariantList{QString()});
        QCOMPARE(finished.size(), 1);
    }
};

QTEST_MAIN(ServiceSetupTest)
#include "ServiceSetupTest.moc"
