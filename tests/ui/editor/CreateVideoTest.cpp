// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/RenderRequest.h"
#include "helpers/Files.h"
#include "ui/audio/AudioListWidget.h"
#include "ui/editor/CreatePanel.h"
#include "ui/editor/EditorPage.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QStackedWidget>
#include <QToolButton>
#include <QUndoStack>

using namespace velmora;

/// From "CREATE" to the file, or to what went wrong.
class CreateVideoTest : public QObject
{
    Q_OBJECT

private:
    int page() const { return m->child<QStackedWidget>("tcCreate")->currentIndex(); }
    Composer &composer() const { return m->page->createPanel().composer(); }

    /// Has the making of the video begin.
    void create()
    {
        m->click("btnCreate");
        QTRY_COMPARE(page(), 1);
    }

    /// What arrives by itself while the page is locked by a render.
    void editBehind(const QString &edit)
    {
        ProjectEditor &editor = m->page->editor();
        if (edit == QLatin1String("add"))
            editor.addPhotos({m->makePhoto(QStringLiteral("late.png"))}, -1);
        else if (edit == QLatin1String("relocate"))
            editor.relocate(m->items().last(), m->makePhoto(QStringLiteral("moved.png")));
        else if (edit == QLatin1String("sort"))
            editor.moveSlides({m->items().last()}, 1);
        else if (edit == QLatin1String("undo"))
            editor.undoStack()->undo();
    }

    std::unique_ptr<EditorPage> m;

private slots:
    void init() { m = std::make_unique<EditorPage>(); }
    void cleanup() { m.reset(); }

    void fullScreenDoesNotOutliveTheRenderOrThePage()
    {
        m->addPhotos(QStringLiteral("a"));
        const QWidget *player = m->child<QWidget>("player");
        const auto isFull = [player] { return player->window()->isFullScreen(); };
        const auto show = [this] { m->child<QToolButton>("btnFullSize")->click(); };
        create();
        show();
        QTRY_VERIFY(isFull());
        QVariant wasFull;
        connect(m->page.get(), &MainWindowWidget::finished, this, [&] { wasFull = isFull(); });
        QTRY_VERIFY(wasFull.isValid());
        QVERIFY(!wasFull.toBool());

        show();
        QTRY_VERIFY(isFull());
        m->page->hide();
        QCOMPARE(player->window(), m->page.get());
        QVERIFY(!player->isVisible());
        m->page->show();
        QTRY_VERIFY(player->isVisible());
    }

    void createMakesTheVideo_data()
    {
        QTest::addColumn<QString>("lateEdits");
        QTest::addColumn<bool>("historyWritable");
        QTest::newRow("usual") << QString() << true;
        QTest::newRow("photo arrives") << "add" << true;
        QTest::newRow("photo relocated") << "relocate" << true;
        QTest::newRow("slides sorted") << "sort" << true;
        QTest::newRow("photo arrives and goes") << "add undo" << true;
        QTest::newRow("read-only history") << QString() << false;
    }
    void createMakesTheVideo()
    {
        QFETCH(QString, lateEdits);
        QFETCH(bool, historyWritable);
        if (!historyWritable) {
            QVERIFY(QDir().mkpath(m->path("history.json")));
            m->answerNext(0);
        }
        m->addPhotos(QStringLiteral("ab"));
        const QStringList rendered = m->names();
        QSignalSpy finished(m->page.get(), &MainWindowWidget::finished);
        QSignalSpy ended(m->page.get(), &MainWindowWidget::progressFinished);
        QSignalSpy progress(m->page.get(), &MainWindowWidget::progress);
        QSignalSpy recorded(m->page.get(), &MainWindowWidget::recorded);
        const QString name = QStringLiteral("it's a 100% vidéo 漢!");
        m->nameVideo(name);
        create();
        QVERIFY(m->page->isGenerating());
        QVERIFY(!m->table().isEnabled());
        for (const QString &edit : lateEdits.split(QLatin1Char(' ')))
            editBehind(edit);
        const bool isSame = lateEdits.isEmpty() || lateEdits.contains(QStringLiteral("undo"));
        QCOMPARE(m->names() == rendered, isSame);
        QTRY_COMPARE(ended.count(), 1);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(recorded.count(), isSame && historyWritable ? 1 : 0);
        QCOMPARE(m->message().isEmpty(), historyWritable);
        const QString file = QDir(m->settings.folder).filePath(name + QStringLiteral(".mp4"));
        QCOMPARE(finished.first().first().toString(), file);
        QVERIFY(QFileInfo(file).size() > 1000);
        for (int i = 1; i < progress.size(); ++i)
            QVERIFY(progress[i].first().toInt() > progress[i - 1].first().toInt());
        QCOMPARE(progress.last().first().toInt(), 100);
        QCOMPARE(m->history->projects().size(), std::size_t(1));
        QCOMPARE(m->history->projects().front()->fileName(), file);
        QStringList kept;
        for (const ProjectItem *slide : m->history->projects().front()->items())
            kept.append(slide->title());
        QCOMPARE(kept, rendered);
        QCOMPARE(page(), 0);
        QVERIFY(m->table().isEnabled());
        const QRegularExpression next(QStringLiteral("^sshow_\\d{4}-\\d{2}-\\d{2}_\\d{6}$"));
        QVERIFY(next.match(m->child<QLineEdit>("txtProjName")->text()).hasMatch());
    }

    void renderIsPausedAndCancelled()
    {
        m->addPhotos(QStringLiteral("ab"));
        QSignalSpy ended(m->page.get(), &MainWindowWidget::progressFinished);
        QSignalSpy paused(m->page.get(), &MainWindowWidget::pausedChanged);
        create();
        const auto icon = [this] {
            return m->child<QPushButton>("btnPauseResume")->icon().pixmap(20).toImage();
        };
        const QImage running = icon();
        m->click("btnPauseResume");
        QVERIFY(composer().isPaused());
        QCOMPARE(m->child<QLabel>("lblSpeed")->text(), QStringLiteral("Paused"));
        QVERIFY(icon() != running);
        m->click("btnPauseResume");
        QVERIFY(!composer().isPaused());
        QCOMPARE(paused.count(), 2);
        QVERIFY(paused.first().first().toBool() && !paused.last().first().toBool());
        m->click("btnCancel");
        QCOMPARE(ended.count(), 1);
        QCOMPARE(page(), 0);
        QVERIFY(!m->child<QPushButton>("btnCreate")->isEnabled());
        QTRY_VERIFY(m->child<QPushButton>("btnCreate")->isEnabled());
        QVERIFY(!composer().isRunning());
        QCOMPARE(m->history->projects().size(), std::size_t(0));
    }

    void existingVideoIsReplacedOnlyOnDemand()
    {
        QVERIFY(writeFile(m->path("old.mp4")));
        QSignalSpy started(m->page.get(), &MainWindowWidget::progressStarted);
        m->nameVideo(QStringLiteral("old"));
        m->answerNext(0);
        m->click("btnCreate");
        QTRY_VERIFY(m->message().contains(QStringLiteral("old.mp4")));
        auto *button = m->child<QPushButton>("btnCreate");
        QTRY_VERIFY(button->isEnabled());
        QCOMPARE(m->page->focusWidget(), button);
        QCOMPARE(started.count(), 0);
        m->answerNext(1);
        create();
        QCOMPARE(started.count(), 1);
        m->click("btnCancel");
    }

    void waitsForWhatIsOnItsWay_data()
    {
        QTest::addColumn<QString>("what");
        for (const char *what : {"photo", "music", "dates"})
            QTest::newRow(what) << QString::fromLatin1(what);
    }
    void waitsForWhatIsOnItsWay()
    {
        QFETCH(QString, what);
        m->addPhotos(QStringLiteral("ab"));
        auto *button = m->child<QPushButton>("btnCreate");
        QTRY_VERIFY(button->isEnabled());
        const QString usual = button->toolTip();
        if (what == QLatin1String("photo"))
            m->page->onFilesDropped({m->makePhoto(QStringLiteral("c.png"))}, -1);
        else if (what == QLatin1String("music"))
            m->page->findChild<AudioListWidget *>()->onAudioFilesDropped({m->path("a")}, -1);
        else
            m->child<QAction>("actSortByDate")->trigger();
        QVERIFY(!button->isEnabled());
        QVERIFY(button->toolTip() != usual);
        if (what == QLatin1String("music"))
            m->answerNext(0);
        QTRY_VERIFY(button->isEnabled());
        QCOMPARE(button->toolTip(), usual);
        QCOMPARE(m->items().size(), what == QLatin1String("photo") ? 4 : 3);
    }

    void preparationsCanBeOvertaken_data()
    {
        QTest::addColumn<QString>("by");
        for (const char *by : {"another project", "photo", "caption"})
            QTest::newRow(by) << QString::fromLatin1(by);
    }
    void preparationsCanBeOvertaken()
    {
        QFETCH(QString, by);
        m->addPhotos(QStringLiteral("ab"));
        QTRY_VERIFY(m->child<QPushButton>("btnCreate")->isEnabled());
        m->nameVideo(QStringLiteral("early"));
        QSignalSpy started(m->page.get(), &MainWindowWidget::progressStarted);
        m->click("btnCreate");
        ProjectFile other(m->settings, ProjectFile::TitleSlide::Create);
        if (by == QLatin1String("another project"))
            m->page->setProject(&other);
        else if (by == QLatin1String("photo"))
            m->page->onFilesDropped({m->makePhoto(QStringLiteral("c.png"))}, -1);
        else
            m->child<QAction>("actCaptionOfAll")->trigger();
        QTest::qWait(300);
        QCOMPARE(started.count(), 0);
        QVERIFY(!QFile::exists(m->path("cache/data/early.json")));
        if (by == QLatin1String("caption"))
            m->click("butCancelText");
        QTRY_VERIFY(m->child<QPushButton>("btnCreate")->isEnabled());
        m->page->setProject(nullptr);
    }

    void folderMustBeWritable_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("problem");
        // Not even the superuser writes there.
        if (QFileInfo::exists(QStringLiteral("/proc")))
            QTest::newRow("read-only")
                << QStringLiteral("/proc") << QStringLiteral("be written to");
        QTest::newRow("below a file") << QString() << "cannot be made";
    }
    void folderMustBeWritable()
    {
        QFETCH(QString, folder);
        QFETCH(QString, problem);
        QSignalSpy started(m->page.get(), &MainWindowWidget::progressStarted);
        if (folder.isEmpty())
            folder = m->makePhoto(QStringLiteral("a.png")) + QStringLiteral("/videos");
        m->settings.folder = folder;
        m->answerNext(0);
        m->click("btnCreate");
        QTRY_VERIFY(!m->message().isEmpty());
        QVERIFY2(m->message().contains(QDir::toNativeSeparators(folder) + QLatin1Char(' ')),
                 qPrintable(m->message()));
        QVERIFY2(m->message().contains(problem), qPrintable(m->message()));
        QCOMPARE(started.count(), 0);
    }

    void foreignFormatGoesWithItsDocument()
    {
        const auto *formats = m->child<QComboBox>("cbxFormat");
        ProjectFile other(m->settings, ProjectFile::TitleSlide::Create);
        for (const char *foreign : {"mkv", "wmv"}) {
            other.setFormat(QLatin1String(foreign));
            m->page->setProject(&other);
            QCOMPARE(formats->count(), 5);
            QCOMPARE(formats->currentData().toString(), QLatin1String(foreign));
        }
        m->page->setProject(m->project.get());
        QCOMPARE(formats->count(), 4);
        QCOMPARE(formats->currentData().toString(), QStringLiteral("mp4"));
    }

    void requestCarriesProfileAndFormat()
    {
        m->settings.outputProfile = QStringLiteral("everywhere");
        m->settings.speedGeneration = true;
        auto *format = m->child<QComboBox>("cbxFormat");
        QCOMPARE(format->count(), 4);
        QTest::keyClick(format, Qt::Key_Down);
        QCOMPARE(m->project->format(), QStringLiteral("avi"));
        m->nameVideo(QStringLiteral("wanted"));
        RenderRequest request;
        QString error;
        const QString file = m->path("cache/data/wanted.json");
        connect(m->page.get(), &MainWindowWidget::progressStarted, this,
                [&] { request.load(file, AppSettings(), &error); });
        m->createInVain();
        QVERIFY2(request.project, qPrintable(error));
        // It holds the user's paths and texts.
        QVERIFY(!QFile::exists(file));
        QVERIFY(request.profile == OutputProfile::PlaysEverywhere);
        QVERIFY(request.parallel);
        QCOMPARE(request.transitionSeconds, 1);
        QCOMPARE(request.project->fileName(), m->path("wanted.avi"));
    }
};

QTEST_MAIN(CreateVideoTest)
#include "CreateVideoTest.moc"
