// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SessionValues.h"

#include <QSettings>
#include <QTest>

using namespace velmora;

/// The key of the registry that holds a session's values.
class SessionKeyTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { sessions().remove(kId); }

    void survivesForeignContent_data()
    {
        QTest::addColumn<QVariant>("content");
        QTest::addColumn<bool>("paused");
        QTest::newRow("number") << QVariant(1) << true;
        QTest::newRow("text") << QVariant(QStringLiteral("1")) << true;
        QTest::newRow("another number") << QVariant(7) << false;
        QTest::newRow("empty") << QVariant(QString()) << false;
        QTest::newRow("word") << QVariant(QStringLiteral("yes")) << false;
        QTest::newRow("bytes") << QVariant(QByteArray(1000, '\xff')) << false;
        QTest::newRow("list") << QVariant(QStringList(QString::number(1))) << false;
    }

    void survivesForeignContent()
    {
        QFETCH(QVariant, content);
        QFETCH(bool, paused);
        sessions().setValue(kId + QStringLiteral("/is_paused"), content);
        const auto values = createSessionValues(kId, QString());
        QCOMPARE(values->isPaused(), paused);
        values->setCanceled(true);
        QVERIFY(values->isCanceled());
        QCOMPARE(sessions().value(kId + QStringLiteral("/is_canceled")).toInt(), 1);
        QCOMPARE(values->isPaused(), paused);
        values->clear();
        QVERIFY(!sessions().childGroups().contains(kId));
    }

private:
    static QSettings sessions()
    {
        return {QStringLiteral("HKEY_CURRENT_USER\\Software\\Corvel Velmora\\Sessions"),
                QSettings::NativeFormat};
    }
    const QString kId = QStringLiteral("session-key-test");
};

QTEST_GUILESS_MAIN(SessionKeyTest)
#include "SessionKeyTest.moc"
