// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/Autosave.h"
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
        QTest::newRow("RESTORE") << QStringLiteral("RESTORE");
        QTest::newRow("DISCARD") << QStringLiteral("DISCARD");
    }

    void changesAreKeptAndRestored()
    {
        QFETCH(QString, answer);
        m->show();
        m->view->offerRestore(); // nothing is there
        m->beginSlideshow();
        QTRY_VERIFY(QFile::exists(fileName()));
        m->view.reset(); // as a crash leaves it: the window was not closed
        QVERIFY(QFile::exists(fileName()));

        m->show();
        m->dialogs.press(answer);
        m->view->offerRestore();
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

    void savedDocumentNeedsNone()
    {
        m->show();
        m->beginSlideshow();
        QTRY_VERIFY(QFile::exists(fileName()));
        QString error;
        QVERIFY(m->view->document().save(m->folder.filePath(QStringLiteral("a.json")), &error));
        QTRY_VERIFY(!QFile::exists(fileName()));
    }

    void restoredDocumentRemembersItsFile()
    {
        m->show();
        m->beginSlideshow();
        QString error;
        const QString path = m->folder.filePath(QStringLiteral("Trip.json"));
        QVERIFY(m->view->document().save(path, &error));
        QTRY_VERIFY(!QFile::exists(fileName()));
        m->view->editorPage().editor().addPhotos({m->makePhoto(QStringLiteral("b.png"))}, -1);
        QTRY_VERIFY(QFile::exists(fileName()));
        m->show();
        m->dialogs.press(QStringLiteral("RESTORE"));
        m->view->offerRestore();
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
        QFile file(fileName());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        m->show();
        m->view->offerRestore();
        QCOMPARE(m->view->page(), MainView::Start);
        QVERIFY(!QFile::exists(fileName()));
        QFile damaged(m->folder.filePath(QStringLiteral("autosave.damaged.json")));
        QVERIFY(damaged.open(QIODevice::ReadOnly));
        QCOMPARE(damaged.readAll(), content);
        // What comes next is kept as always.
        m->beginSlideshow();
        QTRY_VERIFY(QFile::exists(fileName()));
    }

    void unreadableFileStays()
    {
        m->show();
        m->beginSlideshow();
        QTRY_VERIFY(QFile::exists(fileName()));
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
        m->show();
        m->dialogs.press(QStringLiteral("RESTORE"));
        m->view->offerRestore();
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
        m->show();
        m->dialogs.press(QStringLiteral("RESTORE"));
        m->view->offerRestore();
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
        m->show();
        m->beginSlideshow();
        QTRY_VERIFY(QFile::exists(fileName()));
        Autosave second(m->view->document(), m->view->editorPage().editor(), m->folder.path(),
                        1000);
        QVERIFY(!second.find(m->settings).project);
        second.clear();
        second.saveNow();
        QVERIFY(QFile::exists(fileName()));
    }
};

QTEST_MAIN(AutosaveTest)
#include "AutosaveTest.moc"
