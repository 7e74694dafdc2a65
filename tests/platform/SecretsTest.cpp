// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Secrets.h"

#include <QTemporaryDir>
#include <QTest>

#include <thread>
#include <vector>

using namespace velmora;

/// Texts protected for this user.
class SecretsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void comesBack_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("token") << QByteArray("1//0g-token");
        QTest::newRow("any bytes") << QByteArray("\0\xff\n", 3);
        QTest::newRow("long") << QByteArray(100000, 'x');
    }

    void comesBack()
    {
        QFETCH(QByteArray, text);
        const auto sealed = secrets()->protect(text);
        QVERIFY(sealed);
        QVERIFY(text.isEmpty() || !sealed->contains(text));
        QVERIFY(secrets()->protect(text) != sealed); // The same text looks different.
        QCOMPARE(secrets()->unprotect(*sealed), std::optional<QByteArray>(text));
    }

    void damageChangesNoText()
    {
        const auto opener = secrets();
        const QByteArray sealed = *opener->protect("token");
        for (int i = 0; i < sealed.size(); ++i) {
            QByteArray damaged = sealed;
            damaged[i] = static_cast<char>(damaged.at(i) ^ 1);
            QCOMPARE(opener->unprotect(damaged).value_or("token"), QByteArray("token"));
            QVERIFY(!opener->unprotect(sealed.left(i)));
        }
        QVERIFY(opener->lastError() != 0);
    }

    void oneKeyOfMany()
    {
        std::vector<QByteArray> sealed(8);
        std::vector<std::thread> threads;
        for (QByteArray &each : sealed)
            threads.emplace_back(
                [&] { each = secrets()->protect("token").value_or(QByteArray()); });
        for (std::thread &thread : threads)
            thread.join();
        for (const QByteArray &each : sealed)
            QCOMPARE(secrets()->unprotect(each), std::optional<QByteArray>("token"));
    }

private:
    std::unique_ptr<Secrets> secrets() const
    {
        return createSecrets(m_folder->path(), SecretKeyPlace::File);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(SecretsTest)
#include "SecretsTest.moc"
