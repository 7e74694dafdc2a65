// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/audio/AudioListWidget.h"
#include "app/AppSettings.h"
#include "chrome/MessageDialog.h"
#include "chrome/QPopupButton.h"
#include "chrome/QTableViewEx.h"
#include "chrome/RowsMimeData.h"
#include "chrome/Theme.h"
#include "helpers/Drop.h"
#include "helpers/Files.h"
#include "helpers/MediaSamples.h"
#include "helpers/Words.h"
#include "project/documents/ProjectFile.h"
#include "ui/audio/AudioFilesController.h"
#include "ui/audio/AudioNoFocusRectangleDelegate.h"
#include "ui/model/ProjectEditor.h"

#include <QFileDialog>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QToolTip>
#include <QUndoStack>
#include <QtTest>

using namespace velmora;

class AudioListWidgetTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        Theme::install(*qApp);
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        MediaSamples::Tone tone;
        tone.sampleRate = 8000;
        for (const char *name : {"a.wav", "b.wav", "c.wav"}) {
            QVERIFY(MediaSamples::makeTone(file(QLatin1String(name)), tone));
            tone.seconds += 61;
        }
        QVERIFY(writeFile(file(QStringLiteral("broken.ogg")), "no sound"));
    }

    void init()
    {
        m_project = std::make_unique<ProjectFile>(m_settings, ProjectFile::TitleSlide::Create);
        m_editor = std::make_unique<ProjectEditor>(m_settings);
        m_editor->setProject(m_project.get());
        m_widget = std::make_unique<AudioListWidget>(*m_editor);
        m_widget->resize(360, 420);
        m_widget->show();
        QApplication::setActiveWindow(m_widget.get());
        QVERIFY(QTest::qWaitForWindowActive(m_widget.get()));
    }
    /// Its thread must not log any more when the test's own log is gone.
    void cleanup() { m_widget.reset(); }

    void totalCountsTracks()
    {
        const auto &total = child<QLabel>("lblAudioTotal");
        QCOMPARE(total.text(), QStringLiteral("Total: 0 track (0:00:00)"));
        QVERIFY(!total.isEnabled());
        add({QStringLiteral("b.wav")});
        QCOMPARE(total.text(), QStringLiteral("Total: 1 tracks (0:01:03)"));
        QVERIFY(total.isEnabled());
        add({QStringLiteral("a.wav")});
        QCOMPARE(total.text(), QStringLiteral("Total: 2 tracks (0:01:05)"));
    }

    void failureIsShownOnce()
    {
        add(words("a.wav broken.ogg b.wav"));
        QTRY_VERIFY(QApplication::activeModalWidget());
        auto *dialog = qobject_cast<MessageDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Adding audio files"));
        QCOMPARE(dialog->findChild<QLabel *>(QStringLiteral("lblText"))->text(),
                 QStringLiteral("Not all audio files have been added"));
        auto *button = dialog->findChild<QPushButton *>(QStringLiteral("button0"));
        QCOMPARE(button->text(), QStringLiteral("CLOSE"));
        QVERIFY(!dialog->findChild<QPushButton *>(QStringLiteral("button1")));
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(!QApplication::activeModalWidget());
        QCOMPARE(order(), QStringLiteral("ab"));
        QTRY_VERIFY(m_widget->findChildren<MessageDialog *>().isEmpty());
    }

    void dialogAddsTheChosenFiles()
    {
        QString title;
        QTimer::singleShot(0, this, [this, &title] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            title = dialog->windowTitle();
            dialog->setDirectory(m_folder.path());
            auto *name = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
            name->setText(QStringLiteral("\"c.wav\" \"a.wav\""));
            QTest::keyClick(name, Qt::Key_Return);
            if (dialog->isVisible())
                dialog->reject();
        });
        QTest::mouseClick(&child<QWidget>("btnAddAudio"), Qt::LeftButton);
        QCOMPARE(title, QStringLiteral("Open File"));
        QTRY_COMPARE(order(), QStringLiteral("ca"));
    }

    void filesAreDropped()
    {
        add(words("a.wav b.wav"));
        QVERIFY(dropFilesOn(table().viewport(), {file(QStringLiteral("c.wav"))}, row(0).center()));
        QTRY_COMPARE(order(), QStringLiteral("acb"));
    }

    void rowsAreDragged()
    {
        addThree();
        RowsMimeData data(&table(), {0, 1});
        QVERIFY(dropOn(table().viewport(), data, row(2).center() + QPoint(0, 10)));
        QCOMPARE(order(), QStringLiteral("cab"));
        m_editor->undoStack()->undo();
        QCOMPARE(order(), QStringLiteral("abc"));
    }

    void keyboardMovesAndDeletes()
    {
        addThree();
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {},
                          row(0).topLeft() + QPoint(60, 20));
        const auto move = [this](Qt::Key key) {
            QTest::keyClick(&table(), key, Qt::AltModifier);
            return order();
        };
        QCOMPARE(move(Qt::Key_Down), QStringLiteral("bac"));
        QCOMPARE(move(Qt::Key_Down), QStringLiteral("bca"));
        QCOMPARE(move(Qt::Key_Down), QStringLiteral("bca")); // already last
        QCOMPARE(move(Qt::Key_Up), QStringLiteral("bac"));
        // The next row is selected each time, until nothing is left.
        for (const char *left : {"bc", "b", "", ""}) {
            QTest::keyClick(&table(), Qt::Key_Delete);
            QCOMPARE(order(), QLatin1String(left));
        }
    }

    void rowsAreHeardAndDeleted()
    {
        addThree();
        AudioFilesController &controller = m_widget->controller();
        clickButton(1, AudioNoFocusRectangleDelegate::PlayButton);
        QCOMPARE(controller.playingRow(), 1);
        clickButton(0, AudioNoFocusRectangleDelegate::StopButton); // does not play
        QCOMPARE(controller.playingRow(), 1);
        clickButton(1, AudioNoFocusRectangleDelegate::StopButton);
        QCOMPARE(controller.playingRow(), -1);
        table().setFocus();
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {},
                          row(2).topLeft() + QPoint(60, 20));
        for (const int playing : {2, -1}) {
            QTest::keyClick(&table(), Qt::Key_Space);
            QCOMPARE(controller.playingRow(), playing);
        }
        clickButton(0, AudioNoFocusRectangleDelegate::DeleteButton);
        QCOMPARE(order(), QStringLiteral("bc"));
    }

    void valuesAreWritten()
    {
        const auto choose = [this](const char *name, const QString &text) {
            auto &button = child<QPopupButton>(name);
            for (QAction *action : button.menu()->actions()) {
                if (action->text() == text)
                    action->trigger();
            }
            QCOMPARE(button.text(), text);
        };
        choose("btnSetOffset", QStringLiteral("-7 sec"));
        choose("btnSetFade", QStringLiteral("4 sec"));
        QTest::mouseClick(&child<QWidget>("btnLoopAudio"), Qt::LeftButton);
        QCOMPARE(m_project->audio().offset, -7);
        QCOMPARE(m_project->audioFade(), 4);
        QVERIFY(m_project->audioLoop());
        m_editor->undoStack()->setIndex(0);
        QCOMPARE(child<QPopupButton>("btnSetOffset").text(), QStringLiteral("0 sec"));
        QCOMPARE(child<QPopupButton>("btnSetFade").text(), QStringLiteral("0 sec"));
        QVERIFY(!child<QPushButton>("btnLoopAudio").isChecked());
    }

    void selectedRowHasItsColor()
    {
        addThree();
        table().selectRow(1);
        table().setFocus();
        const QImage picture = table().viewport()->grab().toImage();
        QCOMPARE(picture.pixelColor(row(1).topLeft() + QPoint(2, 2)).name(),
                 QStringLiteral("#0b96db"));
        QCOMPARE(picture.pixelColor(row(0).topLeft() + QPoint(2, 2)).name(),
                 QStringLiteral("#ffffff"));
        // The focus leaves no mark in the row: it looks the same as elsewhere.
        table().setCurrentIndex(table().model()->index(1, 0));
        const QImage focused = table().viewport()->grab(row(1)).toImage();
        child<QWidget>("btnAddAudio").setFocus();
        QCOMPARE(table().viewport()->grab(row(1)).toImage(), focused);
    }

    void emptyListInvites()
    {
        const QImage empty = table().viewport()->grab().toImage();
        const QPixmap picture = Theme::icon(QStringLiteral("audio")).pixmap(80, 60);
        QImage expected(picture.size(), empty.format());
        expected.fill(Qt::white);
        QPainter(&expected).drawPixmap(0, 0, picture);
        const int x = (empty.width() - picture.width()) / 2;
        bool found = false;
        for (int y = 0; !found && y + picture.height() <= empty.height(); ++y)
            found = empty.copy({QPoint(x, y), picture.size()}) == expected;
        QVERIFY(found);
        QVERIFY(child<QWidget>("btnAddAudio").isVisible());
        addThree();
        QVERIFY(table().viewport()->grab().toImage() != empty);
    }

    void helpIsBrokenIntoLines_data()
    {
        QTest::addColumn<QString>("widget");
        QTest::addColumn<bool>("byClick");
        QTest::newRow("value") << "btnSetOffset" << false;
        QTest::newRow("help") << "btnHelpOffset" << false;
        QTest::newRow("help, clicked") << "btnHelpOffset" << true;
    }
    void helpIsBrokenIntoLines()
    {
        QFETCH(QString, widget);
        QFETCH(bool, byClick);
        auto &shown = child<QWidget>(widget.toLatin1().constData());
        QVERIFY(
            shown.accessibleDescription().startsWith(QStringLiteral("Choose offset of selected")));
        const QPoint at = shown.rect().center();
        QHelpEvent event(QEvent::ToolTip, at, shown.mapToGlobal(at));
        if (byClick)
            QTest::mouseClick(&shown, Qt::LeftButton);
        else
            QApplication::sendEvent(&shown, &event);
        int width = 0;
        for (const QWidget *window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && window->objectName() == QLatin1String("qtooltip_label"))
                width = window->width();
        }
        QVERIFY2(width > 0 && width < 600, qPrintable(QString::number(width)));
        QToolTip::hideText();
    }

    void withoutProjectNothingIsOffered()
    {
        addThree();
        m_editor->setProject(nullptr);
        QVERIFY(!child<QWidget>("btnAddAudio").isEnabled());
        QCOMPARE(table().model()->rowCount(), 0);
        m_editor->setProject(m_project.get());
        QVERIFY(child<QWidget>("btnAddAudio").isEnabled());
        QCOMPARE(table().model()->rowCount(), 3);
    }

private:
    template <typename T> T &child(const char *name) const
    {
        T *found = m_widget->findChild<T *>(QLatin1String(name));
        if (!found)
            qFatal("No widget %s", name);
        return *found;
    }
    QTableViewEx &table() const { return child<QTableViewEx>("tableAudioFiles"); }
    QString file(const QString &name) const { return m_folder.filePath(name); }
    void add(const QStringList &names)
    {
        QStringList files;
        for (const QString &name : names)
            files.append(file(name));
        m_widget->onAudioFilesDropped(files, -1);
        QTRY_VERIFY(!m_widget->controller().isAdding());
    }
    void addThree() { add(words("a.wav b.wav c.wav")); }
    QString order() const
    {
        QString letters;
        for (const AudioItem &item : m_project->audio().items)
            letters += QFileInfo(item.fileName).fileName().at(0);
        return letters;
    }
    QRect row(int number) const { return table().visualRect(table().model()->index(number, 0)); }
    void clickButton(int number, AudioNoFocusRectangleDelegate::Button button) const
    {
        const QRect area =
            AudioNoFocusRectangleDelegate::buttonRect(row(number), button, Qt::LeftToRight);
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, area.center());
    }

    QTemporaryDir m_folder;
    AppSettings m_settings;
    std::unique_ptr<ProjectFile> m_project;
    std::unique_ptr<ProjectEditor> m_editor;
    std::unique_ptr<AudioListWidget> m_widget;
};

QTEST_MAIN(AudioListWidgetTest)
#include "AudioListWidgetTest.moc"
