// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/documents/ProjectName.h"

#include <QDateTime>
#include <QTest>

using namespace velmora;

class ProjectNameTest : public QObject
{
    Q_OBJECT
private slots:
    void names_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("allowed");
        QTest::newRow("plain") << "New project" << true;
        QTest::newRow("letters of all kinds") << "Zürich 東京 — 100% 'best'" << true;
        QTest::newRow("parentheses") << "Trip (2) + more!" << true;
        QTest::newRow("empty") << "" << true;
        for (const char symbol : {'*', ':', '[', ']', '{', '}', '\\', '/'}) {
            const QString text(QLatin1Char{symbol});
            QTest::addRow("only %c", symbol) << text << false;
            QTest::addRow("with %c", symbol) << QStringLiteral("a%1b").arg(text) << false;
        }
    }

    void names()
    {
        QFETCH(QString, name);
        QTEST(ProjectName::isAllowed(name), "allowed");
    }

    void proposalIsRecognised()
    {
        const QString name = ProjectName::proposal({QDate(2026, 3, 9), QTime(8, 5, 1)});
        QCOMPARE(name, QStringLiteral("sshow_2026-03-09_080501"));
        QVERIFY(ProjectName::isProposal(name));
        QVERIFY(!ProjectName::isProposal(name + QStringLiteral(" Sylt")));
    }
};

QTEST_GUILESS_MAIN(ProjectNameTest)
#include "ProjectNameTest.moc"
