// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/Theme.h"
#include "helpers/DialogDriver.h"
#include "helpers/LogCapture.h"
#include "helpers/PseudoTranslator.h"
#include "sharing/history/HistoryPage.h"
#include "sharing/playback/VideoDialog.h"

#include <QDesktopServices>
#include <QProgressBar>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTime>

#include <algorithm>

using namespace velmora;

class HistoryWidgetTest : public HistoryPage
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
        begin();
    }

    void cleanup() { end(); }

    void rowShowsTheFacts()
    {
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

    void buttonsActOnTheSelection()
    {
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

    void selectionSurvivesReload()
    {
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
        QVERIFY(!find<QLabel>("lblWaitingInfo")->isVisible());
        emit m_uploads->browserOpened();
        QVERIFY(find<QLabel>("lblWaitingInfo")->isVisible());
        emit m_uploads->signInEnded();
        QCOMPARE(page(), QStringLiteral("pgUpload"));
        emit m_uploads->started();
        QCOMPARE(page(), QStringLiteral("pgUpload"));
        QCOMPARE(shown("labelUploadTime"), QStringLiteral("Elapsed: 00:00:00"));
        emit m_uploads->progress(37);
        QCOMPARE(find<QProgressBar>("progressBar")->value(), 37);
        emit m_uploads->signInStarted(); // The service has come to refuse the token.
        QCOMPARE(page(), QStringLiteral("Oauth2Waiting"));
        emit m_uploads->signInEnded();
        QCOMPARE(page(), QStringLiteral("pgUpload"));
        click("btnCancel");
        QTRY_COMPARE(page(), QStringLiteral("pgHistory"));
        QVERIFY(!QApplication::activeModalWidget());
    }

    /// Nothing is configured, so not a byte is sent.
    void progressEndsWithoutBeginning()
    {
        QVERIFY(m_widget->select(path("new.mp4")));
        QSignalSpy ended(m_widget.get(), &HistoryWidget::uploadProgressFinished);
        QSignalSpy failed(m_widget.get(), &HistoryWidget::uploadFailed);
        DialogDriver driver;
        driver.press(QStringLiteral("CLOSE"));
        m_widget->onStartUpload(QStringLiteral("dropbox"));
        QTRY_COMPARE(failed.size(), 1);
        QCOMPARE(ended.size(), 1);
        QTRY_VERIFY(!driver.title().isEmpty());
    }

    void manyEntries()
    {
        for (int i = 0; i < 2000; ++i)
            m_history->add(qPrintable(QStringLiteral("video%1.mp4").arg(i)), -1, {});
        show();
        auto *list = find<HistoryListView>("listHistory");
        const auto widgets = [list] {
            return list->viewport()->findChildren<HistoryRowWidget *>().size();
        };
        QVERIFY(widgets() < 40); // Only those in sight.
        list->verticalScrollBar()->setValue(list->verticalScrollBar()->maximum());
        QTRY_VERIFY(row("old.mp4"));
        QTRY_VERIFY(widgets() < 40);
    }

    /// Those in sight when it forgets the many that it has asked for.
    void picturesComeAfterMany()
    {
        m_history->store.clear();
        QImage photo(8, 8, QImage::Format_RGB32);
        photo.fill(Qt::red);
        for (int i = 0; i < 203; ++i) {
            auto project = m_history->make(qPrintable(QStringLiteral("video%1.mp4").arg(i)));
            const QString file = path(qPrintable(QStringLiteral("photo%1.bmp").arg(i)));
            QVERIFY(photo.save(file));
            project->insertItem(-1, new ProjectItemSimple(file, 1, 3));
            m_history->store.add(std::move(project));
        }
        show();
        auto *list = find<HistoryListView>("listHistory");
        auto *bar = list->verticalScrollBar();
        while (bar->value() < bar->maximum())
            bar->setValue(bar->value() + bar->singleStep());
        const auto allRed = [list] {
            const auto rows = list->findChildren<QLabel *>(QStringLiteral("lblPicture"));
            return std::all_of(rows.begin(), rows.end(), [](const QLabel *row) {
                const QImage shown = row->pixmap(Qt::ReturnByValue).toImage();
                return QColor(shown.pixel(shown.rect().center())) == Qt::red;
            });
        };
        QTRY_VERIFY(allRed());
    }

private:
    QStringList m_played;
};

QTEST_MAIN(HistoryWidgetTest)
#include "HistoryWidgetTest.moc"
