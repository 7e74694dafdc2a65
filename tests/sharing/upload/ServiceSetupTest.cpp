// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/ServiceSetup.h"

#include "app/ServicesConfig.h"
#include "helpers/Files.h"
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
    const QString file = folder.filePath(QStringLiteral("services.ini"));
    if (!writeFile(file, text))
        qFatal("Cannot write the configuration");
    return ServicesConfig::fromFile(file);
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
    // Where the user signs in and what is asked for, the tests of signing in show.
    void factsOfServices()
    {
        const char *services[][2] = {{"youtube", "yt https://c.test 15674"},
                                     {"googledrive", "gd https://c.test 15674"},
                                     {"dropbox", "db https://d.test 8673"}};
        for (const auto &[key, facts] : services) {
            const ServiceSetup setup =
                ServiceSetup::read(config(section(key, "")), QLatin1String(key));
            QVERIFY(setup.isComplete());
            QCOMPARE(QStringLiteral("%1 %2 %3")
                         .arg(setup.tokenKey, setup.uploadUrl.toString())
                         .arg(setup.port),
                     QString::fromLatin1(facts));
        }
    }

    void missingPartsAreNoticed_data()
    {
        QTest::addColumn<QByteArray>("changes");
        QTest::addColumn<QString>("complete"); ///< The services that can still be used.
        const char *none = "";
        const char *all = "youtube googledrive dropbox";
        const char *videos = "youtube googledrive";
        const char *rows[][3] = {{"all there", "", all},
                                 {"no client", "client_id=", none},
                                 {"no secret", "client_secret=", none},
                                 {"no accounts", "accounts=", none},
                                 {"no requests", "api=", none},
                                 {"no upload host", "upload=", "dropbox"},
                                 {"no content host", "content=", videos},
                                 {"no pages", "web=", "googledrive"},
                                 {"no folder", "folder=", videos},
                                 {"not secure", "api=http://b.test", none},
                                 {"another scheme", "api=ftp://b.test", none},
                                 {"no address", "api=b.test", none},
                                 {"with password", "api=https://u:p@b.test", none},
                                 {"with query", "api=\"https://b.test?x\"", none},
                                 {"looks local", "api=http://127.0.0.1.b.test", none},
                                 {"local", "api=http://127.0.0.1:8080", all},
                                 {"local name", "api=http://localhost:8080", all},
                                 {"odd numbers", "port=70000", all}};
        for (const auto &row : rows)
            QTest::newRow(row[0]) << QByteArray(row[1]) << row[2];
    }

    void missingPartsAreNoticed()
    {
        QFETCH(QByteArray, changes);
        QStringList usable;
        for (const char *key : {"youtube", "googledrive", "dropbox"}) {
            if (ServiceSetup::read(config(section(key, changes)), QLatin1String(key)).isComplete())
                usable.append(QLatin1String(key));
        }
        QTEST(usable.join(QLatin1Char(' ')), "complete");
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
        QTRY_VERIFY(!finished.isEmpty());
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
