// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/settings/SettingsWidget.h"
#include "app/AppSettings.h"
#include "chrome/QPopupButton.h"
#include "helpers/DialogDriver.h"
#include "helpers/PseudoTranslator.h"
#include "services/MetricSender.h"
#include "ui/model/ValueLists.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

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
        QFile file(m_folder->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    void load()
    {
        m_store = openSettings(m_folder->filePath(QStringLiteral("settings.ini")));
        m_settings = AppSettings();
        m_settings.load(*m_store, QSize(1920, 1080));
        m_window = std::make_unique<QWidget>();
        m_behind = new QPushButton(m_window.get());
        m_panel = new SettingsWidget(m_settings, *m_store, m_window.get());
        m_window->resize(1000, 700);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void open()
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
    QPushButton *m_behind = nullptr;
    SettingsWidget *m_panel = nullptr;

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        qputenv("VELMORA_DATA_DIR", m_folder->path().toUtf8());
    }
    void cleanup() { m_window.reset(); }

    void showsDefaultsAtFirst()
    {
        load();
        open();
        QCOMPARE(child<QPopupButton>("btnTime")->text(), ValueLists::secondsText(3));
        QCOMPARE(child<QPopupButton>("btnTransition")->value().toInt(), 1);
        QCOMPARE(child<QPopupButton>("btnTransitionTime")->value().toInt(), 2);
        QCOMPARE(child<QPopupButton>("btnResolution")->text(), QStringLiteral("1920x1080"));
        QCOMPARE(child<QPopupButton>("btnOffset")->value().toInt(), 0);
        QCOMPARE(child<QPopupButton>("btnFade")->value().toInt(), 0);
        QCOMPARE(child<QPopupButton>("btnProfile")->text(), QStringLiteral("Original quality"));
        QVERIFY(child<QCheckBox>("chkScaleToFit")->isChecked());
        QVERIFY(child<QCheckBox>("chkOrigRatio")->isChecked());
        QVERIFY(!child<QCheckBox>("chkSpeedGeneration")->isChecked());
        QVERIFY(child<QCheckBox>("chkAutoUpdates")->isChecked());
        QVERIFY(!child<QCheckBox>("chkStatistics")->isChecked());
        QCOMPARE(child<QLineEdit>("txtFolder")->text(),
                 QDir::toNativeSeparators(m_settings.folder));
        QCOMPARE(child<QComboBox>("cbxLanguage")->currentText(), QStringLiteral("English"));
        QVERIFY(child<QLabel>("lblVersion")->text().startsWith(QStringLiteral("version 3.4.6 - ")));
    }

    void everyControlIsThereOnce()
    {
        load();
        QStringList names;
        const QList<QWidget *> widgets = child<QFrame>("settingsPanel")->findChildren<QWidget *>();
        for (const QWidget *widget : widgets) {
            if (!widget->objectName().startsWith(QLatin1String("qt_")))
                names.append(widget->objectName());
        }
        names.removeAll(QString());
        QVERIFY(names.contains(QStringLiteral("btnFade")));
        QCOMPARE(names.removeDuplicates(), 0);
    }

    void savesEveryControl()
    {
        write(QStringLiteral("settings.ini"), "[General]\nlocale=en\n");
        QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("translations")));
        write(QStringLiteral("translations/velmora_de.qm"), "");
        load();
        MetricSender::instance().configure(QUrl(QStringLiteral("http://127.0.0.1:9/")), {}, 99,
                                           true);
        QSignalSpy saved(m_panel, &SettingsWidget::saved);
        QSignalSpy hidden(m_panel, &SettingsWidget::hidden);
        open();
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

        AppSettings read;
        read.load(*openSettings(m_folder->filePath(QStringLiteral("settings.ini"))), {});
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
    }

    void hidingWritesNothing_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("button") << 0;
        QTest::newRow("cross") << 1;
        QTest::newRow("Escape") << 2;
        QTest::newRow("press beside") << 3;
    }

    void hidingWritesNothing()
    {
        QFETCH(int, way);
        load();
        QSignalSpy saved(m_panel, &SettingsWidget::saved);
        open();
        choose("btnTime", ValueLists::secondsText(7));
        if (way == 0)
            QTest::mouseClick(child<QPushButton>("btnCancel"), Qt::LeftButton);
        else if (way == 1)
            QTest::mouseClick(child<QWidget>("btnClose"), Qt::LeftButton);
        else if (way == 2)
            QTest::keyClick(child<QWidget>("btnTime"), Qt::Key_Escape);
        else
            QTest::mouseClick(m_panel, Qt::LeftButton, Qt::NoModifier, QPoint(100, 300));
        QTRY_VERIFY(!m_panel->isVisible());
        QCOMPARE(saved.count(), 0);
        QCOMPARE(m_settings.defaultTime, 3);
        QVERIFY(!QFile::exists(m_folder->filePath(QStringLiteral("settings.ini"))));
        open();
        QCOMPARE(child<QPopupButton>("btnTime")->value().toInt(), 3);
    }

    void pressInThePanelChangesNothing_data()
    {
        QTest::addColumn<QString>("widget");
        QTest::addColumn<QPoint>("place"); ///< Negative: from the right and the bottom.
        QTest::newRow("label") << QStringLiteral("lblTime") << QPoint(5, 5);
        QTest::newRow("card") << QStringLiteral("frameSlideshow") << QPoint(4, 4);
        QTest::newRow("blank space") << QStringLiteral("settingsPanel") << QPoint(8, 8);
        QTest::newRow("between the cards") << QStringLiteral("scrollContent") << QPoint(8, 8);
        QTest::newRow("footer") << QStringLiteral("settingsFooter") << QPoint(8, 8);
        QTest::newRow("right of a check box") << QStringLiteral("chkScaleToFit") << QPoint(-5, -5);
    }

    void pressInThePanelChangesNothing()
    {
        QFETCH(QString, widget);
        QFETCH(QPoint, place);
        load();
        open();
        choose("btnTime", ValueLists::secondsText(7));
        auto *target = child<QWidget>(widget.toLatin1().constData());
        if (place.x() < 0)
            place += target->rect().bottomRight();
        QTest::mouseClick(target, Qt::LeftButton, Qt::NoModifier, place);
        QVERIFY(m_panel->isOpen());
        QCOMPARE(child<QPopupButton>("btnTime")->value().toInt(), 7);
    }

    void unwritableFileIsTold()
    {
        QVERIFY(QDir().mkpath(m_folder->filePath(QStringLiteral("settings.ini"))));
        load();
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

    void survivesGarbage_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("wrong types")
            << QByteArray("[General]\ndefaultTime=abc\ntransitionTime=-4\nresolution=0x0\n"
                          "audioOffset=999999999999\nscaleToFit=perhaps\nlocale=../../etc\n"
                          "outputProfile=huge\n");
        QTest::newRow("no INI file") << QByteArray("\x00\xff\xfe[[[=\n\n=;;", 12);
    }

    void survivesGarbage()
    {
        QFETCH(QByteArray, content);
        write(QStringLiteral("settings.ini"), content);
        load();
        open();
        QCOMPARE(child<QPopupButton>("btnTime")->value().toInt(), 3);
        QCOMPARE(child<QPopupButton>("btnResolution")->text(), QStringLiteral("1920x1080"));
        QCOMPARE(child<QPopupButton>("btnProfile")->value().toString(), QStringLiteral("original"));
        QVERIFY(child<QComboBox>("cbxLanguage")->currentIndex() >= 0);
    }

    void valuesBesideTheListsAreKept()
    {
        write(QStringLiteral("settings.ini"),
              "[General]\ndefaultTime=11\nresolution=1000x1000\naudioFade=9\nlocale=sv\n");
        load();
        open();
        QTest::keyClick(child<QWidget>("txtFolder"), Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(m_settings.defaultTime, 11);
        QCOMPARE(m_settings.resolution, QSize(1000, 1000));
        QCOMPARE(m_settings.audioFade, 9);
        QCOMPARE(m_settings.locale, QStringLiteral("sv"));
    }

    void tabStaysInThePanel()
    {
        load();
        open();
        QSet<QWidget *> reached;
        for (int i = 0; i < 40; ++i) {
            QTest::keyClick(m_window->focusWidget(), Qt::Key_Tab);
            reached.insert(m_window->focusWidget());
            QVERIFY(m_panel->isAncestorOf(m_window->focusWidget()));
        }
        for (const char *name : {"btnTime", "chkStatistics", "btnSave", "btnClose", "cbxLanguage"})
            QVERIFY2(reached.contains(child<QWidget>(name)), name);
    }

    void followsTheWindow()
    {
        load();
        open();
        m_window->resize(1200, 800);
        QTRY_COMPARE(m_panel->size(), QSize(1200, 800));
        QCOMPARE(child<QFrame>("settingsPanel")->x(), 1200 - 440);
    }

    void languageChangesAtOnce()
    {
        load();
        open();
        choose("btnTime", ValueLists::secondsText(7));
        PseudoTranslator translator;
        qApp->installTranslator(&translator);
        QTRY_COMPARE(child<QPushButton>("btnSave")->text(), PseudoTranslator::of("SAVE"));
        QCOMPARE(PseudoTranslator::untranslated(
                     *m_panel, {QStringLiteral("English"), QStringLiteral("1920x1080")})
                     .join(QLatin1Char('\n')),
                 QString());
        QCOMPARE(child<QPopupButton>("btnTime")->value().toInt(), 7);
        qApp->removeTranslator(&translator);
        QTRY_COMPARE(child<QPushButton>("btnSave")->text(), QStringLiteral("SAVE"));
    }
};

QTEST_MAIN(SettingsWidgetTest)
#include "SettingsWidgetTest.moc"
