// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/audio/AudioListWidget.h"
#include "app/AppSettings.h"
#include "chrome/MessageDialog.h"
#include "chrome/QPopupButton.h"
#include "chrome/QTableViewEx.h"
#include "chrome/RowsMimeData.h"
#include "chrome/Theme.h"
#include "helpers/MediaSamples.h"
#include "project/documents/ProjectFile.h"
#include "ui/audio/AudioFilesController.h"
#include "ui/audio/AudioNoFocusRectangleDelegate.h"
#include "ui/model/ProjectEditor.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QUndoStack>
#include <QUrl>

#include <algorithm>

using namespace velmora;

namespace
{

constexpr Qt::DropActions kActions(Qt::CopyAction | Qt::MoveAction);

} // namespace

class AudioListWidgetTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void totalCountsTracks();
    void failureIsShownOnce();
    void dialogAddsTheChosenFiles();
    void filesAreDropped();
    void rowsAreDragged();
    void keyboardMovesAndDeletes();
    void rowButtonsWork();
    void spaceListens();
    void valuesAreWritten();
    void selectedRowHasItsColor();
    void emptyListInvites();
    void helpIsBrokenIntoLines_data();
    void helpIsBrokenIntoLines();
    void withoutProjectNothingIsOffered();

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
    void addThree()
    {
        add({QStringLiteral("a.wav"), QStringLiteral("b.wav"), QStringLiteral("c.wav")});
    }
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
    void drop(QMimeData &data, const QPoint &position) const
    {
        QWidget *viewport = table().viewport();
        QDragEnterEvent enter(position, kActions, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &enter);
        QVERIFY(enter.isAccepted());
        QDragMoveEvent move(position, kActions, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &move);
        QDropEvent event(position, kActions, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &event);
        QVERIFY(event.isAccepted());
    }

    QTemporaryDir m_folder;
    AppSettings m_settings;
    std::unique_ptr<ProjectFile> m_project;
    std::unique_ptr<ProjectEditor> m_editor;
    std::unique_ptr<AudioListWidget> m_widget;
};

void AudioListWidgetTest::initTestCase()
{
    Theme::install(*qApp);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    MediaSamples::Tone tone;
    tone.sampleRate = 8000;
    for (const char *name : {"a.wav", "b.wav", "c.wav"}) {
        QVERIFY(MediaSamples::makeTone(file(QLatin1String(name)), tone));
        tone.seconds += 61;
    }
    QFile broken(file(QStringLiteral("broken.ogg")));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("no sound") > 0);
}

void AudioListWidgetTest::init()
{
    m_widget.reset();
    m_project = std::make_unique<ProjectFile>(m_settings, ProjectFile::TitleSlide::Create);
    m_editor = std::make_unique<ProjectEditor>(m_settings);
    m_editor->setProject(m_project.get());
    m_widget = std::make_unique<AudioListWidget>(*m_editor);
    m_widget->resize(360, 420);
    m_widget->show();
    QApplication::setActiveWindow(m_widget.get());
    QVERIFY(QTest::qWaitForWindowActive(m_widget.get()));
}

void AudioListWidgetTest::totalCountsTracks()
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

void AudioListWidgetTest::failureIsShownOnce()
{
    add({QStringLiteral("a.wav"), QStringLiteral("broken.ogg"), QStringLiteral("b.wav")});
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

void AudioListWidgetTest::dialogAddsTheChosenFiles()
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

void AudioListWidgetTest::filesAreDropped()
{
    add({QStringLiteral("a.wav"), QStringLiteral("b.wav")});
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(file(QStringLiteral("c.wav")))});
    drop(data, row(0).center());
    QTRY_COMPARE(order(), QStringLiteral("acb"));
}

void AudioListWidgetTest::rowsAreDragged()
{
    addThree();
    RowsMimeData data(&table(), {0, 1});
    drop(data, row(2).center() + QPoint(0, 10));
    QCOMPARE(order(), QStringLiteral("cab"));
    m_editor->undoStack()->undo();
    QCOMPARE(order(), QStringLiteral("abc"));
}

void AudioListWidgetTest::keyboardMovesAndDeletes()
{
    addThree();
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, row(0).topLeft() + QPoint(60, 20));
    QTest::keyClick(&table(), Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(order(), QStringLiteral("bac"));
    QTest::keyClick(&table(), Qt::Key_Down, Qt::AltModifier);
    QTest::keyClick(&table(), Qt::Key_Down, Qt::AltModifier); // already last
    QCOMPARE(order(), QStringLiteral("bca"));
    QTest::keyClick(&table(), Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(order(), QStringLiteral("bac"));
    QTest::keyClick(&table(), Qt::Key_Delete);
    QCOMPARE(order(), QStringLiteral("bc"));
    QTest::keyClick(&table(), Qt::Key_Delete); // the next row is selected
    QCOMPARE(order(), QStringLiteral("b"));
    QTest::keyClick(&table(), Qt::Key_Delete);
    QTest::keyClick(&table(), Qt::Key_Delete); // nothing left
    QCOMPARE(order(), QString());
}

void AudioListWidgetTest::rowButtonsWork()
{
    addThree();
    AudioFilesController &controller = m_widget->controller();
    clickButton(1, AudioNoFocusRectangleDelegate::PlayButton);
    QCOMPARE(controller.playingRow(), 1);
    clickButton(0, AudioNoFocusRectangleDelegate::StopButton); // does not play
    QCOMPARE(controller.playingRow(), 1);
    clickButton(1, AudioNoFocusRectangleDelegate::StopButton);
    QCOMPARE(controller.playingRow(), -1);
    clickButton(0, AudioNoFocusRectangleDelegate::DeleteButton);
    QCOMPARE(order(), QStringLiteral("bc"));
}

void AudioListWidgetTest::spaceListens()
{
    addThree();
    table().setFocus();
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, row(2).topLeft() + QPoint(60, 20));
    QTest::keyClick(&table(), Qt::Key_Space);
    QCOMPARE(m_widget->controller().playingRow(), 2);
    QTest::keyClick(&table(), Qt::Key_Space);
    QCOMPARE(m_widget->controller().playingRow(), -1);
}

void AudioListWidgetTest::valuesAreWritten()
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

void AudioListWidgetTest::selectedRowHasItsColor()
{
    addThree();
    table().selectRow(1);
    table().setFocus();
    const QImage picture = table().viewport()->grab().toImage();
    QCOMPARE(picture.pixelColor(row(1).topLeft() + QPoint(2, 2)).name(), QStringLiteral("#0b96db"));
    QCOMPARE(picture.pixelColor(row(0).topLeft() + QPoint(2, 2)).name(), QStringLiteral("#ffffff"));
    // The focus leaves no mark in the row: it looks the same as elsewhere.
    table().setCurrentIndex(table().model()->index(1, 0));
    const QImage focused = table().viewport()->grab(row(1)).toImage();
    child<QWidget>("btnAddAudio").setFocus();
    QCOMPARE(table().viewport()->grab(row(1)).toImage(), focused);
}

void AudioListWidgetTest::emptyListInvites()
{
    const QImage empty = table().viewport()->grab().toImage();
    const QImage picture = Theme::icon(QStringLiteral("audio")).pixmap(80, 60).toImage();
    bool found = false;
    for (int y = 0; !found && y + picture.height() <= empty.height(); ++y) {
        const int x = (empty.width() - picture.width()) / 2;
        QImage area(picture.size(), QImage::Format_ARGB32_Premultiplied);
        area.fill(Qt::white);
        QPainter painter(&area);
        painter.drawImage(0, 0, picture);
        painter.end();
        found =
            empty.copy(QRect(QPoint(x, y), picture.size())).convertToFormat(area.format()) == area;
    }
    QVERIFY(found);
    QVERIFY(child<QWidget>("btnAddAudio").isVisible());
    addThree();
    QVERIFY(table().viewport()->grab().toImage() != empty);
}

void AudioListWidgetTest::helpIsBrokenIntoLines_data()
{
    QTest::addColumn<QString>("widget");
    QTest::addColumn<bool>("byClick");
    QTest::newRow("value") << QStringLiteral("btnSetOffset") << false;
    QTest::newRow("help") << QStringLiteral("btnHelpOffset") << false;
    QTest::newRow("help, clicked") << QStringLiteral("btnHelpOffset") << true;
}

void AudioListWidgetTest::helpIsBrokenIntoLines()
{
    QFETCH(QString, widget);
    QFETCH(bool, byClick);
    auto &shown = child<QWidget>(widget.toLatin1().constData());
    QVERIFY(shown.accessibleDescription().startsWith(QStringLiteral("Choose offset of selected")));
    const QPoint at = shown.rect().center();
    QHelpEvent event(QEvent::ToolTip, at, shown.mapToGlobal(at));
    if (byClick)
        QTest::mouseClick(&shown, Qt::LeftButton);
    else
        QApplication::sendEvent(&shown, &event);
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto bubble = std::find_if(windows.begin(), windows.end(), [](const QWidget *window) {
        return window->isVisible() && window->objectName() == QLatin1String("qtooltip_label");
    });
    QVERIFY(bubble != windows.end());
    QVERIFY2((*bubble)->width() < 600, qPrintable(QString::number((*bubble)->width())));
    QToolTip::hideText();
}

void AudioListWidgetTest::withoutProjectNothingIsOffered()
{
    addThree();
    m_editor->setProject(nullptr);
    QVERIFY(!child<QWidget>("btnAddAudio").isEnabled());
    QCOMPARE(table().model()->rowCount(), 0);
    m_editor->setProject(m_project.get());
    QVERIFY(child<QWidget>("btnAddAudio").isEnabled());
    QCOMPARE(table().model()->rowCount(), 3);
}

QTEST_MAIN(AudioListWidgetTest)
#include "AudioListWidgetTest.moc"
