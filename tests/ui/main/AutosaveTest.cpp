// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/Autosave.h"
#include "helpers/Files.h"
#include "helpers/OrdinaryUser.h"
#include "ui/main/MainViewFixture.h"

#include <QAction>
#include <QStackedWidget>
#include <QTextEdit>

#include <atomic>

using namespace velmora;

class AutosaveTest : public QObject
{
    Q_OBJECT

private:
    QString fileName() const { return m->folder.filePath(QStringLiteral("autosave.json")); }

    /// Changes a slideshow, and waits until that is kept.
    void change()
    {
        m->show();
        m->beginSlideshow();
        QTRY_VERIFY(QFile::exists(fileName()));
    }
    /// Starts again, as after a crash: the window was not closed.
    void restart(const QString &answer)
    {
        m->view.reset();
        QVERIFY(QFile::exists(fileName()));
        m->show();
        m->dialogs.press(answer);
        m->view->offerRestore();
    }

    std::unique_ptr<MainViewFixture> m;

private slots:
    void init()
    {
        m = std::make_unique<MainViewFixture>();
        m->store->setValue(QStringLiteral("autosaveSeconds"), 1);
    }
    void cleanup()
    {
        QCOMPARE(m->dialogs.failure(), QString());
        m.reset();
    }

    void changesAreKeptAndRestored_data()
    {
        QTest::addColumn<QString>("answer");
        for (const char *answer : {"RESTORE", "DISCARD"})
            QTest::newRow(answer) << answer;
    }
    void changesAreKeptAndRestored()
    {
        QFETCH(QString, answer);
        m->show();
        m->view->offerRestore(); // nothing is there
        m->beginSlideshow();
        QTRY_VERIFY(QFile::exists(fileName()));
        restart(answer);
        QVERIFY(m->dialogs.text().contains(QStringLiteral("New project")));
        if (answer == QLatin1String("DISCARD")) {
            QCOMPARE(m->view->page(), MainView::Start);
            QTRY_VERIFY(!QFile::exists(fileName()));
            return;
        }
        QCOMPARE(m->view->page(), MainView::Editor);
        QCOMPARE(m->photos(), QStringList(QStringLiteral("begin.png")));
        // What was restored is saved nowhere else yet.
        QVERIFY(m->view->isWindowModified());
        m->dialogs.press(QStringLiteral("DON'T SAVE"));
        QVERIFY(m->view->close());
        QTRY_VERIFY(!QFile::exists(fileName()));
    }

    void restoredDocumentRemembersItsFile()
    {
        change();
        QString error;
        const QString path = m->folder.filePath(QStringLiteral("Trip.json"));
        QVERIFY(m->view->document().save(path, &error));
        QTRY_VERIFY(!QFile::exists(fileName())); // it needs none
        m->view->editorPage().editor().addPhotos({m->makePhoto(QStringLiteral("b.png"))}, -1);
        QTRY_VERIFY(QFile::exists(fileName()));
        restart(QStringLiteral("RESTORE"));
        QCOMPARE(m->view->document().path(), path);
        QCOMPARE(m->photos().size(), 2);
    }

    void damagedFileIsPutAside_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut off") << QByteArray("{\"path\":\"\",\"project\":{\"na");
        QTest::newRow("no project") << QByteArray("{\"project\": 3}");
    }
    void damagedFileIsPutAside()
    {
        QFETCH(QByteArray, content);
        QVERIFY(writeFile(fileName(), content));
        m->show();
        m->view->offerRestore();
        QCOMPARE(m->view->page(), MainView::Start);
        QVERIFY(!QFile::exists(fileName()));
        const QString damaged = m->folder.filePath(QStringLiteral("autosave.damaged.json"));
        QVERIFY(QFile::exists(damaged));
        QCOMPARE(readFile(damaged), content);
        // What comes next is kept as always.
        m->beginSlideshow();
        QTRY_VERIFY(QFile::exists(fileName()));
    }

    void unreadableFileStays()
    {
        change();
        m->view.reset();
        QVERIFY(QFile::setPermissions(fileName(), {}));
        QVERIFY(QFile::setPermissions(m->folder.path(), QFile::Permissions(QFlag(0x7777))));
        {
            const OrdinaryUser user;
            if (!user.isOne())
                QSKIP("This user may read every file.");
            m->show();
            m->view->offerRestore();
            m->view->document().begin();
            m->view->document().setName(QStringLiteral("Sylt"));
            QTest::qWait(1200); // longer than the interval
            m->dialogs.press(QStringLiteral("DON'T SAVE"));
            QVERIFY(m->view->close());
            m->view.reset();
        }
        QVERIFY(QFile::setPermissions(fileName(), QFile::ReadOwner | QFile::WriteOwner));
        restart(QStringLiteral("RESTORE"));
        QCOMPARE(m->photos(), QStringList(QStringLiteral("begin.png")));
    }

    void editedCaptionIsKept()
    {
        m->show();
        m->view->document().begin();
        m->child<QStackedWidget>("pages")->setCurrentIndex(MainView::Editor);
        m->child<QAction>("actCaptionOfAll")->trigger();
        QTest::keyClicks(m->child<QTextEdit>("teProjectItemText"), QStringLiteral("Sylt"));
        QTRY_VERIFY(QFile::exists(fileName()));
        const auto caption = [this] {
            return m->view->document().project()->items().first()->caption().text;
        };
        QVERIFY(!caption().endsWith(QLatin1String("Sylt")));
        restart(QStringLiteral("RESTORE"));
        QVERIFY(caption().endsWith(QLatin1String("Sylt")));
    }

    void failedWriteIsTriedAgain()
    {
        QVERIFY(QDir().mkpath(fileName()));
        m->show();
        m->view->document().begin();
        static std::atomic_bool failed;
        failed = false;
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) {
            failed = failed || text.startsWith(QLatin1String("Cannot keep the unsaved changes"));
        });
        m->view->document().setName(QStringLiteral("Sylt"));
        QTRY_VERIFY(failed);
        qInstallMessageHandler(nullptr);
        QVERIFY(QDir().rmdir(fileName()));
        QTRY_VERIFY(QFileInfo(fileName()).isFile());
    }

    void onlyTheFirstOfSeveralKeepsOne()
    {
        change();
        Autosave second(m->view->document(), m->view->editorPage().editor(), m->folder.path(),
                        1000);
        QVERIFY(!second.find(m->settings).project);
        second.clear();
        second.saveNow();
        QVERIFY(QFile::exists(fileName()));
        // At the end of the program, the window may stay longer than the next start can wait.
        m->view->letGo();
        Autosave next(m->view->document(), m->view->editorPage().editor(), m->folder.path(), 1000);
        QVERIFY(next.find(m->settings).project);
    }
};

QTEST_MAIN(AutosaveTest)
#include "AutosaveTest.moc"
