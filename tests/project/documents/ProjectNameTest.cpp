// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/documents/ProjectName.h"

#include <QTest>

using namespace velmora;

class ProjectNameTest : public QObject
{
    Q_OBJECT
private slots:
    void names_data();
    void names();
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

void ProjectNameTest::messageListsSymbols()
{
    QCOMPARE(ProjectName::forbiddenMessage(),
             QStringLiteral("Project name should not contain any of these symbols: *:[]{}\\/!"));
}

QTEST_GUILESS_MAIN(ProjectNameTest)
#include "ProjectNameTest.moc"
