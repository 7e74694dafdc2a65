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
    void seesTheOtherProcess()
    {
        const auto values = createSessionValues(QStringLiteral("two-processes"), m_folder.path());
        QVERIFY(!values->isPaused() && !values->isCanceled());
        otherProcess("pause");
        QVERIFY(values->isPaused());
        otherProcess("resume");
        QVERIFY(!values->isPaused());
        otherProcess("pause");
        otherProcess("cancel");
        QVERIFY(values->isPaused() && values->isCanceled());
        otherProcess("clear");
        QVERIFY(!values->isPaused() && !values->isCanceled());
    }

    // Changes that follow each other within one tick of the file system's clock leave size and
    // time stamp alike.
    void readerMissesNoChange()
    {
        const auto writer = createSessionValues(QStringLiteral("fast"), m_folder.path());
        const auto reader = createSessionValues(QStringLiteral("fast"), m_folder.path());
        for (int i = 0; i < 100; ++i) {
            writer->setPaused(i % 2 == 0);
            QCOMPARE(reader->isPaused(), i % 2 == 0);
        }
    }

    void idBecomesName_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("name");
        QTest::newRow("kept") << "Ab-9" << QStringLiteral("Ab-9");
        QTest::newRow("folders") << "../x\\y" << QStringLiteral("___x_y");
        QTest::newRow("umlaut") << QStringLiteral("\u00fc\u0663") << QStringLiteral("__");
        QTest::newRow("empty") << "" << QStringLiteral("_");
        QTest::newRow("long") << QString(1000, QLatin1Char('a')) << QString(64, QLatin1Char('a'));
    }

    void idBecomesName()
    {
        QFETCH(QString, id);
        QTEST(sessionIdToName(id), "name");
    }

private:
    void otherProcess(const char *what)
    {
        QProcess process;
        QVERIFY(
            runTestProcess(process, {QStringLiteral("--session"), QStringLiteral("two-processes"),
                                     m_folder.path(), QLatin1String(what)}));
        QCOMPARE(process.exitCode(), 0);
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(SessionValuesTest)
#include "SessionValuesTest.moc"
