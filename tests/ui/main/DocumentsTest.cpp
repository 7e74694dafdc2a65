// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Identity.h"
#include "helpers/Files.h"
#include "helpers/Words.h"
#include "ui/main/MainViewFixture.h"

#include <QAction>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>
#include <QTextEdit>

using namespace velmora;

/// Slideshows opened, saved, resumed and closed in the main window.
class DocumentsTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<MainViewFixture> m;

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

    void resumeAsksAboutMissingFiles_data()
    {
        QTest::addColumn<QString>("answer");
        for (const char *answer : {"RESUME", "CANCEL"})
            QTest::newRow(answer) << answer;
    }
    void resumeAsksAboutMissingFiles()
    {
        QFETCH(QString, answer);
        auto entry = std::make_unique<ProjectFile>(m->settings, ProjectFile::TitleSlide::Create);
        entry->setName(QStringLiteral("Old trip"));
        entry->addFiles({m->makePhoto(QStringLiteral("there.png")),
                         m->folder.filePath(QStringLiteral("gone.png"))},
                        3, 1);
        entry->setAudio({{{m->folder.filePath(QStringLiteral("gone.mp3")), {}}}, 0});
        m->history->add(std::move(entry));
        m->show();
        QCOMPARE(m->child<QPushButton>("btnRecent")->text(),
                 QStringLiteral("Continue with Old trip"));
        const bool isResumed = answer == QLatin1String("RESUME");
        if (isResumed)
            m->click("btnHistory");
        m->dialogs.press(answer);
        m->click(isResumed ? "btnResumeProject" : "btnRecent");
        QTRY_COMPARE(m->dialogs.title(), QStringLiteral("Not all files exist"));
        QCOMPARE(m->dialogs.text(),
                 QStringLiteral("Not all files exist, do you want to resume the project?"));
        if (!isResumed) {
            QVERIFY(!m->view->document().project());
            QCOMPARE(m->view->page(), MainView::Start);
            return;
        }
        QTRY_COMPARE(m->view->page(), MainView::Editor);
        QCOMPARE(m->photos(), QStringList(QStringLiteral("there.png")));
        QVERIFY(m->view->document().project()->audio().items.isEmpty());
        QVERIFY(!m->view->isWindowModified());
        // The history still has the whole of it.
        QCOMPARE(m->history->projects().front()->items().size(), 3);
    }

    void resumeLeavesARenderInPeace_data()
    {
        QTest::addColumn<bool>("waits");
        QTest::newRow("asked for during a render") << true;
        QTest::newRow("a render begins meanwhile") << false;
    }
    void resumeLeavesARenderInPeace()
    {
        QFETCH(bool, waits);
        auto entry = std::make_unique<ProjectFile>(m->settings, ProjectFile::TitleSlide::Create);
        entry->addFiles({m->folder.filePath(QStringLiteral("gone.png"))}, 3, 1);
        m->history->add(std::move(entry));
        m->show();
        if (waits)
            m->view->onProgressStarted();
        m->click("btnRecent");
        if (!waits)
            m->view->onProgressStarted();
        constexpr int kSearch = 200; // ms, more than a file takes
        QTest::qWait(kSearch);
        QVERIFY(!QApplication::activeModalWidget());
        if (waits)
            m->dialogs.press(QStringLiteral("RESUME"));
        m->view->onProgressFinished();
        if (waits)
            QTRY_VERIFY(m->view->document().project());
        else
            QTest::qWait(kSearch);
        QCOMPARE(m->dialogs.title(), waits ? QStringLiteral("Not all files exist") : QString());
        QCOMPARE(m->view->document().project() != nullptr, waits);
    }

    void documentIsOpenedChangedAndSaved()
    {
        ProjectFile document(m->settings, ProjectFile::TitleSlide::Create);
        document.addFiles({m->makePhoto(QStringLiteral("a.png"))}, 3, 1);
        document.setFormat(QStringLiteral("mpg")); // which no render makes
        const QString path = m->folder.filePath(QStringLiteral("Holiday 2026.json"));
        QVERIFY(document.saveToFile(path));
        const auto offered = [this] {
            int count = 0;
            for (const char *name : {"actSave", "actSaveAs", "actTitle"})
                count += m->child<QAction>(name)->isEnabled() ? 1 : 0;
            return count;
        };
        QCOMPARE(offered(), 0);
        m->chooseFiles({path});
        m->press(Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(m->view->page(), MainView::Editor);
        QCOMPARE(offered(), 3);
        QCOMPARE(m->view->windowTitle(), QStringLiteral("Holiday 2026[*] \u2013 Corvel Velmora"));
        QVERIFY(!m->view->isWindowModified());
        QCOMPARE(m->view->document().project()->format(), QStringLiteral("mkv"));
        m->view->editorPage().editor().addPhotos({m->makePhoto(QStringLiteral("b.png"))}, -1);
        QVERIFY(m->view->isWindowModified());
        m->press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!m->view->isWindowModified());
        QString error;
        const auto read = ProjectFile::loadFromFile(path, m->settings, &error);
        QVERIFY2(read, qPrintable(error));
        QCOMPARE(read->items().size(), 3);

        const QString copy = m->folder.filePath(QStringLiteral("copy"));
        m->chooseFiles({copy});
        m->press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(QFile::exists(copy + QStringLiteral(".json")));
        m->press(Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(m->view->page(), MainView::Start);
        QCOMPARE(m->view->windowTitle(), QStringLiteral("Corvel Velmora"));
        QVERIFY(!m->view->document().project());
        QCOMPARE(offered(), 0);
    }

    void openingTheOpenFileKeepsWhatIsSaved()
    {
        m->beginSlideshow();
        QString error;
        const QString path = m->folder.filePath(QStringLiteral("mine.json"));
        QVERIFY(m->view->document().save(path, &error));
        m->view->editorPage().editor().addPhotos({m->makePhoto(QStringLiteral("b.png"))}, -1);
        m->dialogs.press(QStringLiteral("SAVE"));
        m->view->openFiles({path});
        QCOMPARE(m->photos().size(), 2);
        QVERIFY(!m->view->isWindowModified());
    }

    void badDocumentChangesNothing_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("no JSON") << QByteArray("hello");
        QTest::newRow("no project") << QByteArray("{\"a\": 1}");
        QTest::newRow("empty") << QByteArray();
    }
    void badDocumentChangesNothing()
    {
        QFETCH(QByteArray, content);
        m->beginSlideshow();
        const QString bad = m->folder.filePath(QStringLiteral("bad.json"));
        QVERIFY(writeFile(bad, content));
        m->dialogs.press(QStringLiteral("CLOSE"));
        m->view->openFiles({bad, m->makePhoto(QStringLiteral("good.png"))});
        QVERIFY(m->dialogs.text().contains(QStringLiteral("bad.json")));
        QTRY_COMPARE(m->photos(), words("begin.png good.png"));
        QVERIFY(m->view->isWindowModified());
    }

    void handedOverFilesWaitForDialogs()
    {
        m->beginSlideshow();
        ProjectFile document(m->settings, ProjectFile::TitleSlide::Create);
        const QString path = m->folder.filePath(QStringLiteral("Holiday.json"));
        QVERIFY(document.saveToFile(path));
        m->dialogs.expect([this, path](QDialog *dialog) {
            m->view->openFiles({path});
            QCOMPARE(m->view->document().path(), QString());
            dialog->findChild<QLineEdit *>()->setText(QStringLiteral("Old"));
            dialog->accept();
        });
        m->dialogs.press(QStringLiteral("DON'T SAVE"));
        m->press(Qt::Key_T, Qt::ControlModifier);
        QTRY_COMPARE(m->view->document().path(), path);
        QCOMPARE(m->view->document().project()->name(), document.name());
    }

    void handedOverFilesWaitForMenus()
    {
        m->view->document().begin();
        const QString path = m->folder.filePath(QStringLiteral("Holiday.json"));
        QVERIFY(m->view->document().project()->saveToFile(path));
        QMenu menu;
        menu.addAction(QStringLiteral("Delete"));
        menu.popup({});
        bool cameMeanwhile = false;
        connect(&m->view->document(), &ProjectDocument::replaced, &menu,
                [&] { cameMeanwhile = menu.isVisible(); });
        m->view->openFiles({path});
        QTest::qWait(300); // The menu may close by itself when another program comes to the front.
        menu.close();
        QTRY_COMPARE(m->view->document().path(), path);
        QVERIFY(!cameMeanwhile);
    }

    void handedOverFilesWaitForTheVideo()
    {
        m->view->document().begin();
        const QString path = m->folder.filePath(QStringLiteral("Holiday.json"));
        QVERIFY(m->view->document().project()->saveToFile(path));
        emit m->view->editorPage().progressStarted();
        m->view->openFiles({path});
        QCOMPARE(m->view->document().path(), QString());
        emit m->view->editorPage().progressFinished();
        QTRY_COMPARE(m->view->document().path(), path);
    }

    void closingAsks_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("closed");
        QTest::addColumn<bool>("saved");
        QTest::newRow("cancel") << "CANCEL" << false << false;
        QTest::newRow("discard") << "DON'T SAVE" << true << false;
        QTest::newRow("save") << "SAVE" << true << true;
    }
    void closingAsks()
    {
        QFETCH(QString, answer);
        QFETCH(bool, closed);
        QFETCH(bool, saved);
        // A caption that is being edited is work as well.
        m->view->document().begin();
        m->child<QStackedWidget>("pages")->setCurrentIndex(MainView::Editor);
        QVERIFY(!m->view->isWindowModified());
        m->child<QAction>("actCaptionOfAll")->trigger();
        auto *text = m->child<QTextEdit>("teProjectItemText");
        text->selectAll();
        QTest::keyClicks(text, QStringLiteral("Unsaved"));
        QVERIFY(m->view->isWindowModified());
        const QString path = m->folder.filePath(QStringLiteral("mine.json"));
        m->dialogs.press(answer);
        if (saved)
            m->chooseFiles({path});
        m->view->close();
        QCOMPARE(m->view->isVisible(), !closed);
        QCOMPARE(QFile::exists(path), saved);
        QString error;
        const auto read = ProjectFile::loadFromFile(path, m->settings, &error);
        QCOMPARE(read ? read->items().first()->caption().text : QString(),
                 saved ? QStringLiteral("Unsaved") : QString());
    }
};

QTEST_MAIN(DocumentsTest)
#include "DocumentsTest.moc"
