// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/settings/SetNameDialog.h"

#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using namespace velmora;

class SetNameDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void answers_data()
    {
        QTest::addColumn<int>("result");
        QTest::newRow("btnUpdate") << int(QDialog::Accepted);
        QTest::newRow("btnClose") << int(QDialog::Rejected);
        QTest::newRow("btnCloseTop") << int(QDialog::Rejected);
    }
    void answers()
    {
        SetNameDialog dialog(QStringLiteral("Old"));
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Set video title"));
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        auto *name = dialog.findChild<QLineEdit *>(QStringLiteral("txtName"));
        QCOMPARE(name->text(), QStringLiteral("Old"));
        // The old title is selected, so that typing replaces it.
        QTest::keyClicks(name, QStringLiteral("  My trip "));
        QTest::mouseClick(dialog.findChild<QWidget *>(QLatin1String(QTest::currentDataTag())),
                          Qt::LeftButton);
        QTEST(dialog.result(), "result");
        QCOMPARE(dialog.name(), QStringLiteral("My trip"));
    }

    void blankTitleIsRefused()
    {
        SetNameDialog dialog(QStringLiteral("Old"));
        dialog.show();
        auto *name = dialog.findChild<QLineEdit *>(QStringLiteral("txtName"));
        QTest::keyClicks(name, QStringLiteral("   "));
        QVERIFY(!dialog.findChild<QPushButton *>(QStringLiteral("btnUpdate"))->isEnabled());
        QTest::keyClick(name, Qt::Key_Return);
        QVERIFY(dialog.isVisible());
    }
};

QTEST_MAIN(SetNameDialogTest)
#include "SetNameDialogTest.moc"
