// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/history/HistoryWidget.h"
#include "chrome/Theme.h"
#include "helpers/DialogDriver.h"
#include "helpers/LogCapture.h"
#include "helpers/PseudoTranslator.h"
#include "helpers/Words.h"
#include "sharing/history/HistoryFixture.h"
#include "sharing/history/HistoryHeader.h"
#include "sharing/history/HistoryListView.h"
#include "sharing/history/HistoryRemoval.h"
#include "sharing/history/HistoryRowWidget.h"
#include "sharing/playback/VideoDialog.h"
#include "sharing/upload/UploadController.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QProgressBar>
#include <QScrollBar>
#include <QSettings>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTime>

#include <algorithm>

using namespace velmora;

class HistoryWidgetTest : public QObject
{
    Q_OBJECT

public slots:
    void play(const QUrl &file) { m_played.append(file.toLocalFile()); }

private slots:
    void initTestCase()
    {
        Theme::install(*qApp);
        QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "play");
    }

    void init()
    {
        m_played.clear();
        m_history = std::make_unique<HistoryFixture>();
        qputenv("XDG_DATA_HOME", QFile::encodeName(path("data"))); // Of the trash.
        m_history->add("old.mp4", 3 * 1048576, QDate(2026, 1, 2), QStringLiteral("Old\ntitle"));
        m_history->add("gone.mp4", -1, {});
        m_history->add("new.mp4", 250 * 1048576LL, QDate(2026, 3, 4));
        QVERIFY(m_history->store.save());
    }

    void cleanup()
    {
        m_widget.reset();
        m_uploads.reset();
        m_stack.reset();
    }

    void rowShowsTheFacts()
    {
        show();
        HistoryRowWidget *old = row("old.mp4");
        const char *facts[][2] = {{"lblDate", "02.01.2026"},
                                  {"lblFileName", "old.mp4"},
                                  {"lblResolution", "1024x768"},
                                  {"lblSize", "3.0 MB"}};
        for (const auto &fact : facts)
            QCOMPARE(text(old, fact[0]), QString::fromLatin1(fact[1]));
        QVERIFY(QTime::fromString(text(old, "lblDuration"), QStringLiteral("hh:mm:ss")).isValid());
        QCOMPARE(text(row("new.mp4"), "lblSize"), QStringLiteral("250 MB"));
    }

    void columnsFitTheFont()
    {
        const QString style = qApp->styleSheet();
        qApp->setStyleSheet(style + QStringLiteral("* { font-size: 24px; }"));
        show();
        const QList<QLabel *> labels = headerLabels() + row("gone.mp4")->findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            const bool elides = label->objectName() == QLatin1String("lblFileName");
            QVERIFY2(elides || label->width() >= label->sizeHint().width(),
                     qPrintable(label->text()));
        }
        qApp->setStyleSheet(style);
    }

    /// With and without a scroll bar, whatever page was visible when it came or went.
    void headerStandsAboveTheRows()
    {
        show();
        m_stack = std::make_unique<QStackedWidget>();
        QWidget *widget = m_widget.get();
        m_stack->addWidget(new QWidget);
        m_stack->addWidget(widget);
        m_stack->show();
        for (const int height : {300, 600, 300}) {
            for (QWidget *first : {m_stack->widget(0), widget}) {
                m_stack->setCurrentWidget(first);
                m_stack->resize(2000 - height, 900 - height);
                QCoreApplication::processEvents();
                m_stack->resize(1000, height);
                QCoreApplication::processEvents();
                m_stack->setCurrentWidget(widget);
                m_widget->reload();
                const QLabel *label = headerLabels().first();
                QCOMPARE(label->text(), QStringLiteral("Resolution"));
                QTRY_VERIFY(find<QLabel>("lblResolution"));
                QTRY_COMPARE(left(label), left(find<QLabel>("lblResolution")));
            }
        }
    }

    void languageChanges()
    {
        show();
        DialogDriver driver;
        driver.press(QStringLiteral("REMOVE"));
        clickIn(row("old.mp4"), "btnDelete");
        m_widget->startUpload(path("new.mp4"), QStringLiteral("x"), QStringLiteral("dropbox"));
        PseudoTranslator translator;
        qApp->installTranslator(&translator);
        // Before the upload has begun, which nothing is configured for.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
        m_uploads->cancel();
        QCOMPARE(find<QLabel>("lblTitle")->text(), PseudoTranslator::of("History"));
        QStringList names{QStringLiteral("1024x768")};
        for (const char *name : {"old.mp4", "new.mp4", "gone.mp4"})
            names << QLatin1String(name) << QDir::toNativeSeparators(path(name));
        const QString untranslated =
            PseudoTranslator::untranslated(*m_widget, names).join(QLatin1Char('\n'));
        const QList<QLabel *> labels = headerLabels();
        const bool wide = std::all_of(labels.begin(), labels.end(), [](const QLabel *label) {
            return label->width() >= label->sizeHint().width();
        });
        const int headerLeft = left(labels.first());
        const int rowLeft = left(find<QLabel>("lblResolution"));
        qApp->removeTranslator(&translator);
        QCOMPARE(untranslated, QString());
        QVERIFY(wide);
        QCOMPARE(rowLeft, headerLeft);
        QTRY_COMPARE(find<QLabel>("lblTitle")->text(), QStringLiteral("History"));
        QCOMPARE(driver.failure(), QString());
    }

    void removedVideo()
    {
        show();
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

    void buttonsActOnTheSelection()
    {
        show();
        QVERIFY(m_widget->select(path("old.mp4")));
        QSignalSpy opened(m_widget.get(), &HistoryWidget::openProject);
        QSignalSpy burnt(m_widget.get(), &HistoryWidget::burnDvd);
        click("btnResumeProject");
        click("btnBurn");
        QCOMPARE(opened.takeFirst(), QVariantList{path("old.mp4")});
        QCOMPARE(m_widget->selectedProject()->name(), QStringLiteral("old.mp4"));
        QCOMPARE(burnt.takeFirst(), (QVariantList{QStringLiteral("Old title"), path("old.mp4")}));
        // Those of a row select it.
        clickIn(row("new.mp4"), "btnBurn");
        QCOMPARE(burnt.first().at(1).toString(), path("new.mp4"));
        QCOMPARE(m_widget->selectedFile(), path("new.mp4"));
        clickIn(row("old.mp4"), "btnOpen");
        QCOMPARE(opened.takeFirst(), QVariantList{path("old.mp4")});
        QCOMPARE(m_widget->selectedFile(), path("old.mp4"));
        clickIn(row("new.mp4"), "btnPreview"); // No video really, so the desktop gets it.
        QTRY_COMPARE(m_played, QStringList{path("new.mp4")});
    }

    void doubleClickPlays()
    {
        show();
        auto *list = find<HistoryListView>("listHistory");
        const QPoint place = list->visualRect(list->model()->index(0, 0)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
        QTRY_COMPARE(m_played, QStringList{path("new.mp4")});
        QTRY_VERIFY(!m_widget->findChild<VideoDialog *>());
        QTest::keyClick(list, Qt::Key_Return);
        QTRY_COMPARE(m_played.size(), 2);
        // It may still be looked at.
        const QString video = path("new.mp4");
        QTRY_VERIFY(!QFile::exists(video) || QFile::remove(video));
        DialogDriver driver;
        driver.press(QStringLiteral("CLOSE"));
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(driver.title(), QStringLiteral("Open file Error"));
        QCOMPARE(driver.text(),
                 QStringLiteral("File '%1' not found").arg(QDir::toNativeSeparators(video)));
        QCOMPARE(m_played.size(), 2);
    }

    void headerSorts()
    {
        show();
        const auto arrow = [this](const char *button) {
            return find<QPushButton>(button)->icon().pixmap(16, 16).toImage();
        };
        const QImage up = Theme::icon(QStringLiteral("arrow-up")).pixmap(16, 16).toImage();
        const QImage down = Theme::icon(QStringLiteral("arrow-down")).pixmap(16, 16).toImage();
        QVERIFY(m_widget->select(path("new.mp4")));
        auto *list = find<HistoryListView>("listHistory");
        QCOMPARE(list->currentIndex().row(), 0);
        QCOMPARE(arrow("btnDate"), down);
        click("btnDate");
        QCOMPARE(arrow("btnDate"), up);
        QCOMPARE(list->currentIndex().row(), 2);
        QCOMPARE(m_widget->selectedFile(), path("new.mp4"));
        click("btnFileName");
        QCOMPARE(arrow("btnFileName"), up);
        QVERIFY(arrow("btnDate").isNull());
        click("btnFileName");
        QCOMPARE(arrow("btnFileName"), down);
        QCOMPARE(list->currentIndex().row(), 1);
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
        show();
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
        show();
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
        show();
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

    void selectionSurvivesReload()
    {
        show();
        QVERIFY(m_widget->select(path("old.mp4")));
        m_history->add("newest.mp4", 10, QDate(2026, 4, 4));
        m_widget->reload();
        QCOMPARE(count(), 4);
        QCOMPARE(m_widget->selectedFile(), path("old.mp4"));
        QVERIFY(m_widget->select(path("newest.mp4")));
        QTRY_VERIFY(row("newest.mp4"));
        QVERIFY(!m_widget->select(path("never.mp4")));
    }

    void emptyHistory()
    {
        m_history->store.clear();
        show();
        QCOMPARE(count(), 0);
        for (const char *name : {"btnUpload", "btnBurn", "btnResumeProject", "btnClearHistory"})
            QVERIFY2(!isEnabled(name), name);
        QVERIFY(!m_widget->selectedProject());
        QSignalSpy opened(m_widget.get(), &HistoryWidget::openProject);
        m_widget->on_btnResumeProject_clicked();
        m_widget->onStartUpload(QStringLiteral("youtube"));
        QCOMPARE(opened.size(), 0);
        QVERIFY(!m_widget->isUploading());
    }

    void uploadPages()
    {
        show();
        QVERIFY(m_widget->select(path("new.mp4")));
        {
            LogCapture log;
            m_widget->onStartUpload(QStringLiteral("nosuch"));
            QVERIFY(log.lines().contains(QStringLiteral("IS NULL UPLOADER")));
        }
        QCOMPARE(page(), QStringLiteral("pgHistory"));
        QVERIFY(!m_widget->isUploading());
        m_widget->onStartUpload(QStringLiteral("dropbox"));
        QVERIFY(m_widget->isUploading());
        QCOMPARE(page(), QStringLiteral("pgUpload"));
        const auto shown = [this](const char *label) { return find<QLabel>(label)->text(); };
        QCOMPARE(shown("labelUploadText"), QStringLiteral("Uploading new.mp4 to DropBox"));
        QCOMPARE(shown("labelUploadTime"), QStringLiteral("Elapsed: --:--:--"));
        emit m_uploads->signInStarted();
        QCOMPARE(page(), QStringLiteral("Oauth2Waiting"));
        QCOMPARE(shown("lblWaitingTitle"), QStringLiteral("Connect to DropBox"));
        emit m_uploads->started();
        QCOMPARE(page(), QStringLiteral("pgUpload"));
        QCOMPARE(shown("labelUploadTime"), QStringLiteral("Elapsed: 00:00:00"));
        emit m_uploads->progress(37);
        QCOMPARE(find<QProgressBar>("progressBar")->value(), 37);
        click("btnCancel");
        QTRY_COMPARE(page(), QStringLiteral("pgHistory"));
        QVERIFY(!QApplication::activeModalWidget());
    }

    void manyEntries()
    {
        for (int i = 0; i < 2000; ++i)
            m_history->add(qPrintable(QStringLiteral("video%1.mp4").arg(i)), -1, {});
        QBENCHMARK_ONCE
        {
            show();
        }
        auto *list = find<HistoryListView>("listHistory");
        const auto widgets = [list] {
            return list->viewport()->findChildren<HistoryRowWidget *>().size();
        };
        QVERIFY(widgets() < 40); // Only those in sight.
        list->verticalScrollBar()->setValue(list->verticalScrollBar()->maximum());
        QTRY_VERIFY(row("old.mp4"));
        QTRY_VERIFY(widgets() < 40);
    }

private:
    template <typename T> T *find(const char *name)
    {
        return m_widget->findChild<T *>(QLatin1String(name));
    }

    void show()
    {
        m_store = openSettings(path("settings.ini"));
        m_uploads = std::make_unique<UploadController>(ServicesConfig(), *m_store);
        m_widget = std::make_unique<HistoryWidget>(m_history->store, m_history->settings);
        m_widget->setUploads(m_uploads.get());
        m_widget->resize(1000, 600);
        m_widget->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_widget.get()));
        if (count() > 0) {
            QTRY_VERIFY(find<QLabel>("lblSize") && !find<QLabel>("lblSize")->text().isEmpty());
        }
    }

    /// The file must not be read before: Windows does not replace files that are open.
    bool waitForSaving()
    {
        const auto *removal = m_widget->findChild<HistoryRemoval *>();
        return QTest::qWaitFor([removal] { return !removal->isSaving(); });
    }

    void click(const char *name) { clickIn(m_widget.get(), name); }

    HistoryRowWidget *row(const char *file)
    {
        auto *list = find<HistoryListView>("listHistory");
        for (int i = 0; i < count(); ++i) {
            HistoryRowWidget *candidate = list->rowWidget(i);
            if (candidate && candidate->entry().fileName == path(file))
                return candidate;
        }
        return nullptr;
    }

    QString path(const char *name) const { return m_history->path(name); }
    static QString text(HistoryRowWidget *row, const char *label)
    {
        return row->findChild<QLabel *>(QLatin1String(label))->text();
    }
    static void clickIn(QWidget *parent, const char *button)
    {
        QTest::mouseClick(parent->findChild<QAbstractButton *>(QLatin1String(button)),
                          Qt::LeftButton);
    }
    QList<QLabel *> headerLabels()
    {
        return find<HistoryHeader>("header")->findChildren<QLabel *>();
    }
    int left(const QLabel *label) const { return label->mapTo(m_widget.get(), {}).x(); }
    bool isEnabled(const char *name) { return find<QPushButton>(name)->isEnabled(); }
    QString page() { return find<QStackedWidget>("pages")->currentWidget()->objectName(); }
    int count() { return find<HistoryListView>("listHistory")->model()->rowCount(); }

    std::unique_ptr<HistoryFixture> m_history;
    std::unique_ptr<QSettings> m_store;
    std::unique_ptr<UploadController> m_uploads;
    std::unique_ptr<HistoryWidget> m_widget;
    std::unique_ptr<QStackedWidget> m_stack; ///< In which it is one of two pages.
    QStringList m_played;
};

QTEST_MAIN(HistoryWidgetTest)
#include "HistoryWidgetTest.moc"
