// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/EditorPage.h"
#include "helpers/MediaSamples.h"
#include "project/slides/ProjectItemSimple.h"
#include "ui/audio/AudioFilesController.h"
#include "ui/audio/AudioListWidget.h"
#include "ui/model/ValueLists.h"
#include "ui/preview/PreviewWidget.h"

#include <QAction>
#include <QCheckBox>
#include <QFileDialog>
#include <QMenu>
#include <QTextEdit>
#include <QToolButton>
#include <QUndoStack>

using namespace velmora;

class EditorPageTest : public QObject
{
    Q_OBJECT

private:
    QAction *action(const char *name) const { return m->child<QAction>(name); }

    /// Triggers the entry of that text of the next menu that pops up.
    void chooseNext(const QString &text)
    {
        auto *timer = new QTimer(m->page.get());
        connect(timer, &QTimer::timeout, this, [timer, text] {
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            if (!menu)
                return;
            timer->deleteLater();
            QList<QAction *> entries = menu->actions();
            for (int i = 0; i < entries.size(); ++i) {
                if (entries.at(i)->menu())
                    entries += entries.at(i)->menu()->actions();
                if (entries.at(i)->text() == text)
                    entries.at(i)->trigger();
            }
            menu->close();
        });
        timer->start(10);
    }

    std::unique_ptr<EditorPage> m;

private slots:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init() { m = std::make_unique<EditorPage>(); }
    void cleanup() { m.reset(); }

    void droppedFilesFollowTheirRow_data()
    {
        QTest::addColumn<int>("newRow");
        QTest::addColumn<QString>("order");
        QTest::newRow("in the middle") << 2 << "abzxycd";
        QTest::newRow("after the title slide") << 0 << "zxyabcd";
        QTest::newRow("at the end") << -1 << "abcdzxy";
    }
    void droppedFilesFollowTheirRow()
    {
        QFETCH(int, newRow);
        m->addPhotos(QStringLiteral("abcd"));
        m->addPhotos(QStringLiteral("zxy"), newRow);
        QTEST(m->letters(), "order");
        QVERIFY(m->page->editor().isModified());
        QTRY_COMPARE(m->table().selectionModel()->selectedRows().size(), 3);
    }

    void rowMovesAfterAnother()
    {
        m->addPhotos(QStringLiteral("abcd"));
        m->page->onRowsMoved(1, 3);
        QCOMPARE(m->letters(), QStringLiteral("bcad"));
        m->page->onRowsMoved(17, 0);
        QCOMPARE(m->letters(), QStringLiteral("bcad"));
    }

    void buttonsEditTheSelection()
    {
        m->addPhotos(QStringLiteral("abc"));
        const QVector<ProjectItem *> before = m->items();
        m->select({1});
        m->click("btnDown");
        QCOMPARE(m->items().at(2), before.at(1));
        m->click("m_btnRotate");
        m->click("m_btnRotate");
        m->click("btnRotateBack");
        QCOMPARE(before.at(1)->angle(), 90);
        QCOMPARE(before.at(2)->angle(), 0);
        m->click("btnDelete");
        QCOMPARE(m->items().size(), 3);
        QTest::keyClick(m->page.get(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(m->items().size(), 4);
        m->click("btnRedo");
        QCOMPARE(m->items().size(), 3);
    }

    void clearedListCanBeRestored()
    {
        m->addPhotos(QStringLiteral("ab"));
        QCoreApplication::processEvents();
        QCOMPARE(m->child<QPushButton>("btnClear")->text(), QStringLiteral("Clear list (3)"));
        m->click("btnClear");
        QCOMPARE(m->items().size(), 1);
        QVERIFY(!m->items().first()->isShown());
        QVERIFY(!m->child<QPushButton>("btnCreate")->isEnabled());
        QTRY_VERIFY(!m->child<QPushButton>("btnClear")->isEnabled());
        QVERIFY(m->child<QWidget>("emptyHint")->isVisible());
        m->click("btnRestore");
        QVERIFY(m->items().first()->isShown());
        m->click("btnUndo");
        m->click("btnUndo");
        QCOMPARE(m->items().size(), 3);
        QTRY_VERIFY(!m->child<QWidget>("emptyHint")->isVisible());
    }

    void keysEditTheSelection_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QVector<int>>("rows");
        QTest::addColumn<QString>("order");
        const QVector<int> two = {2, 3};
        QTest::newRow("up") << "actUp" << two << "bcad";
        QTest::newRow("down") << "actDown" << two << "adbc";
        QTest::newRow("delete") << "actDelete" << two << "ad";
        QTest::newRow("up, title slide too") << "actUp" << QVector<int>{0, 3} << "acbd";
        QTest::newRow("down, title slide too") << "actDown" << QVector<int>{0, 3} << "abdc";
    }
    void keysEditTheSelection()
    {
        QFETCH(QString, name);
        QFETCH(QVector<int>, rows);
        m->addPhotos(QStringLiteral("abcd"));
        m->select(rows);
        const int code = action(name.toLatin1())->shortcut()[0];
        QTest::keyClick(&m->table(), static_cast<Qt::Key>(code & ~int(Qt::KeyboardModifierMask)),
                        Qt::KeyboardModifiers(code & int(Qt::KeyboardModifierMask)));
        QTEST(m->letters(), "order");
    }

    void everyActionTellsItsKey()
    {
        const QList<QAction *> actions =
            m->page->findChildren<QAction *>(QRegularExpression(QStringLiteral("^act(?!Preview)")));
        QVERIFY(actions.size() > 12);
        QSet<QString> keys;
        for (const QAction *one : actions) {
            const QString key = one->shortcut().toString(QKeySequence::NativeText);
            QVERIFY2(!key.isEmpty() &&
                         one->toolTip().endsWith(QLatin1Char('(') + key + QLatin1Char(')')),
                     qPrintable(one->objectName()));
            QVERIFY2(!keys.contains(key), qPrintable(key));
            keys.insert(key);
        }
        for (const char *name : {"btnUp", "btnSort", "btnShufle", "m_btnRotate", "btnUndo"})
            QVERIFY2(m->child<QToolButton>(name)->toolTip().endsWith(QLatin1Char(')')), name);
    }

    void undoTellsItsStep()
    {
        m->addPhotos(QStringLiteral("a"));
        QCOMPARE(m->child<QToolButton>("btnUndo")->toolTip(),
                 QStringLiteral("Undo: Add photos (Ctrl+Z)"));
        m->click("btnUndo");
        QCOMPARE(m->child<QToolButton>("btnRedo")->toolTip(),
                 QStringLiteral("Redo: Add photos (Ctrl+Y)"));
        QVERIFY(!m->child<QToolButton>("btnUndo")->isEnabled());
    }

    void changeAllSetsEverySlide()
    {
        m->addPhotos(QStringLiteral("ab"));
        emit m->child<QPopupButton>("btnDefaultTime")->valueSelected(7);
        emit m->child<QPopupButton>("btnDefaultTransition")->valueSelected(27);
        for (const ProjectItem *slide : m->items()) {
            QCOMPARE(slide->time(), 7);
            if (const auto *photo = qobject_cast<const ProjectItemSimple *>(slide))
                QCOMPARE(photo->transition(), 27);
        }
        const qint64 length = (3 * 7 + 2 * 1 + 1) * 1000; // the title's caption appears for 1 s
        QTRY_VERIFY(
            m->child<QPushButton>("btnTotal")->text().endsWith(ValueLists::durationText(length)));
        m->page->editor().setTime({m->items().at(1)}, 2);
        QTRY_COMPARE(m->child<QPopupButton>("btnDefaultTime")->text(), QStringLiteral("Various"));
        QCOMPARE(m->child<QPopupButton>("btnDefaultTransition")->text(),
                 QStringLiteral("Cross fade"));
    }

    void settingsAreWritten()
    {
        emit m->child<QPopupButton>("btnOutResolution")->valueSelected(QSize(1280, 1024));
        emit m->child<QPopupButton>("btnTransitionDuration")->valueSelected(3);
        for (const char *name : {"chkScaleToFit", "chkOrigRatio"})
            QTest::keyClick(m->child<QCheckBox>(name), Qt::Key_Space);
        QCOMPARE(m->project->resolution(), QSize(1280, 1024));
        QCOMPARE(m->settings.transitionTime, 3);
        QVERIFY(!m->project->scaleToFit());
        QVERIFY(!m->project->origRatio());
        for (int i = 0; i < 4; ++i)
            m->click("btnUndo");
        QCOMPARE(m->child<QPopupButton>("btnOutResolution")->text(), QStringLiteral("640x480"));
        QVERIFY(m->child<QCheckBox>("chkOrigRatio")->isChecked());
    }

    void contextMenuSetsAllSelected()
    {
        m->addPhotos(QStringLiteral("abc"));
        m->select({1, 3});
        chooseNext(QStringLiteral("15 sec"));
        const QPoint place = m->table().visualRect(m->table().model()->index(1, 0)).center();
        emit m->table().customContextMenuRequested(place);
        QCOMPARE(m->items().at(1)->time(), 15);
        QCOMPARE(m->items().at(2)->time(), 1);
        QCOMPARE(m->items().at(3)->time(), 15);
    }

    void captionIsEditedOnItsOwnPage()
    {
        m->addPhotos(QStringLiteral("ab"));
        QSignalSpy began(m->page.get(), &MainWindowWidget::textEditingBegan);
        QSignalSpy ended(m->page.get(), &MainWindowWidget::textEditingFinished);
        m->select({2});
        QTest::keyClick(&m->table(), Qt::Key_F2);
        QCOMPARE(began.size(), 1);
        QCOMPARE(began.first().first().toInt(), 3);
        QVERIFY(m->child<QWidget>("pageText")->isVisible());
        QVERIFY(!m->child<QWidget>("editorSide")->isVisible());
        QVERIFY(!action("actUndo")->isEnabled());
        QTest::keyClicks(m->child<QTextEdit>("teProjectItemText"), QStringLiteral("Hello"));
        QVERIFY(m->page->hasUnsavedText());
        m->click("butSaveText");
        QCOMPARE(ended.size(), 1);
        QCOMPARE(m->items().at(2)->caption().text, QStringLiteral("Hello"));
        QVERIFY(m->table().isVisible());
        QVERIFY(m->table().hasFocus());
        QCOMPARE(m->table().model()->index(2, SlideTableModel::TextColumn).data().toString(),
                 QStringLiteral("Hello"));
        m->click("btnUndo");
        QVERIFY(m->items().at(2)->caption().text.isEmpty());
    }

    void oneSoundIsHeardAtATime()
    {
        m->addPhotos(QStringLiteral("a"));
        const QString music = m->path("music.wav");
        QVERIFY(MediaSamples::makeTone(music, {}));
        m->page->editor().addAudio({{music, QStringLiteral("0:00:02")}}, -1);
        const auto *preview = m->page->findChild<PreviewWidget *>();
        AudioFilesController &audio = m->page->findChild<AudioListWidget *>()->controller();
        audio.play(0);
        QCOMPARE(audio.playingRow(), 0);
        m->click("btnFullPreview");
        QCOMPARE(audio.playingRow(), -1);
        QVERIFY(preview->isPlaying());
        audio.play(0);
        QCOMPARE(audio.playingRow(), 0);
        QVERIFY(!preview->isPlaying());

        // Nor is anything heard of a page that is not shown.
        action("actCaption")->trigger();
        QCOMPARE(audio.playingRow(), -1);
        m->click("butCancelText");
        m->click("btnFullPreview");
        QVERIFY(preview->isPlaying());
        m->page->hide();
        QVERIFY(!preview->isPlaying());
    }

    void cancelledCaptionChangesNothing()
    {
        m->addPhotos(QStringLiteral("a"));
        const int steps = m->page->editor().undoStack()->count();
        action("actCaptionOfAll")->trigger();
        QTest::keyClicks(m->child<QTextEdit>("teProjectItemText"), QStringLiteral("Hello"));
        m->click("butCancelText");
        QVERIFY(!m->page->isEditingText());
        QCOMPARE(m->page->editor().undoStack()->count(), steps);
        action("actCaptionOfAll")->trigger();
        QVERIFY(m->page->isEditingText());
        m->page->setProject(nullptr);
        QVERIFY(!m->page->isEditingText());
    }

    void missingPhotosAreRelocatedTogether_data()
    {
        QTest::addColumn<bool>("undoneAtOnce");
        QTest::newRow("undone later") << false;
        QTest::newRow("undone while the others are looked for") << true;
    }
    void missingPhotosAreRelocatedTogether()
    {
        QFETCH(bool, undoneAtOnce);
        m->addPhotos(QStringLiteral("abc"));
        QVERIFY(QDir().mkpath(m->path("moved")));
        for (const char *name : {"a.png", "b.png"})
            QVERIFY(QFile::rename(m->path(name), m->path("moved/") + QLatin1String(name)));
        QWidget fileManager;
        fileManager.show();
        QApplication::setActiveWindow(&fileManager);
        QApplication::setActiveWindow(m->page.get());
        const QModelIndex missing = m->table().model()->index(1, 0);
        QTRY_VERIFY(missing.data(SlideTableModel::MissingRole).toBool());
        m->select({1});
        QTimer::singleShot(0, this, [this] {
            QTRY_VERIFY(qobject_cast<QFileDialog *>(QApplication::activeModalWidget()));
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            dialog->selectFile(m->path("moved/a.png"));
            QMetaObject::invokeMethod(dialog, "accept", Qt::QueuedConnection);
        });
        action("actRelocate")->trigger();
        const auto files = [this] {
            QStringList paths;
            for (int row = 1; row <= 3; ++row)
                paths.append(qobject_cast<ProjectItemSimple *>(m->items().at(row))->fileName());
            return paths;
        };
        QCOMPARE(files().first(), m->path("moved/a.png"));
        if (undoneAtOnce) {
            m->page->editor().undoStack()->undo();
            QTest::qWait(100);
            QCOMPARE(files(), QStringList({m->path("a.png"), m->path("b.png"), m->path("c.png")}));
            return;
        }
        QTRY_COMPARE(files(), QStringList({m->path("moved/a.png"), m->path("moved/b.png"),
                                           m->path("c.png")}));
        QTRY_VERIFY(!missing.data(SlideTableModel::MissingRole).toBool());
        m->click("btnUndo");
        QCOMPARE(files(), QStringList({m->path("a.png"), m->path("b.png"), m->path("c.png")}));
    }
};

QTEST_MAIN(EditorPageTest)
#include "EditorPageTest.moc"
