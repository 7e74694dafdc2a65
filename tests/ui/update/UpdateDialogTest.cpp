// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/update/UpdateDialog.h"
#include "chrome/Theme.h"

#include <QDesktopServices>
#include <QLabel>
#include <QPushButton>
#include <QTest>

using namespace velmora;

/// Takes the place of the browser.
class UpdateDialogTest : public QObject
{
    Q_OBJECT

public slots:
    void open(const QUrl &address) { m_opened.append(address); }

private slots:
    void initTestCase();
    void buttons_data();
    void buttons();
    void onlyWebAddresses();
    void linkOpensTheNotes();

private:
    QList<QUrl> m_opened;
    const QUrl m_download{QStringLiteral("https://example.org/get")};
    const QUrl m_notes{QStringLiteral("https://example.org/notes")};
};

void UpdateDialogTest::initTestCase()
{
    Theme::install(*qApp);
    QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "open");
}

void UpdateDialogTest::buttons_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("result");
    QTest::addColumn<int>("opened");
    QTest::newRow("download") << QStringLiteral("btnDownload") << int(QDialog::Accepted) << 1;
    QTest::newRow("cancel") << QStringLiteral("btnCancel") << int(QDialog::Rejected) << 0;
}

void UpdateDialogTest::buttons()
{
    QFETCH(QString, button);
    QFETCH(int, result);
    QFETCH(int, opened);
    m_opened.clear();
    UpdateDialog dialog(QStringLiteral("4.0.1"), m_download, m_notes);
    dialog.show();
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Update available!"));
    QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("lblVersion"))->text(),
             QStringLiteral("4.0.1"));
    QTest::mouseClick(dialog.findChild<QPushButton *>(button), Qt::LeftButton);
    QVERIFY(dialog.isHidden());
    QCOMPARE(dialog.result(), result);
    QVERIFY(m_opened.isEmpty()); // The dialog returns first.
    QCoreApplication::processEvents();
    QCOMPARE(m_opened.size(), opened);
}

void UpdateDialogTest::onlyWebAddresses()
{
    UpdateDialog dialog(QStringLiteral("4.0.1"), QUrl(QStringLiteral("file:///bin/sh")), QUrl());
    dialog.show();
    QVERIFY(!dialog.findChild<QPushButton *>(QStringLiteral("btnDownload"))->isEnabled());
    QVERIFY(!dialog.findChild<QLabel *>(QStringLiteral("lblNotes"))->isVisible());
}

void UpdateDialogTest::linkOpensTheNotes()
{
    m_opened.clear();
    UpdateDialog dialog(QStringLiteral("4.0.1"), m_download, m_notes);
    dialog.show();
    auto *link = dialog.findChild<QLabel *>(QStringLiteral("lblNotes"));
    emit link->linkActivated(QStringLiteral("notes"));
    QTRY_COMPARE(m_opened, QList<QUrl>{m_notes});
    QVERIFY(dialog.isVisible());
}

QTEST_MAIN(UpdateDialogTest)
#include "UpdateDialogTest.moc"
