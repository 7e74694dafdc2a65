// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Secrets.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace velmora;

namespace
{

std::unique_ptr<Secrets> secretsIn(const QTemporaryDir &folder)
{
    return createSecrets(folder.path(), SecretKeyPlace::File);
}

mode_t modeOf(const QString &path)
{
    struct stat status = {};
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

} // namespace

/// The key that texts are protected with.
class SecretKeyFileTest : public QObject
{
    Q_OBJECT

private slots:
    void damageIsNoticed();
    void anotherUsersIsNot();
    void keyFileIsPrivate();
    void openKeyFileIsClosed();
    void badKeyFile_data();
    void badKeyFile();
    void unprotectMakesNoKey();
    void unwritableFolderFails();
    void desktopKeyRing();
};

void SecretKeyFileTest::damageIsNoticed()
{
    const QTemporaryDir folder;
    const auto secrets = secretsIn(folder);
    const QByteArray sealed = *secrets->protect("token");
    for (int i = 0; i < sealed.size(); ++i) {
        QByteArray damaged = sealed;
        damaged[i] = static_cast<char>(damaged.at(i) ^ 1);
        QVERIFY(!secrets->unprotect(damaged));
    }
}

void SecretKeyFileTest::anotherUsersIsNot()
{
    const QTemporaryDir folder;
    const QTemporaryDir other;
    const QByteArray sealed = *secretsIn(other)->protect("token");
    secretsIn(folder)->protect("mine");
    QVERIFY(!secretsIn(folder)->unprotect(sealed));
}

void SecretKeyFileTest::keyFileIsPrivate()
{
    const QTemporaryDir folder;
    const mode_t before = umask(0);
    QVERIFY(secretsIn(folder)->protect("token"));
    umask(before);
    QCOMPARE(modeOf(folder.filePath(QStringLiteral("secrets.key"))), mode_t(0600));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden),
             QStringList{QStringLiteral("secrets.key")});
}

void SecretKeyFileTest::openKeyFileIsClosed()
{
    const QTemporaryDir folder;
    const QString key = folder.filePath(QStringLiteral("secrets.key"));
    const QByteArray sealed = *secretsIn(folder)->protect("token");
    QCOMPARE(chmod(QFile::encodeName(key).constData(), 0644), 0);
    QVERIFY(secretsIn(folder)->unprotect(sealed));
    QCOMPARE(modeOf(key), mode_t(0600));
}

void SecretKeyFileTest::badKeyFile_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("empty") << 0;
    QTest::newRow("short") << 31;
    QTest::newRow("long") << 33;
}

void SecretKeyFileTest::badKeyFile()
{
    QFETCH(int, size);
    const QTemporaryDir folder;
    const auto secrets = secretsIn(folder);
    const QByteArray sealed = *secrets->protect("token");
    QFile key(folder.filePath(QStringLiteral("secrets.key")));
    QVERIFY(key.open(QIODevice::WriteOnly));
    key.write(QByteArray(size, 'k'));
    key.close();
    QVERIFY(!secrets->unprotect(sealed));
    QCOMPARE(key.size(), qint64(size)); // Reading changes nothing;
    const auto again = secrets->protect("new");
    QVERIFY(again); // a new token makes a new key.
    QCOMPARE(secrets->unprotect(*again), std::optional<QByteArray>("new"));
    QCOMPARE(modeOf(key.fileName()), mode_t(0600));
}

void SecretKeyFileTest::unprotectMakesNoKey()
{
    const QTemporaryDir folder;
    QVERIFY(!secretsIn(folder)->unprotect(QByteArray(100, 'x')));
    QVERIFY(QDir(folder.path()).isEmpty());
}

void SecretKeyFileTest::unwritableFolderFails()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("file"));
    QVERIFY(QFile(file).open(QIODevice::WriteOnly));
    const auto secrets = createSecrets(file, SecretKeyPlace::File);
    QVERIFY(!secrets->protect("token"));
    QVERIFY(secrets->lastError() != 0);
}

// With VELMORA_TEST_KEY_RING set this uses the session's Secret Service, which should then be one
// for the test alone; otherwise there is none, and a key file stands in for it.
void SecretKeyFileTest::desktopKeyRing()
{
    const bool keyRing = qEnvironmentVariableIsSet("VELMORA_TEST_KEY_RING");
    if (!keyRing)
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    const QTemporaryDir folder;
    const auto sealed = createSecrets(folder.path())->protect("token");
    QVERIFY(sealed);
    QCOMPARE(QDir(folder.path()).isEmpty(), keyRing);
    QCOMPARE(createSecrets(folder.path())->unprotect(*sealed), std::optional<QByteArray>("token"));
    // A second token does not replace the key of the first.
    QVERIFY(createSecrets(folder.path())->protect("another"));
    QCOMPARE(createSecrets(folder.path())->unprotect(*sealed), std::optional<QByteArray>("token"));
}

QTEST_GUILESS_MAIN(SecretKeyFileTest)
#include "SecretKeyFileTest.moc"
