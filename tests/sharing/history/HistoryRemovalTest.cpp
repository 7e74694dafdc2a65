// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/Theme.h"
#include "helpers/DialogDriver.h"
#include "helpers/Words.h"
#include "sharing/history/HistoryPage.h"

#include <QCheckBox>

using namespace velmora;

/// Taking videos out of the history, and bringing them back.
class HistoryRemovalTest : public HistoryPage
{
    Q_OBJECT

private slots:
    void initTestCase() { Theme::install(*qApp); }
    void init() { begin(); }
    void cleanup() { end(); }

    void removedVideo()
    {
        HistoryRowWidget *gone = row("gone.mp4");
        QCOMPARE(text(gone, "lblSize"), QStringLiteral("removed"));
        QVERIFY(!gone->findChild<QAbstractButton *>(QStringLiteral("btnPreview"))->isEnabled());
        QVERIFY(m_widget->select(path("gone.mp4")));
        QVERIFY(!isEnabled("btnUpload") && !isEnabled("btnBurn") && isEnabled("btnResumeProject"));
        DialogDriver driver;
        driver.expect([](QDialog *dialog) {
            QVERIFY(!dialog->findChild<QCheckBox *>()); // No file to delete.
            clickIn(dialog, "button1");
        });
        clickIn(gone, "btnDelete");
        QCOMPARE(driver.failure(), QString());
        QVERIFY(waitForSaving());
        QCOMPARE(m_history->saved(), words("old.mp4 new.mp4"));
    }

    void removalAsksAndCanBeUndone_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("kept");
        QTest::newRow("remove") << "REMOVE" << 2;
        QTest::newRow("cancel") << "CANCEL" << 3;
        QTest::newRow("clear") << "REMOVE ALL" << 0;
    }

    void removalAsksAndCanBeUndone()
    {
        QFETCH(QString, answer);
        QFETCH(int, kept);
        QVERIFY(m_widget->select(path("old.mp4")));
        const QStringList before = m_history->saved();
        DialogDriver driver;
        driver.press(answer);
        if (kept == 0)
            click("btnClearHistory");
        else
            QTest::keyClick(find<HistoryListView>("listHistory"), Qt::Key_Delete);
        QCOMPARE(driver.failure(), QString());
        QCOMPARE(count(), kept);
        QVERIFY(waitForSaving());
        QCOMPARE(m_history->saved().size(), kept);
        QVERIFY(QFile::exists(path("old.mp4")) && QFile::exists(path("new.mp4")));
        QCOMPARE(find<QFrame>("undoBar")->isVisible(), kept < 3);
        QCOMPARE(isEnabled("btnClearHistory"), kept > 0);
        QCOMPARE(m_widget->selectedFile().isEmpty(), kept == 0);
        if (kept == 0)
            click("btnUndo");
        else
            QTest::keyClick(m_widget.get(), Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(waitForSaving());
        QCOMPARE(m_history->saved(), before);
        QCOMPARE(count(), 3);
        QVERIFY(!find<QFrame>("undoBar")->isVisible());
    }

    void videosGoToTheTrashOnlyWhenTicked_data()
    {
        QTest::addColumn<bool>("taken"); // Another video has got the name meanwhile.
        QTest::newRow("brought back") << false;
        QTest::newRow("name is taken") << true;
    }

    void videosGoToTheTrashOnlyWhenTicked()
    {
        QFETCH(bool, taken);
        const QString video = path("old.mp4");
        DialogDriver driver;
        driver.expect([](QDialog *dialog) {
            auto *tick = dialog->findChild<QCheckBox *>();
            QVERIFY(tick && !tick->isChecked());
            QTest::mouseClick(tick, Qt::LeftButton, {}, QPoint(8, tick->height() / 2));
            QVERIFY(tick->isChecked());
            clickIn(dialog, "button1");
        });
        clickIn(row("old.mp4"), "btnDelete");
        QCOMPARE(driver.failure(), QString());
        QCOMPARE(count(), 2); // The list does not wait for the trash.
        QVERIFY(!isEnabled("btnUndo"));
        driver.press(QStringLiteral("CLOSE")); // Where there is no trash.
        QTRY_VERIFY(isEnabled("btnUndo"));
        QVERIFY(find<QFrame>("undoBar")->isVisible());
        if (QFile::exists(video)) {
            QCOMPARE(driver.failure(), QString());
            QSKIP("There is no trash for this folder.");
        }
        QVERIFY(QFile::exists(path("new.mp4")));
        QString trashed;
        if (QFile::moveToTrash(path("new.mp4"), &trashed) && trashed.isEmpty())
            QSKIP("This trash does not tell where it puts a file, as Wine's does not.");
        if (taken)
            HistoryFixture::write(video, 7, QDate(2026, 1, 1));
        click("btnUndo");
        QVERIFY(waitForSaving());
        QCOMPARE(m_history->saved().size(), 3);
        if (!taken) {
            QTRY_COMPARE(QFileInfo(video).size(), 3 * 1048576);
            QTRY_COMPARE(text(row("old.mp4"), "lblSize"), QStringLiteral("3.0 MB"));
            return;
        }
        QTRY_COMPARE(driver.text(),
                     QStringLiteral("Some video files could not be taken out of the trash."));
        QCOMPARE(QFileInfo(video).size(), 7);
    }

    void historyThatCannotBeWritten()
    {
        const QString file = path("project_history.json");
        QVERIFY(QFile::remove(file) && QDir().mkpath(file + QStringLiteral("/in the way")));
        DialogDriver driver;
        driver.press(QStringLiteral("REMOVE"));
        driver.press(QStringLiteral("CLOSE"));
        clickIn(row("old.mp4"), "btnDelete");
        QTRY_COMPARE(driver.failure(), QString());
        QTRY_COMPARE(count(), 3);
        QCOMPARE(static_cast<int>(m_history->store.projects().size()), 3);
        QVERIFY(!find<QFrame>("undoBar")->isVisible());
    }
};

QTEST_MAIN(HistoryRemovalTest)
#include "HistoryRemovalTest.moc"
