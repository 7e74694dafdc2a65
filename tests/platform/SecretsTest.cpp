// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Secrets.h"

#include <QTemporaryDir>
#include <QTest>

#include <thread>
#include <vector>

using namespace velmora;

namespace
{

std::unique_ptr<Secrets> secretsIn(const QTemporaryDir &folder)
{
    return createSecrets(folder.path(), SecretKeyPlace::File);
}

} // namespace

/// Texts protected for this user.
class SecretsTest : public QObject
{
    Q_OBJECT

private slots:
    void comesBack_data();
    void comesBack();
    void sameTextLooksDifferent();
    void damageChangesNoText();
    void oneKeyOfMany();
};

void SecretsTest::comesBack_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("token") << QByteArray("1//0g-token");
    QTest::newRow("any bytes") << QByteArray("\0\xff\n", 3);
    QTest::newRow("long") << QByteArray(100000, 'x');
}

void SecretsTest::comesBack()
{
    QFETCH(QByteArray, text);
    const QTemporaryDir folder;
    const auto sealed = secretsIn(folder)->protect(text);
    QVERIFY(sealed);
    QVERIFY(text.isEmpty() || !sealed->contains(text));
    QCOMPARE(secretsIn(folder)->unprotect(*sealed), std::optional<QByteArray>(text));
}

void SecretsTest::sameTextLooksDifferent()
{
    const QTemporaryDir folder;
    const auto secrets = secretsIn(folder);
    QVERIFY(secrets->protect("a") != secrets->protect("a"));
}

void SecretsTest::damageChangesNoText()
{
    const QTemporaryDir folder;
    const auto secrets = secretsIn(folder);
    const QByteArray sealed = *secrets->protect("token");
    for (int i = 0; i < sealed.size(); ++i) {
        QByteArray damaged = sealed;
        damaged[i] = static_cast<char>(damaged.at(i) ^ 1);
        QCOMPARE(secrets->unprotect(damaged).value_or("token"), QByteArray("token"));
        QVERIFY(!secrets->unprotect(sealed.left(i)));
    }
    QVERIFY(secrets->lastError() != 0);
}

void SecretsTest::oneKeyOfMany()
{
    const QTemporaryDir folder;
    constexpr int kThreads = 8;
    std::vector<QByteArray> sealed(kThreads);
    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i)
        threads.emplace_back([&, i] {
            sealed[static_cast<size_t>(i)] =
                secretsIn(folder)->protect("token").value_or(QByteArray());
        });
    for (std::thread &thread : threads)
        thread.join();
    for (const QByteArray &each : sealed)
        QCOMPARE(secretsIn(folder)->unprotect(each), std::optional<QByteArray>("token"));
}

QTEST_GUILESS_MAIN(SecretsTest)
#include "SecretsTest.moc"
