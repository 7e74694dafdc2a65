// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Log.h"
#include "helpers/LogCapture.h"
#include "sharing/upload/UploadFixture.h"

#include <QDirIterator>
#include <QProcess>
#include <QTest>

using namespace velmora;

namespace
{

const QString kYoutube = QStringLiteral("youtube");

/// The first of @p tokens that is in @p data in one of the forms in which it could show up, or
/// null.
QString findIn(const QByteArray &data, const QStringList &tokens)
{
    for (const QString &token : tokens) {
        const QByteArray plain = token.toUtf8();
        const QByteArray wide(reinterpret_cast<const char *>(token.utf16()), 2 * token.size());
        for (const QByteArray &form :
             {plain, wide, QUrl::toPercentEncoding(token), QUrl::toPercentEncoding(token, "/"),
              plain.toHex(), plain.toBase64()}) {
            if (data.contains(form))
                return token;
        }
    }
    return {};
}

QByteArray commandLines()
{
    QByteArray all;
    const QStringList processes = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
    for (const QString &process : processes)
        all += readFile(QStringLiteral("/proc/%1/cmdline").arg(process)) + '\n';
    return all;
}

} // namespace

/// Codes and tokens leave no trace in plain form.
class TokenSecrecyTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_services.isRunning()); }
    void filesAndProcesses()
    {
        UploadFixture user(m_services);
        qputenv("VELMORA_DATA_DIR", user.path(".").toLocal8Bit());
        Log::install(QStringLiteral("log"));
        QByteArray processes;
        for (const QString &service : kServices) {
            // Signed in, renewed, failed, and caught in the middle.
            QCOMPARE(user.run(service, user.video(1000)).finished.size(), 2);
            QCOMPARE(user.run(service, user.video(1001)).finished.size(), 2);
            m_services.fail(QStringLiteral("token"),
                            {{QStringLiteral("status"), 200},
                             {QStringLiteral("body"),
                              QStringLiteral("{\"access_token\": \"access-broken-1\"")}});
            m_services.fail(QStringLiteral("refresh"), QStringLiteral(R"({"status": 400})"));
            m_services.control({{QStringLiteral("expire"), true}});
            QCOMPARE(user.run(service, user.video(1002)).failed.size(), 1);
            const QString step = service == QLatin1String("dropbox") ? QStringLiteral("single")
                                                                     : QStringLiteral("upload");
            m_services.fail(step, QStringLiteral(R"({"hang": true})"));
            user.start(service, user.video(1003));
            QTRY_COMPARE(m_services.steps().last(), step);
            processes += commandLines();
            user.controller().cancel();
        }
        const QString log = Log::currentFile();
        Log::uninstall();

        const QStringList tokens = m_services.secrets() << QStringLiteral("access-broken-1");
        QVERIFY2(tokens.size() > 9, "the test must know the tokens");
        QVERIFY(processes.contains("fakes/services"));
        QCOMPARE(findIn(processes, tokens), QString());
        QVERIFY(readFile(log).contains("requesting url:"));
        QVERIFY(readFile(user.path("settings.ini")).contains("yt="));
        int files = 0;
        for (QDirIterator all(user.path("."), QDir::Files, QDirIterator::Subdirectories);
             all.hasNext(); ++files)
            QVERIFY2(findIn(readFile(all.next()), tokens).isEmpty(), qPrintable(all.filePath()));
        QVERIFY(files >= 3);
        qunsetenv("VELMORA_DATA_DIR");
    }

    void coreFile()
    {
        const QTemporaryDir folder;
        const QString token = QStringLiteral("1//refresh-to-be-found-in-a-core-file");
        {
            const auto store = openSettings(folder.filePath(QStringLiteral("settings.ini")));
            const auto secrets = createSecrets(folder.path(), SecretKeyPlace::File);
            TokenStore(*store, *secrets).save(QStringLiteral("yt"), token);
        }
        const auto crash = [&](const char *how) {
            const QTemporaryDir place;
            QProcess holder;
            holder.setWorkingDirectory(place.path());
            holder.start(QCoreApplication::applicationDirPath() + QStringLiteral("/tokenholder"),
                         {folder.path(), QLatin1String(how)});
            holder.waitForFinished();
            const QStringList cores =
                QDir(place.path()).entryList({QStringLiteral("core*")}, QDir::Files);
            return cores.isEmpty() ? QByteArray() : readFile(place.filePath(cores.first()));
        };
        const QByteArray plain = crash("plain");
        if (plain.isEmpty())
            QSKIP("This system writes no core files into the working folder");
        QCOMPARE(findIn(plain, {token}), token); // Where it is found unless care is taken.
        const QByteArray guarded = crash("guarded");
        QVERIFY(!guarded.isEmpty());
        QCOMPARE(findIn(guarded, {token}), QString());
    }

    void storedTokens_data()
    {
        QTest::addColumn<QString>("change");
        for (const char *change :
             {"none", "cut", "flipped", "upper case", "not hexadecimal", "another user's", "empty"})
            QTest::newRow(change) << QString::fromLatin1(change);
    }

    void storedTokens()
    {
        QFETCH(QString, change);
        UploadFixture user(m_services);
        UploadFixture other(m_services);
        user.grant(kYoutube);
        other.grant(kYoutube);
        QString stored = user.store().value(QStringLiteral("yt")).toString();
        QCOMPARE(stored, stored.toLower());
        QCOMPARE(QString::fromLatin1(QByteArray::fromHex(stored.toLatin1()).toHex()), stored);
        if (change == QLatin1String("cut"))
            stored.chop(2);
        else if (change == QLatin1String("flipped"))
            stored[60] = stored.at(60) == QLatin1Char('0') ? QLatin1Char('1') : QLatin1Char('0');
        else if (change == QLatin1String("upper case"))
            stored = stored.toUpper();
        else if (change == QLatin1String("not hexadecimal"))
            stored = QStringLiteral("1//refresh");
        else if (change == QLatin1String("another user's"))
            stored = other.store().value(QStringLiteral("yt")).toString();
        else if (change == QLatin1String("empty"))
            stored.clear();
        user.store().setValue(QStringLiteral("yt"), stored);

        const bool readable = change == QLatin1String("none");
        LogCapture log;
        QCOMPARE(user.load(kYoutube).isEmpty(), !readable);
        const bool complains =
            !log.lines().filter(QStringLiteral("Failed to crypt token for, error")).isEmpty();
        QCOMPARE(complains, !readable && !stored.isEmpty());
        // The user is asked again, and all is well.
        const UploadCourse course = user.run(kYoutube, user.video(10));
        QCOMPARE(course.signIns, readable ? 0 : 1);
        QCOMPARE(course.finished.size(), 2);
        QVERIFY(!user.load(kYoutube).isEmpty());
    }

    void unwritableKeyMeansNoToken()
    {
        UploadFixture user(m_services);
        QVERIFY(QDir(user.path(".")).mkdir(QStringLiteral("secrets.key")));
        LogCapture log;
        const UploadCourse course = user.run(QStringLiteral("googledrive"), user.video(10));
        QCOMPARE(course.finished.size(), 2); // Only the next upload has to ask again.
        QVERIFY(!log.lines().filter(QStringLiteral("Failed to crypt token for, error")).isEmpty());
        QVERIFY(!user.store().contains(QStringLiteral("gd")));
    }

private:
    FakeServices m_services{true};
    ScriptedBrowser m_browser;
};

QTEST_MAIN(TokenSecrecyTest)
#include "TokenSecrecyTest.moc"
