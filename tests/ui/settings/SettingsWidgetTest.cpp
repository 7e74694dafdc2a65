// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/settings/SettingsWidget.h"
#include "app/AppSettings.h"
#include "chrome/QPopupButton.h"
#include "helpers/DialogDriver.h"
#include "helpers/Files.h"
#include "services/MetricSender.h"
#include "ui/model/ValueLists.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QtTest>

using namespace velmora;

class SettingsWidgetTest : public QObject
{
    Q_OBJECT

private:
    template <typename T> T *child(const char *name) const
    {
        return m_panel->findChild<T *>(QLatin1String(name));
    }

    void write(const QString &name, const QByteArray &content) const
    {
        QVERIFY(writeFile(m_folder->filePath(name), content));
    }

    /// Reads the settings, and opens the panel with them.
    void open()
    {
        m_store = openSettings(m_folder->filePath(QStringLiteral("settings.ini")));
        m_settings = AppSettings();
        m_settings.load(*m_store, QSize(1920, 1080));
        m_window = std::make_unique<QWidget>();
        new QPushButton(m_window.get()); // behind the panel
        m_panel = new SettingsWidget(m_settings, *m_store, m_window.get());
        m_window->resize(1000, 700);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        openAgain();
    }

    void openAgain()
    {
        m_panel->open();
        QTRY_COMPARE(child<QFrame>("settingsPanel")->x(), 1000 - 440);
    }

    /// Chooses from the menu of a value button.
    void choose(const char *button, const QString &text)
    {
        QMenu *menu = child<QPopupButton>(button)->menu();
        for (QAction *action : menu->actions()) {
            if (action->text() == text)
                return action->trigger();
        }
        QFAIL(qPrintable(QStringLiteral("No value ") + text));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QSettings> m_store;
    AppSettings m_settings;
    std::unique_ptr<QWidget> m_window;
    SettingsWidget *m_panel = nullptr;

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        qputenv("VELMORA_DATA_DIR", m_folder->path().toUtf8());
    }
    void cleanup() { m_window.reset(); }

    void savesEveryControl()
    {
        write(QStringLiteral("settings.ini"), "[General]\nlocale=en\n");
        QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("translations")));
        write(QStringLiteral("translations/velmora_de.qm"), "");
        open();
        QVERIFY(child<QLabel>("lblVersion")->text().startsWith(QStringLiteral("version 3.4.6 - ")));
        MetricSender::instance().configure(QUrl(QStringLiteral("http://127.0.0.1:9/")), {}, 99,
                                           true);
        QSignalSpy saved(m_panel, &SettingsWidget::saved);
        QSignalSpy hidden(m_panel, &SettingsWidget::hidden);
        choose("btnTime", ValueLists::secondsText(7));
        choose("btnTransition", QStringLiteral("Cross fade"));
        choose("btnTransitionTime", ValueLists::secondsText(1));
        choose("btnResolution", QStringLiteral("1280x1024"));
        choose("btnOffset", ValueLists::secondsText(-5));
        choose("btnFade", ValueLists::secondsText(4));
        choose("btnProfile", QStringLiteral("Plays everywhere"));
        for (const char *name : {"chkScaleToFit", "chkOrigRatio", "chkSpeedGeneration",
                                 "chkAutoUpdates", "chkStatistics"})
            QTest::keyClick(child<QCheckBox>(name), Qt::Key_Space);
        child<QLineEdit>("txtFolder")->setText(QStringLiteral("/no/such/folder"));
        auto *languages = child<QComboBox>("cbxLanguage");
        QVERIFY(languages->count() >= 2); // also those that are installed with the program
        QCOMPARE(languages->itemText(1), QStringLiteral("Deutsch"));
        QTest::keyClick(languages, Qt::Key_Down);
        QTest::mouseClick(child<QPushButton>("btnSave"), Qt::LeftButton);
        QCOMPARE(saved.count(), 1);
        QTRY_COMPARE(hidden.count(), 1);
        QVERIFY(MetricSender::instance().pending().join(QString()).contains(
            QStringLiteral("chlan:de")));
        MetricSender::instance().configure(QUrl(), {}, 99, false);

        const QString file = m_folder->filePath(QStringLiteral("settings.ini"));
        AppSettings read;
        read.load(*openSettings(file), {});
        QCOMPARE(read.defaultTime, 7);
        QCOMPARE(read.defaultTransition, 27);
        QCOMPARE(read.transitionTime, 1);
        QCOMPARE(read.resolution, QSize(1280, 1024));
        QCOMPARE(read.audioOffset, -5);
        QCOMPARE(read.audioFade, 4);
        QCOMPARE(read.outputProfile, QStringLiteral("everywhere"));
        QCOMPARE(read.folder, QStringLiteral("/no/such/folder"));
        QCOMPARE(read.locale, QStringLiteral("de"));
        QVERIFY(!read.scaleToFit && !read.origRatio && !read.autoUpdates);
        QVERIFY(read.speedGeneration && read.sendStatistics);
        // The controls show what was saved: saving it again changes nothing.
        const QByteArray written = readFile(file);
        open();
        QTest::mouseClick(child<QPushButton>("btnSave"), Qt::LeftButton);
        QTRY_VERIFY(!m_panel->isVisible());
        QCOMPARE(readFile(file), written);
    }

    void hidingWritesNothing_data()
    {
        QTest::addColumn<QString>("pressed"); ///< None: beside the panel.
        for (const char *pressed : {"btnCancel", "btnClose", "Escape", ""})
            QTest::newRow(pressed) << pressed;
    }
    void hidingWritesNothing()
    {
        QFETCH(QString, pressed);
        open();
        QSignalSpy saved(m_panel, &SettingsWidget::saved);
        choose("btnTime", ValueLists::secondsText(7));
        if (pressed.isEmpty())
            QTest::mouseClick(m_panel, Qt::LeftButton, Qt::NoModifier, QPoint(100, 300));
        else if (pressed == QLatin1String("Escape"))
            QTest::keyClick(child<QWidget>("btnTime"), Qt::Key_Escape);
        else
            QTest::mouseClick(m_panel->findChild<QWidget *>(pressed), Qt::LeftButton);
        QTRY_VERIFY(!m_panel->isVisible());
        QCOMPARE(saved.count(), 0);
        QCOMPARE(m_settings.defaultTime, 3);
        QVERIFY(!QFile::exists(m_folder->filePath(QStringLiteral("settings.ini"))));
        openAgain();
        QCOMPARE(child<QPopupButton>("btnTime")->value().toInt(), 3);
    }

    void pressInThePanelChangesNothing_data()
    {
        QTest::addColumn<QString>("widget");
        QTest::addColumn<QPoint>("place"); ///< Negative: from the right and the bottom.
        QTest::newRow("label") << "lblTime" << QPoint(5, 5);
        QTest::newRow("card") << "frameSlideshow" << QPoint(4, 4);
        QTest::newRow("blank space") << "settingsPanel" << QPoint(8, 8);
        QTest::newRow("between the cards") << "scrollContent" << QPoint(8, 8);
        QTest::newRow("footer") << "settingsFooter" << QPoint(8, 8);
        QTest::newRow("right of a check box") << "chkScaleToFit" << QPoint(-5, -5);
    }
    void pressInThePanelChangesNothing()
    {
        QFETCH(QString, widget);
        QFETCH(QPoint, place);
        open();
        choose("btnTime", ValueLists::secondsText(7));
        auto *target = m_panel->findChild<QWidget *>(widget);
        if (place.x() < 0)
            place += target->rect().bottomRight();
        QTest::mouseClick(target, Qt::LeftButton, Qt::NoModifier, place);
        QVERIFY(m_panel->isOpen());
        QCOMPARE(child<QPopupButton>("btnTime")->value().toInt(), 7);
    }

    void unwritableFileIsTold()
    {
        QVERIFY(QDir().mkpath(m_folder->filePath(QStringLiteral("settings.ini"))));
        open();
        choose("btnTime", ValueLists::secondsText(7));
        DialogDriver dialogs;
        dialogs.press(QStringLiteral("CLOSE"));
        QTest::mouseClick(child<QPushButton>("btnSave"), Qt::LeftButton);
        QCOMPARE(dialogs.failure(), QString());
        QVERIFY(dialogs.text().contains(QDir::toNativeSeparators(m_store->fileName())));
        QCOMPARE(m_settings.defaultTime, 7);
        QTRY_VERIFY(!m_panel->isVisible());
    }

    void valuesBesideTheListsAreKept()
    {
        write(QStringLiteral("settings.ini"),
              "[General]\ndefaultTime=11\nresolution=1000x1000\naudioFade=9\nlocale=sv\n");
        open();
        QTest::keyClick(child<QWidget>("txtFolder"), Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(m_settings.defaultTime, 11);
        QCOMPARE(m_settings.resolution, QSize(1000, 1000));
        QCOMPARE(m_settings.audioFade, 9);
        QCOMPARE(m_settings.locale, QStringLiteral("sv"));
    }

    void coversTheWindow()
    {
        open();
        m_window->resize(1200, 800);
        QTRY_COMPARE(m_panel->size(), QSize(1200, 800));
        QCOMPARE(child<QFrame>("settingsPanel")->x(), 1200 - 440);
        QSet<QWidget *> reached;
        for (int i = 0; i < 40; ++i) {
            QTest::keyClick(m_window->focusWidget(), Qt::Key_Tab);
            reached.insert(m_window->focusWidget());
            QVERIFY(m_panel->isAncestorOf(m_window->focusWidget()));
        }
        for (const char *name : {"btnTime", "chkStatistics", "btnSave", "btnClose", "cbxLanguage"})
            QVERIFY2(reached.contains(child<QWidget>(name)), name);
    }
};

QTEST_MAIN(SettingsWidgetTest)
#include "SettingsWidgetTest.moc"
