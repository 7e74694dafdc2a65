// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SessionValues.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace velmora;

/// The file that holds a session's values.
class SessionFileTest : public QObject
{
    Q_OBJECT

private slots:
    void clearRemovesTheFile()
    {
        const auto values = createSessionValues(QStringLiteral("gone"), m_folder.path());
        values->setPaused(true);
        const QDir sessions(m_folder.filePath(QStringLiteral("sessions")));
        QCOMPARE(sessions.entryList(QDir::Files).size(), 1);
        values->clear();
        QCOMPARE(sessions.entryList(QDir::Files), QStringList());
    }

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
        QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("sessions")));
        QFile file(m_folder.filePath(QStringLiteral("sessions/foreign.ini")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        const auto values = createSessionValues(QStringLiteral("foreign"), m_folder.path());
        QCOMPARE(values->isPaused(), paused);
        QVERIFY(!values->isCanceled());
        values->setCanceled(true);
        QVERIFY(values->isCanceled());
        QCOMPARE(values->isPaused(), paused);
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(SessionFileTest)
#include "SessionFileTest.moc"
