// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/RenderRequest.h"
#include "helpers/ProcessControl.h"
#include "ui/audio/AudioListWidget.h"
#include "ui/editor/CreatePanel.h"
#include "ui/editor/EditorPage.h"

#include <QAction>
#include <QComboBox>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QProgressBar>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QUndoStack>

using namespace velmora;

/// From "CREATE" to the file, or to what went wrong.
class CreateVideoTest : public QObject
{
    Q_OBJECT

private:
    void setName(const QString &name) { m->child<QLineEdit>("txtProjName")->setText(name); }
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
        ProjectEditor::Slides slides = m->items();
        if (edit == QLatin1String("add"))
            editor.addPhotos({m->makePhoto(QStringLiteral("late.png"))}, -1);
        else if (edit == QLatin1String("relocate"))
            editor.relocate(slides.last(), m->makePhoto(QStringLiteral("moved.png")));
        else if (edit == QLatin1String("sort"))
            editor.moveSlides({slides.last()}, 1);
        else if (edit == QLatin1String("undo"))
            editor.undoStack()->undo();
    }

    std::unique_ptr<EditorPage> m;

private slots:
    void init()
    {
        m = std::make_unique<EditorPage>();
        QVERIFY(m->isShown);
    }
    void cleanup() { m.reset(); }

    void nameIsChecked_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("allowed");
        for (const char symbol : QByteArray("*:[]{}\\/"))
            QTest::newRow(QByteArray(1, symbol).constData())
                << (QStringLiteral("a") + QLatin1Char(symbol)) << false;
        QTest::newRow("!") << QStringLiteral("a!") << true;
        QTest::newRow("hyphen") << QStringLiteral("a-b") << true;
    }

    void nameIsChecked()
    {
        QFETCH(QString, name);
        QFETCH(bool, allowed);
        QSignalSpy started(m->page.get(), &MainWindowWidget::progressStarted);
        setName(name);
        composer().setProgram(m->path("none"));
        m->answerNext(0);
        m->click("btnCreate");
        QTRY_VERIFY(!m->message().isEmpty());
        QCOMPARE(started.count(), allowed ? 1 : 0);
        QCOMPARE(m->message() == QStringLiteral("Project name should not contain any of these "
                                                "symbols: *:[]{}\\/!"),
                 !allowed);
    }

    void defaultNameHoldsTheTime()
    {
        const QRegularExpression pattern(QStringLiteral("^sshow_\\d{4}-\\d{2}-\\d{2}_\\d{6}$"));
        QVERIFY(pattern.match(m->child<QLineEdit>("txtProjName")->text()).hasMatch());
    }

    void titleAndFileNameAreTwo_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<QString>("kept");
        const QString video = QStringLiteral("video");
        QTest::newRow("no title") << QString() << video << video;
        QTest::newRow("title") << QStringLiteral("Trip") << QString() << QStringLiteral("Trip");
        QTest::newRow("both") << QStringLiteral("Trip") << video << QStringLiteral("Trip");
        QTest::newRow("no file name")
            << QStringLiteral("1:0") << QString() << QStringLiteral("1:0");
    }

    void titleAndFileNameAreTwo()
    {
        QFETCH(QString, title);
        QFETCH(QString, fileName);
        if (!title.isEmpty())
            m->page->editor().setName(title);
        if (!fileName.isEmpty())
            setName(fileName);
        composer().setProgram(m->path("none"));
        m->answerNext(0);
        m->click("btnCreate");
        QTRY_COMPARE(m->message(), QStringLiteral("Creation error"));
        QTEST(m->project->name(), "kept");
        const QString made = QFileInfo(m->project->fileName()).completeBaseName();
        QCOMPARE(made, m->child<QLineEdit>("txtProjName")->text());
        QCOMPARE(made == title, title == QLatin1String("Trip") && fileName.isEmpty());
        // A name that a render gave gives way to the next one.
        setName(QStringLiteral("other"));
        m->answerNext(0);
        m->click("btnCreate");
        QTRY_COMPARE(m->message(), QStringLiteral("Creation error"));
        QCOMPARE(m->project->name(), title.isEmpty() ? QStringLiteral("other") : title);
    }

    void createMakesTheVideo_data()
    {
        QTest::addColumn<QString>("lateEdits");
        QTest::addColumn<bool>("historyWritable");
        QTest::newRow("usual") << QString() << true;
        QTest::newRow("photo arrives") << QStringLiteral("add") << true;
        QTest::newRow("photo relocated") << QStringLiteral("relocate") << true;
        QTest::newRow("slides sorted") << QStringLiteral("sort") << true;
        QTest::newRow("photo arrives and goes") << QStringLiteral("add undo") << true;
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
        setName(QStringLiteral("video!"));
        create();
        QVERIFY(m->page->isGenerating());
        QVERIFY(!m->table().isEnabled());
        for (const QString &edit : lateEdits.split(QLatin1Char(' ')))
            editBehind(edit);
        const bool isSame = lateEdits.isEmpty() || lateEdits.contains(QStringLiteral("undo"));
        QCOMPARE(m->names() == rendered, isSame);
        QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, 120000);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(recorded.count(), isSame && historyWritable ? 1 : 0);
        QCOMPARE(m->message().isEmpty(), historyWritable);
        const QString file = m->path("video!.mp4");
        QCOMPARE(finished.first().first().toString(), file);
        QVERIFY(QFileInfo(file).size() > 1000);
        QCOMPARE(progress.last().first().toInt(), 100);
        QCOMPARE(m->history->projects().size(), std::size_t(1));
        QCOMPARE(m->history->projects().front()->fileName(), file);
        QStringList kept;
        for (const ProjectItem *slide : m->history->projects().front()->items())
            kept.append(slide->title());
        QCOMPARE(kept, rendered);
        QCOMPARE(page(), 0);
        QVERIFY(m->table().isEnabled());
        QVERIFY(m->child<QLineEdit>("txtProjName")->text().startsWith(QStringLiteral("sshow_")));
    }

    void pausedRenderGoesOn()
    {
        m->addPhotos(QStringLiteral("ab"));
        QSignalSpy finished(m->page.get(), &MainWindowWidget::finished);
        QSignalSpy paused(m->page.get(), &MainWindowWidget::pausedChanged);
        create();
        const QImage pause = m->child<QPushButton>("btnPauseResume")->icon().pixmap(20).toImage();
        m->click("btnPauseResume");
        QVERIFY(composer().isPaused());
        QCOMPARE(m->child<QLabel>("lblSpeed")->text(), QStringLiteral("Paused"));
        QVERIFY(m->child<QPushButton>("btnPauseResume")->icon().pixmap(20).toImage() != pause);
        m->click("btnPauseResume");
        QVERIFY(!composer().isPaused());
        QCOMPARE(paused.count(), 2);
        QVERIFY(paused.first().first().toBool() && !paused.last().first().toBool());
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 120000);
    }

    void cancelReturnsToTheSetup()
    {
        m->addPhotos(QStringLiteral("ab"));
        QSignalSpy ended(m->page.get(), &MainWindowWidget::progressFinished);
        create();
        m->click("btnCancel");
        QCOMPARE(ended.count(), 1);
        QCOMPARE(page(), 0);
        QVERIFY(!m->child<QPushButton>("btnCreate")->isEnabled());
        QTRY_VERIFY_WITH_TIMEOUT(m->child<QPushButton>("btnCreate")->isEnabled(), 30000);
        QVERIFY(!composer().isRunning());
        QCOMPARE(m->history->projects().size(), std::size_t(0));
    }

    void killedWorkerIsTold()
    {
        m->addPhotos(QStringLiteral("abc"));
        QSignalSpy ended(m->page.get(), &MainWindowWidget::progressFinished);
        QSignalSpy finished(m->page.get(), &MainWindowWidget::finished);
        QSignalSpy failed(m->page.get(), &MainWindowWidget::failed);
        create();
        QVector<qint64> workers;
        QTRY_COMPARE(
            (workers = ProcessControl::childrenOf(QCoreApplication::applicationPid())).size(), 1);
        m->answerNext(0);
        QVERIFY(ProcessControl::kill(workers.first()));
        QTRY_COMPARE(m->message(), QStringLiteral("Creation error"));
        QVERIFY(!m->details().isEmpty());
        QCOMPARE(failed.count(), 1);
        QCOMPARE(failed.first().first().toString(), m->details());
        QCOMPARE(ended.count(), 1);
        QCOMPARE(finished.count(), 0);
        QCOMPARE(page(), 0);
    }

    void existingVideoIsReplacedOnlyOnDemand()
    {
        QFile file(m->path("old.mp4"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        QSignalSpy started(m->page.get(), &MainWindowWidget::progressStarted);
        setName(QStringLiteral("old"));
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
        setName(QStringLiteral("early"));
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
        QTest::newRow("below a file") << QString() << QStringLiteral("cannot be made");
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

    void requestCarriesProfileAndFormat()
    {
        m->settings.outputProfile = QStringLiteral("everywhere");
        m->settings.speedGeneration = true;
        auto *format = m->child<QComboBox>("cbxFormat");
        QCOMPARE(format->count(), 4);
        QTest::keyClick(format, Qt::Key_Down);
        QCOMPARE(m->project->format(), QStringLiteral("avi"));
        setName(QStringLiteral("wanted"));
        composer().setProgram(m->path("none"));
        m->answerNext(0);
        RenderRequest request;
        QString error;
        const QString file = m->path("cache/data/wanted.json");
        connect(m->page.get(), &MainWindowWidget::progressStarted, this,
                [&] { request.load(file, AppSettings(), &error); });
        m->click("btnCreate");
        QTRY_VERIFY(!m->message().isEmpty());
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
