// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SessionValues.h"
#include "helpers/TestProcess.h"
#include "platform/SessionId.h"

#include <QTemporaryDir>

using namespace velmora;

class SessionValuesTest : public QObject
{
    Q_OBJECT

private slots:
    void startsEmpty();
    void seesTheOtherProcess();
    void readerMissesNoChange();
    void keepsBothValues();
    void clearRemovesAll();
    void idBecomesName_data();
    void idBecomesName();

private:
    void otherProcess(const QString &id, const char *what)
    {
        const QStringList arguments = {QStringLiteral("--session"), id, m_folder.path(),
                                       QLatin1String(what)};
        QCOMPARE(QProcess::execute(testProcessPath(), arguments), 0);
    }

    QTemporaryDir m_folder;
};

void SessionValuesTest::startsEmpty()
{
    const auto values = createSessionValues(QStringLiteral("new"), m_folder.path());
    QVERIFY(!values->isPaused());
    QVERIFY(!values->isCanceled());
}

void SessionValuesTest::seesTheOtherProcess()
{
    const QString id = QStringLiteral("two-processes");
    const auto values = createSessionValues(id, m_folder.path());
    otherProcess(id, "pause");
    QVERIFY(values->isPaused());
    otherProcess(id, "resume");
    QVERIFY(!values->isPaused());
    otherProcess(id, "cancel");
    QVERIFY(values->isCanceled());
    otherProcess(id, "clear");
    QVERIFY(!values->isCanceled());
}

// Changes that follow each other within one tick of the file system's clock leave size and time
// stamp alike.
void SessionValuesTest::readerMissesNoChange()
{
    const auto writer = createSessionValues(QStringLiteral("fast"), m_folder.path());
    const auto reader = createSessionValues(QStringLiteral("fast"), m_folder.path());
    for (int i = 0; i < 100; ++i) {
        writer->setPaused(i % 2 == 0);
        QCOMPARE(reader->isPaused(), i % 2 == 0);
    }
}

void SessionValuesTest::keepsBothValues()
{
    const auto values = createSessionValues(QStringLiteral("both"), m_folder.path());
    values->setPaused(true);
    values->setCanceled(true);
    QVERIFY(values->isPaused());
    values->setPaused(false);
    QVERIFY(values->isCanceled());
}

void SessionValuesTest::clearRemovesAll()
{
    const auto values = createSessionValues(QStringLiteral("gone"), m_folder.path());
    values->setPaused(true);
    values->setCanceled(true);
    values->clear();
    QVERIFY(!values->isPaused());
    QVERIFY(!values->isCanceled());
}

void SessionValuesTest::idBecomesName_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("name");
    QTest::newRow("kept") << QStringLiteral("Ab-9") << QStringLiteral("Ab-9");
    QTest::newRow("folders") << QStringLiteral("../x\\y") << QStringLiteral("___x_y");
    QTest::newRow("umlaut") << QStringLiteral("\u00fc\u0663") << QStringLiteral("__");
    QTest::newRow("empty") << QString() << QStringLiteral("_");
    QTest::newRow("long") << QString(1000, QLatin1Char('a')) << QString(64, QLatin1Char('a'));
}

void SessionValuesTest::idBecomesName()
{
    QFETCH(QString, id);
    QTEST(sessionIdToName(id), "name");
}

QTEST_GUILESS_MAIN(SessionValuesTest)
#include "SessionValuesTest.moc"
