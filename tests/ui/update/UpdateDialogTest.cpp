// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/update/UpdateDialog.h"
#include "chrome/Theme.h"

#include <QDesktopServices>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

using namespace velmora;

/// Takes the place of the browser.
class UpdateDialogTest : public QObject
{
    Q_OBJECT

public slots:
    void open(const QUrl &address) { m_opened.append(address); }

private slots:
    void initTestCase()
    {
        Theme::install(*qApp);
        QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "open");
    }

    void buttons_data()
    {
        QTest::addColumn<int>("result");
        QTest::newRow("btnDownload") << int(QDialog::Accepted);
        QTest::newRow("btnCancel") << int(QDialog::Rejected);
    }
    void buttons()
    {
        QFETCH(int, result);
        m_opened.clear();
        UpdateDialog dialog(QStringLiteral("4.0.1"), m_download, m_notes);
        dialog.show();
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Update available!"));
        QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("lblVersion"))->text(),
                 QStringLiteral("4.0.1"));
        QTest::mouseClick(dialog.findChild<QPushButton *>(QLatin1String(QTest::currentDataTag())),
                          Qt::LeftButton);
        QVERIFY(dialog.isHidden());
        QCOMPARE(dialog.result(), result);
        QVERIFY(m_opened.isEmpty()); // The dialog returns first.
        QCoreApplication::processEvents();
        QCOMPARE(m_opened, result == QDialog::Accepted ? QList<QUrl>{m_download} : QList<QUrl>());
    }

    void onlyWebAddresses()
    {
        UpdateDialog dialog(QStringLiteral("4.0.1"), QUrl(QStringLiteral("file:///bin/sh")),
                            QUrl());
        dialog.show();
        QVERIFY(!dialog.findChild<QPushButton *>(QStringLiteral("btnDownload"))->isEnabled());
        QVERIFY(!dialog.findChild<QLabel *>(QStringLiteral("lblNotes"))->isVisible());
    }

    void linkOpensTheNotes()
    {
        m_opened.clear();
        UpdateDialog dialog(QStringLiteral("4.0.1"), m_download, m_notes);
        dialog.show();
        auto *link = dialog.findChild<QLabel *>(QStringLiteral("lblNotes"));
        emit link->linkActivated(QStringLiteral("notes"));
        QTRY_COMPARE(m_opened, QList<QUrl>{m_notes});
        QVERIFY(dialog.isVisible());
    }

private:
    QList<QUrl> m_opened;
    const QUrl m_download{QStringLiteral("https://example.org/get")};
    const QUrl m_notes{QStringLiteral("https://example.org/notes")};
};

QTEST_MAIN(UpdateDialogTest)
#include "UpdateDialogTest.moc"
