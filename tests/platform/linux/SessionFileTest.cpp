// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/Files.h"
#include "platform/SessionValues.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace velmora;

/// The file that holds a session's values.
class SessionFileTest : public QObject
{
    Q_OBJECT

private slots:
    void survivesForeignContent_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("paused");
        QTest::newRow("empty") << QByteArray() << false;
        QTest::newRow("binary") << QByteArray("\0\xff\xfe=1\n=\n==", 9) << false;
        QTest::newRow("no value") << QByteArray("is_paused=\n") << false;
        QTest::newRow("word") << QByteArray("is_paused=yes\n") << false;
        QTest::newRow("other key") << QByteArray("is_paused_too=1\n") << false;
        QTest::newRow("carriage returns") << QByteArray("[General]\r\nis_paused=1\r\n") << true;
        QTest::newRow("huge") << QByteArray(1 << 20, 'x') << false;
    }

    void survivesForeignContent()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, paused);
        const QTemporaryDir folder;
        QDir sessions(folder.filePath(QStringLiteral("sessions")));
        QVERIFY(sessions.mkpath(QStringLiteral(".")));
        QVERIFY(writeFile(sessions.filePath(QStringLiteral("foreign.ini")), content));
        const auto values = createSessionValues(QStringLiteral("foreign"), folder.path());
        QCOMPARE(values->isPaused(), paused);
        QVERIFY(!values->isCanceled());
        values->setCanceled(true);
        QVERIFY(values->isCanceled());
        QCOMPARE(values->isPaused(), paused);
        values->clear();
        QCOMPARE(sessions.entryList(QDir::Files), QStringList());
    }
};

QTEST_GUILESS_MAIN(SessionFileTest)
#include "SessionFileTest.moc"
