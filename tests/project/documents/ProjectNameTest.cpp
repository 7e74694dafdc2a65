// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/documents/ProjectName.h"

#include <QDateTime>
#include <QTest>

using namespace velmora;

class ProjectNameTest : public QObject
{
    Q_OBJECT
private slots:
    void names_data();
    void names();
    void proposalIsRecognised();
    void messageListsSymbols();
};

void ProjectNameTest::names_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("allowed");
    QTest::newRow("plain") << QStringLiteral("New project") << true;
    QTest::newRow("letters of all kinds") << QStringLiteral("Zürich 東京 — 100% 'best'") << true;
    QTest::newRow("parentheses") << QStringLiteral("Trip (2) + more!") << true;
    QTest::newRow("empty") << QString() << true;
    for (const char symbol : {'*', ':', '[', ']', '{', '}', '\\', '/'}) {
        const QString text(QLatin1Char{symbol});
        QTest::addRow("only %c", symbol) << text << false;
        QTest::addRow("with %c", symbol) << QStringLiteral("a%1b").arg(text) << false;
    }
}

void ProjectNameTest::names()
{
    QFETCH(QString, name);
    QTEST(ProjectName::isAllowed(name), "allowed");
}

void ProjectNameTest::proposalIsRecognised()
{
    const QString name = ProjectName::proposal({QDate(2026, 3, 9), QTime(8, 5, 1)});
    QCOMPARE(name, QStringLiteral("sshow_2026-03-09_080501"));
    QVERIFY(ProjectName::isProposal(name));
    QVERIFY(!ProjectName::isProposal(name + QStringLiteral(" Sylt")));
}

void ProjectNameTest::messageListsSymbols()
{
    QCOMPARE(ProjectName::forbiddenMessage(),
             QStringLiteral("Project name should not contain any of these symbols: *:[]{}\\/!"));
}

QTEST_GUILESS_MAIN(ProjectNameTest)
#include "ProjectNameTest.moc"
