// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/Files.h"
#include "platform/Secrets.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace velmora;

namespace
{

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
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_key = m_folder->filePath(QStringLiteral("secrets.key"));
        m_secrets = createSecrets(m_folder->path(), SecretKeyPlace::File);
    }

    void keyFileIsPrivate()
    {
        const mode_t before = umask(0);
        const QByteArray sealed = *m_secrets->protect("token");
        umask(before);
        QCOMPARE(modeOf(m_key), mode_t(0600));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList{QStringLiteral("secrets.key")});
        // One that is open to others is closed.
        QCOMPARE(chmod(QFile::encodeName(m_key).constData(), 0644), 0);
        QVERIFY(m_secrets->unprotect(sealed));
        QCOMPARE(modeOf(m_key), mode_t(0600));
    }

    void badKeyFile_data()
    {
        QTest::addColumn<int>("size");
        QTest::newRow("empty") << 0;
        QTest::newRow("short") << 31;
        QTest::newRow("long") << 33;
    }

    void badKeyFile()
    {
        QFETCH(int, size);
        const QByteArray sealed = *m_secrets->protect("token");
        QVERIFY(writeFile(m_key, QByteArray(size, 'k')));
        QVERIFY(!m_secrets->unprotect(sealed));
        QCOMPARE(readFile(m_key).size(), size); // Reading changes nothing;
        const auto again = m_secrets->protect("new");
        QVERIFY(again); // a new token makes a new key.
        QCOMPARE(m_secrets->unprotect(*again), std::optional<QByteArray>("new"));
        QCOMPARE(modeOf(m_key), mode_t(0600));
    }

    void unprotectMakesNoKey()
    {
        QVERIFY(!m_secrets->unprotect(QByteArray(100, 'x')));
        QVERIFY(QDir(m_folder->path()).isEmpty());
    }

    void unwritableFolderFails()
    {
        QVERIFY(writeFile(m_key));
        const auto secrets = createSecrets(m_key, SecretKeyPlace::File);
        QVERIFY(!secrets->protect("token"));
        QVERIFY(secrets->lastError() != 0);
    }

    // With VELMORA_TEST_KEY_RING set this uses the session's Secret Service, which should then be
    // one for the test alone; otherwise there is none, and a key file stands in for it.
    void desktopKeyRing()
    {
        const bool keyRing = qEnvironmentVariableIsSet("VELMORA_TEST_KEY_RING");
        if (!keyRing)
            qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
        const QString folder = m_folder->path();
        const auto sealed = createSecrets(folder)->protect("token");
        QVERIFY(sealed);
        QCOMPARE(QDir(folder).isEmpty(), keyRing);
        QCOMPARE(createSecrets(folder)->unprotect(*sealed), std::optional<QByteArray>("token"));
        // A second token does not replace the key of the first.
        QVERIFY(createSecrets(folder)->protect("another"));
        QCOMPARE(createSecrets(folder)->unprotect(*sealed), std::optional<QByteArray>("token"));
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_key; ///< The file.
    std::unique_ptr<Secrets> m_secrets;
};

QTEST_GUILESS_MAIN(SecretKeyFileTest)
#include "SecretKeyFileTest.moc"
