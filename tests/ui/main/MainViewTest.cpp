// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Identity.h"
#include "chrome/QPopupButton.h"
#include "helpers/Drop.h"
#include "helpers/PseudoTranslator.h"
#include "helpers/Words.h"
#include "services/MetricSender.h"
#include "sharing/history/HistoryWidget.h"
#include "ui/main/MainViewFixture.h"

#include <QAction>
#include <QDesktopServices>
#include <QPushButton>
#include <QScreen>
#include <QSlider>
#include <QStackedWidget>

using namespace velmora;

class MainViewTest : public QObject
{
    Q_OBJECT

public slots:
    void onAddress(const QUrl &address) { m_addresses.append(address.toString()); }

private:
    QString firstButton() const { return m->child<QPushButton>("btnAddPhoto")->text(); }

    std::unique_ptr<MainViewFixture> m;
    QStringList m_addresses;

private slots:
    void initTestCase()
    {
        applyIdentity();
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }
    void init()
    {
        m = std::make_unique<MainViewFixture>();
        m->show();
    }
    void cleanup()
    {
        QCOMPARE(m->dialogs.failure(), QString());
        m.reset();
    }

    void droppedFilesBecomeOneBatch()
    {
        const QStringList files = {m->makePhoto(QStringLiteral("b.png")),
                                   m->folder.filePath(QStringLiteral("a.tif")),
                                   m->makePhoto(QStringLiteral("c.jpg"))};
        QVERIFY(QFile::copy(files.at(0), files.at(1))); // Not every Qt writes TIFF.
        auto *area = m->child<QWidget>("dropArea");
        QVERIFY(dropFilesOn(area, files, area->rect().center()));
        QCOMPARE(m->view->page(), MainView::Editor);
        QTRY_COMPARE(m->photos(), words("b.png a.tif c.jpg"));
        QVERIFY(m->view->isWindowModified());
        QCOMPARE(m->view->windowTitle(), QStringLiteral("New project[*] \u2013 Corvel Velmora"));
        m->dialogs.press(QStringLiteral("DON'T SAVE"));
        m->view->close();
    }

    void photosAreChosen_data()
    {
        QTest::addColumn<bool>("fromHistory");
        QTest::addColumn<bool>("cancelled");
        QTest::newRow("start page") << false << false;
        QTest::newRow("cancelled") << false << true;
        QTest::newRow("history page") << true << false;
        QTest::newRow("history page, cancelled") << true << true;
    }
    void photosAreChosen()
    {
        QFETCH(bool, fromHistory);
        QFETCH(bool, cancelled);
        const QString last = QDir::rootPath();
        m->store->setValue(QStringLiteral("last_open_folder"), last);
        if (fromHistory)
            m->click("btnHistory");
        m->chooseFiles(cancelled ? QStringList()
                                 : QStringList{m->makePhoto(QStringLiteral("a.png")),
                                               m->makePhoto(QStringLiteral("b b.png"))});
        m->view->onBtnAddPhotoClicked();
        QCOMPARE(m->dialogs.title(), QStringLiteral("Open File"));
        QCOMPARE(m->dialogFilters,
                 QStringList(QStringLiteral("Images (*.png *.jpg *.jpeg *.bmp *.gif)")));
        QCOMPARE(m->dialogFolder, last);
        QCOMPARE(m->view->page(), fromHistory || !cancelled ? MainView::Editor : MainView::Start);
        QCOMPARE(m->store->value(QStringLiteral("last_open_folder")).toString(),
                 cancelled ? last : m->folder.path());
        if (!cancelled)
            QTRY_COMPARE(m->photos().size(), 2);
    }

    void folderIsAdded()
    {
        QVERIFY(QDir(m->folder.path()).mkpath(QStringLiteral("album/inner")));
        m->makePhoto(QStringLiteral("album/img10.png"));
        m->makePhoto(QStringLiteral("album/img2.png"));
        m->makePhoto(QStringLiteral("album/inner/x.png"));
        const QString album = m->folder.filePath(QStringLiteral("album"));
        m->chooseFiles({album});
        m->click("btnAddFolder");
        QCOMPARE(m->dialogs.title(), QStringLiteral("Add Folder"));
        QTRY_COMPARE(m->photos(), words("img2.png img10.png x.png"));
        QCOMPARE(m->store->value(QStringLiteral("last_open_folder")).toString(), album);
    }

    void backLeavesTheHistory()
    {
        m->click("btnHistory");
        QCOMPARE(m->view->page(), MainView::History);
        QCOMPARE(firstButton(), QStringLiteral("Back"));
        m->click("btnAddPhoto");
        QCOMPARE(m->view->page(), MainView::Start);
        QCOMPARE(firstButton(), QStringLiteral("Add Photo"));
        m->beginSlideshow();
        m->click("btnHistory");
        m->press(Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(m->view->page(), MainView::Editor);
        m->click("btnHistory");
        m->click("btnAddPhoto");
        QVERIFY(m->child<QWidget>("tableView")->hasFocus());
    }

    void renderLocksTheToolRow()
    {
        m->beginSlideshow();
        MainWindowWidget &editor = m->view->editorPage();
        const auto locked = [this] {
            int count = 0;
            for (const char *name :
                 {"btnAddPhoto", "btnAddFolder", "btnHistory", "btnSettings", "btnHelp"})
                count += m->child<QWidget>(name)->isEnabled() ? 0 : 1;
            return count;
        };
        QVERIFY(!m->taskbar.visible);
        emit editor.progressStarted();
        QCOMPARE(locked(), 4);
        QVERIFY(m->child<QWidget>("btnHelp")->isEnabled());
        QCOMPARE(m->taskbar.window, m->view->windowHandle());
        QVERIFY(m->taskbar.visible);
        QCOMPARE(m->taskbar.value, 0);
        emit editor.progress(42);
        QCOMPARE(m->taskbar.value, 42);
        auto *history = m->view->findChild<HistoryWidget *>();
        emit history->uploadProgressStarted();
        emit history->progressUpload(7);
        QCOMPARE(m->taskbar.value, 42);
        emit editor.pausedChanged(true);
        QVERIFY(m->taskbar.paused);
        emit editor.progressFinished();
        QCOMPARE(locked(), 0);
        QVERIFY(m->taskbar.visible && !m->taskbar.paused);
        QCOMPARE(m->taskbar.value, 7);
        emit history->uploadProgressFinished();
        QVERIFY(!m->taskbar.visible);
        emit editor.progressStarted();
        QVERIFY(m->taskbar.visible && !m->taskbar.paused);
        emit editor.progressFinished();
    }

    void finishedVideoIsShownInTheHistory()
    {
        m->beginSlideshow();
        QVERIFY(!m->child<QLabel>("lblLastProject")->isVisible());
        m->addToHistory("new.mp4");
        QDialog dialog;
        dialog.show();
        QApplication::setActiveWindow(&dialog);
        emit m->view->editorPage().failed(QStringLiteral("Seen anyhow"));
        QApplication::setActiveWindow(nullptr); // another program is in front
        emit m->view->editorPage().failed(QStringLiteral("No room"));
        emit m->view->editorPage().recorded();
        const QString video = m->folder.filePath(QStringLiteral("new.mp4"));
        emit m->view->editorPage().finished(video);
        QCOMPARE(m->view->page(), MainView::History);
        QCOMPARE(m->notification.texts,
                 QStringList({QStringLiteral("No room"), QStringLiteral("new.mp4")}));
        QVERIFY(m->child<QLabel>("lblLastProject")->isVisible());
        emit m->child<QLabel>("lblLastProject")->linkActivated(QStringLiteral("folder"));
        QCOMPARE(m->fileManager.paths, QStringList(video));
        // The history keeps the slideshow, so that nothing would be lost.
        QVERIFY(!m->view->isWindowModified());
        QVERIFY(m->view->close());
        m->show();
        QVERIFY(m->child<QLabel>("lblLastProject")->isVisible());
        m->click("btnHistory");
        m->dialogs.press(QStringLiteral("REMOVE ALL"));
        m->click("btnClearHistory");
        QVERIFY(!m->child<QLabel>("lblLastProject")->isVisible());
    }

    void hiddenAudioIsAddedByKey()
    {
        m->beginSlideshow();
        m->view->resize(m->view->minimumSize());
        QTRY_VERIFY(!m->child<QWidget>("btnAddAudio")->isVisible());
        m->chooseFiles({});
        m->press(Qt::Key_M, Qt::ControlModifier);
        QCOMPARE(m->dialogs.title(), QStringLiteral("Open File"));
    }

    void geometryIsKept()
    {
        m->view->resize(1111, 777);
        QVERIFY(m->view->close());
        m->show();
        QCOMPARE(m->view->size(), QSize(1111, 777));

        m->view->close();
        m->store->setValue(QStringLiteral("geometry"), QStringLiteral("garbage"));
        m->show();
        QVERIFY(m->view->width() >= m->view->minimumWidth());
        const QRect screen = m->view->screen()->availableGeometry();
        QVERIFY(screen.adjusted(-2, -2, 2, 2).contains(m->view->frameGeometry()) ||
                screen.width() < m->view->minimumWidth());
    }

    void secondStartRaisesAndOpens()
    {
        m->view->showMinimized();
        QTRY_VERIFY(m->view->isMinimized());
        const QString photo = m->makePhoto(QStringLiteral("ß 1\u00e9.png"));
        m->view->onMessageReceived(QStringLiteral("Wake up!\n") +
                                   QUrl::fromLocalFile(photo).toString(QUrl::FullyEncoded));
        QTRY_VERIFY(!m->view->isMinimized());
        QTRY_COMPARE(m->photos().size(), 1);
    }

    void helpNamesThePlace_data()
    {
        QTest::addColumn<int>("page");
        QTest::newRow("help_splash") << int(MainView::Start);
        QTest::newRow("help_main") << int(MainView::Editor);
        QTest::newRow("help_history") << int(MainView::History);
    }
    void helpNamesThePlace()
    {
        QFETCH(int, page);
        const QLatin1String place(QTest::currentDataTag());
        qputenv("VELMORA_SITE_MANUAL", "test://manual/%1.html");
        m_addresses.clear();
        QDesktopServices::setUrlHandler(QStringLiteral("test"), this, "onAddress");
        m->child<QStackedWidget>("pages")->setCurrentIndex(page);
        m->click("btnHelp");
        m->press(Qt::Key_F1);
        const QString address = QStringLiteral("test://manual/%1.html").arg(place);
        QCOMPARE(m_addresses, QStringList({address, address}));
        QDesktopServices::unsetUrlHandler(QStringLiteral("test"));

        // Without a browser it is a usage event and no message.
        MetricSender::instance().configure(QUrl(QStringLiteral("http://127.0.0.1:9/")), {}, 99,
                                           true);
        m->click("btnHelp");
        QVERIFY(MetricSender::instance().pending().join(QString()).contains(
            QStringLiteral("err0:") + place));
        MetricSender::instance().configure(QUrl(), {}, 99, false);
        qunsetenv("VELMORA_SITE_MANUAL");
    }

    void dialogsGiveTheFocusBack_data()
    {
        QTest::addColumn<QString>("opener");
        QTest::addColumn<QString>("focused");
        for (const char *opener : {"btnHelp", "btnSettings"})
            QTest::addRow("%s, start page", opener) << opener << "btnOpen";
        for (const char *opener : {"btnHelp", "btnSettings", "btnSort", "btnTotal"})
            QTest::addRow("%s, editor", opener) << opener << "txtProjName";
    }
    void dialogsGiveTheFocusBack()
    {
        QFETCH(QString, opener);
        QFETCH(QString, focused);
        if (focused == QLatin1String("txtProjName"))
            m->beginSlideshow();
        auto *widget = m->child<QWidget>(focused.toLatin1());
        widget->setFocus();
        if (opener == QLatin1String("btnHelp") || opener == QLatin1String("btnTotal"))
            m->dialogs.press(QStringLiteral("CLOSE"));
        QTimer::singleShot(0, m->view.get(), [] {
            if (QWidget *menu = QApplication::activePopupWidget())
                menu->close();
        });
        m->click(opener.toLatin1());
        auto *settings = m->child<QWidget>("settingsWidget");
        if (settings->isVisible()) {
            QVERIFY(settings->isAncestorOf(m->view->focusWidget()));
            m->view->onSettingsHide();
        }
        QTRY_VERIFY(m->dialogs.failure().isEmpty() && !settings->isVisible());
        QCOMPARE(m->view->focusWidget(), widget);
    }

    void builtInHelpListsTheKeys()
    {
        QStringList texts;
        m->dialogs.expect([&texts](QDialog *dialog) {
            for (const QLabel *label : dialog->findChildren<QLabel *>())
                texts.append(label->text());
            dialog->reject();
        });
        m->press(Qt::Key_F1);
        for (const char *keys :
             {"Ctrl+O", "Ctrl+Shift+S", "F11", "Ctrl+Z", "Ctrl+R", "Ctrl+M", "F5", "F", "Left"})
            QVERIFY2(texts.contains(QLatin1String(keys)), keys);
        QCOMPARE(texts.count(QStringLiteral("Ctrl+S")), 1);
    }

    void fullScreenIsToggled()
    {
        m->press(Qt::Key_F11);
        QTRY_VERIFY(m->view->isFullScreen());
        m->press(Qt::Key_Escape);
        QTRY_VERIFY(!m->view->isFullScreen());
    }

    void settingsReachTheEditor()
    {
        m->settings.audioOffset = -3;
        m->view->document().begin();
        QCOMPARE(m->view->document().project()->audio().offset, -3);
        m->view->editorPage().editor().setTransitionSeconds(3);
        QCOMPARE(m->store->value(QStringLiteral("transitionTime")).toInt(), 3);
        auto *preview = m->child<QSlider>("slDuration");
        // The caption appears, and a second of it is shown.
        QTRY_COMPARE(preview->maximum(), 3000 + 1000);
        m->settings.transitionTime = 1;
        QSignalSpy saved(m->view.get(), &MainView::settingsSaved);
        m->press(Qt::Key_Comma, Qt::ControlModifier);
        auto *panel = m->child<QWidget>("settingsWidget");
        QTRY_VERIFY(panel->isVisible());
        m->click("btnSave");
        QCOMPARE(saved.count(), 1);
        QTRY_COMPARE(preview->maximum(), 1000 + 1000);
        QTRY_VERIFY(!panel->isVisible());
    }

    void everyTextIsTranslatedAtOnce()
    {
        m->addToHistory("new.mp4");
        m->show();
        m->beginSlideshow();
        // Values that are not offered.
        m->view->editorPage().editor().setTransitionSeconds(6);
        m->view->editorPage().editor().setResolution({1280, 720});
        m->view->editorPage().editor().addPhotos({m->makePhoto(QStringLiteral("b.png"))}, -1);
        m->press(Qt::Key_Comma, Qt::ControlModifier);
        PseudoTranslator translator;
        qApp->installTranslator(&translator);
        QTRY_COMPARE(firstButton(), PseudoTranslator::of("Add Photo"));
        // Beside names there are texts that are set whenever they are shown, and those of Qt.
        const QStringList others =
            QStringLiteral(
                "begin.png|English|1920x1080|1280x720|Adding photos|Adding...|Preparing the "
                "preview|Scroll Left|Scroll Right")
                .split(QLatin1Char('|'));
        const QStringList bad = PseudoTranslator::untranslated(*m->view, others);
        QCOMPARE(bad.join(QLatin1Char('\n')), QString());
        for (const QAction *action : m->view->actions())
            QVERIFY2(action->text().startsWith(QLatin1Char('[')), qPrintable(action->text()));
        // Neither values nor keys are lost.
        QVERIFY(m->child<QAction>("actUndo")->toolTip().contains(QLatin1String("[Add photos]")));
        QVERIFY(m->child<QPushButton>("btnClear")->text().contains(QLatin1String("(3)")));
        QCOMPARE(m->child<QPopupButton>("btnDefaultTime")->text(), QStringLiteral("[3 sec]"));
        QCOMPARE(m->child<QPopupButton>("btnTransitionDuration")->text(),
                 QStringLiteral("[6 sec]"));
        QCOMPARE(m->child<QPopupButton>("btnOutResolution")->text(), QStringLiteral("1280x720"));
        QCOMPARE(m->view->windowTitle(), QStringLiteral("[New project][*] \u2013 Corvel Velmora"));
        QCOMPARE(m->child<QPopupButton>("btnTime")->value().toInt(), 3);
        QCOMPARE(m->child<QPushButton>("btnCreate")->shortcut(),
                 QKeySequence(Qt::CTRL + Qt::Key_Return));
        qApp->removeTranslator(&translator);
        QTRY_COMPARE(firstButton(), QStringLiteral("Add Photo"));
    }
};

QTEST_MAIN(MainViewTest)
#include "MainViewTest.moc"
