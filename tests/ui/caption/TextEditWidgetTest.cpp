// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/caption/TextEditWidget.h"
#include "app/AppSettings.h"
#include "chrome/MessageDialog.h"
#include "chrome/Theme.h"
#include "project/documents/ProjectFile.h"
#include "project/frames/SlideRenderer.h"
#include "project/slides/ProjectItemFirst.h"
#include "project/slides/ProjectItemSimple.h"
#include "project/slides/TitleBackground.h"
#include "ui/caption/BackgroundPicker.h"
#include "ui/caption/CaptionPreview.h"
#include "ui/caption/ColorBox.h"
#include "ui/caption/PositionPicker.h"
#include "ui/caption/SelectedColorButtonEffect.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QFontComboBox>
#include <QFontDatabase>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <QUndoStack>

using namespace velmora;

class TextEditWidgetTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void headingNamesTheSlide();
    void sharedStyleOfTitleAloneIsStarter();
    void savingIsOneStep();
    void cancellingChangesNothing_data();
    void cancellingChangesNothing();
    void escapeAsksOnlyAfterChanges();
    void controlEnterSavesTheText();
    void positionsAreChosen_data();
    void positionsAreChosen();
    void arrowKeysMoveThePosition();
    void backgroundsAreShownAsTheyAre();
    void backgroundIsSavedWithTheText();
    void textColorFollowsTheBackground();
    void unknownValuesSurvive();
    void customColorIsAsked();
    void styleGoesToAllSlides_data();
    void styleGoesToAllSlides();
    void pictureFollowsTheControls();
    void removedSlideEndsEditing();

private:
    template <typename T> T &child(const char *name) const
    {
        T *found = m_widget->findChild<T *>(QLatin1String(name));
        if (!found)
            qFatal("No widget %s", name);
        return *found;
    }
    void click(const char *name) const { QTest::mouseClick(&child<QWidget>(name), Qt::LeftButton); }
    /// Chooses an entry as a user does, with the keyboard.
    static void choose(QComboBox &box, const QString &text)
    {
        const int target = box.findText(text);
        QVERIFY2(target >= 0, qPrintable(text));
        box.setFocus();
        const Qt::Key key = target > box.currentIndex() ? Qt::Key_Down : Qt::Key_Up;
        for (int i = 0; i < box.count() && box.currentIndex() != target; ++i)
            QTest::keyClick(&box, key);
        QCOMPARE(box.currentIndex(), target);
    }
    void edit(ProjectItem *slide) const
    {
        m_widget->setItem(slide);
        QVERIFY(!m_widget->isEdited());
    }
    ProjectItem *slide(int row) const { return m_project->items().at(row); }
    QUndoStack &stack() const { return *m_editor->undoStack(); }

    QTemporaryDir m_folder;
    AppSettings m_settings;
    std::unique_ptr<ProjectFile> m_project;
    std::unique_ptr<ProjectEditor> m_editor;
    std::unique_ptr<TextEditWidget> m_widget;
};

void TextEditWidgetTest::initTestCase()
{
    Theme::install(*qApp);
    QImage photo(160, 90, QImage::Format_RGB32);
    photo.fill(Qt::darkCyan);
    for (const char *name : {"first.png", "second.png"})
        QVERIFY(photo.save(m_folder.filePath(QLatin1String(name))));
}

void TextEditWidgetTest::init()
{
    m_widget.reset();
    m_editor.reset();
    m_settings = AppSettings();
    m_settings.resolution = {640, 360};
    m_project = std::make_unique<ProjectFile>(m_settings, ProjectFile::TitleSlide::Create);
    m_project->addFiles({m_folder.filePath(QStringLiteral("first.png")),
                         m_folder.filePath(QStringLiteral("second.png"))},
                        3, 1);
    m_editor = std::make_unique<ProjectEditor>(m_settings);
    m_editor->setProject(m_project.get());
    m_widget = std::make_unique<TextEditWidget>(*m_editor);
    m_widget->resize(900, 600);
    m_widget->show();
    QApplication::setActiveWindow(m_widget.get());
    QVERIFY(QTest::qWaitForWindowActive(m_widget.get()));
}

void TextEditWidgetTest::headingNamesTheSlide()
{
    QSignalSpy titles(m_widget.get(), &TextEditWidget::titleChanged);
    auto &label = child<QLabel>("lbTextEditSlideName");
    const QStringList expected = {QStringLiteral("Edit style for 'Starter' slide"),
                                  QStringLiteral("Edit style for 'second.png' slide"),
                                  QStringLiteral("Edit style for All slides"),
                                  QStringLiteral("Edit style for 'first.png' slide")};
    m_widget->setItem(slide(0));
    m_widget->setItem(slide(2));
    m_widget->setAllSlides();
    m_widget->setItem(slide(1));
    QCOMPARE(titles.size(), expected.size());
    for (int i = 0; i < expected.size(); ++i)
        QCOMPARE(titles.at(i).first().toString(), expected.at(i));
    QCOMPARE(label.text(), expected.last());
    m_widget->setItem(nullptr);
    QCOMPARE(titles.size(), expected.size());
    QCOMPARE(label.text(), expected.last());
}

void TextEditWidgetTest::sharedStyleOfTitleAloneIsStarter()
{
    ProjectFile alone(m_settings, ProjectFile::TitleSlide::Create);
    m_editor->setProject(&alone);
    m_widget->setAllSlides();
    QCOMPARE(child<QLabel>("lbTextEditSlideName").text(),
             QStringLiteral("Edit style for 'Starter' slide"));
    m_editor->setProject(m_project.get());
}

void TextEditWidgetTest::savingIsOneStep()
{
    QSignalSpy finished(m_widget.get(), &TextEditWidget::finished);
    const CaptionStyle before = slide(1)->caption();
    edit(slide(1));
    auto &text = child<QTextEdit>("teProjectItemText");
    QCOMPARE(QApplication::focusWidget(), &text);
    QTest::keyClicks(&text, QStringLiteral("Sylt"));
    choose(child<QComboBox>("cbColor"), QStringLiteral("Yellow"));
    choose(child<QComboBox>("cbBgColor"), QStringLiteral("None"));
    choose(child<QComboBox>("cbEffect"), QStringLiteral("Zoom In"));
    click("btnCenterTop");
    QCOMPARE(slide(1)->caption(), before);
    click("butSaveText");

    CaptionStyle expected = before;
    expected.text = QStringLiteral("Sylt");
    expected.textColor = QColor(0xff, 0xf2, 0x00);
    expected.backgroundColor = QColor();
    expected.effect = 19;
    expected.position = 1;
    expected.changed = true;
    QCOMPARE(slide(1)->caption(), expected);
    QCOMPARE(finished.size(), 1);
    QCOMPARE(stack().count(), 1);
    stack().undo();
    QCOMPARE(slide(1)->caption(), before);
}

void TextEditWidgetTest::cancellingChangesNothing_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("CANCEL") << QByteArray("butCancelText");
    QTest::newRow("back") << QByteArray("btnBackInTextEdit");
}

void TextEditWidgetTest::cancellingChangesNothing()
{
    QFETCH(QByteArray, button);
    const CaptionStyle before = slide(1)->caption();
    edit(slide(1));
    auto &fonts = child<QFontComboBox>("cbFont");
    QTest::keyClick(&fonts, Qt::Key_Down);
    click("btnLeftTop");
    QVERIFY(m_widget->isEdited());
    QSignalSpy finished(m_widget.get(), &TextEditWidget::finished);
    click(button.constData());
    QCOMPARE(finished.size(), 1);
    QCOMPARE(slide(1)->caption(), before);
    QCOMPARE(stack().count(), 0);
    edit(slide(1));
    QCOMPARE(child<PositionPicker>("framePosition").position(), before.position);
}

void TextEditWidgetTest::escapeAsksOnlyAfterChanges()
{
    QSignalSpy finished(m_widget.get(), &TextEditWidget::finished);
    auto &text = child<QTextEdit>("teProjectItemText");
    edit(slide(1));
    QTest::keyClick(&text, Qt::Key_Escape);
    QCOMPARE(finished.size(), 1);

    int asked = 0;
    for (const char *button : {"button1", "button0"}) { // keep, then discard
        if (!m_widget->item())
            m_widget->setItem(slide(1));
        QApplication::setActiveWindow(m_widget->window()); // A closed dialog may leave none active.
        QTest::keyClicks(&text, QStringLiteral("x"));
        QTimer::singleShot(0, this, [&asked, button] {
            QWidget *dialog = QApplication::activeModalWidget();
            QVERIFY(qobject_cast<MessageDialog *>(dialog));
            ++asked;
            QTest::mouseClick(dialog->findChild<QPushButton *>(QLatin1String(button)),
                              Qt::LeftButton);
        });
        QTest::keyClick(&text, Qt::Key_Escape);
        QCOMPARE(m_widget->item() != nullptr, qstrcmp(button, "button1") == 0);
    }
    QCOMPARE(asked, 2);
    QCOMPARE(finished.size(), 2);
    QCOMPARE(stack().count(), 0);
}

void TextEditWidgetTest::controlEnterSavesTheText()
{
    edit(slide(2));
    auto &text = child<QTextEdit>("teProjectItemText");
    QTest::keyClicks(&text, QStringLiteral("one"));
    QTest::keyClick(&text, Qt::Key_Return);
    QTest::keyClicks(&text, QStringLiteral("two"));
    QTest::keyClick(&text, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(slide(2)->caption().text, QStringLiteral("one\ntwo"));
    QVERIFY(!m_widget->item());
}

void TextEditWidgetTest::positionsAreChosen_data()
{
    QTest::addColumn<int>("position");
    const char *const names[] = {"btnLeftTop",    "btnCenterTop",    "btnRightTop",
                                 "btnLeftCenter", "btnCenterCenter", "btnRightCenter",
                                 "btnLeftBottom", "btnCenterBottom", "btnRightBottom"};
    for (int i = 0; i < 9; ++i)
        QTest::newRow(names[i]) << i;
}

void TextEditWidgetTest::positionsAreChosen()
{
    QFETCH(int, position);
    edit(slide(1));
    const auto &button = child<QPushButton>(QTest::currentDataTag());
    const QRect area = child<PositionPicker>("framePosition").rect();
    const QPoint centre = button.geometry().center();
    QCOMPARE(centre.x() * 3 / area.width(), position % 3);
    QCOMPARE(centre.y() * 3 / area.height(), position / 3);
    click(QTest::currentDataTag());
    click("butSaveText");
    QCOMPARE(slide(1)->caption().position, position);
}

void TextEditWidgetTest::arrowKeysMoveThePosition()
{
    edit(slide(1)); // bottom right
    auto &button = child<QPushButton>("btnRightBottom");
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Up);
    QCOMPARE(child<PositionPicker>("framePosition").position(), 5);
    QVERIFY(m_widget->isEdited());
}

void TextEditWidgetTest::backgroundsAreShownAsTheyAre()
{
    m_widget->setItem(slide(1));
    QVERIFY(!child<QWidget>("frameStarterBg").isVisible());
    m_widget->setItem(slide(0));
    QVERIFY(child<QWidget>("frameStarterBg").isVisible());
    for (int i = 0; i < kTitleBackgroundCount; ++i) {
        const QString name = QStringLiteral("butColor%1").arg(i + 1, 2, 10, QLatin1Char('0'));
        auto &button = child<QPushButton>(name.toLatin1().constData());
        const bool chosen = button.isChecked();
        QCOMPARE(chosen, i == 22);
        QCOMPARE(qobject_cast<SelectedColorButtonEffect *>(button.graphicsEffect()) != nullptr,
                 chosen);
        if (!chosen) {
            const QRect inside = button.rect().adjusted(1, 1, -1, -1); // of its fine edge
            const QImage expected = titleBackground(i, button.size(), false).copy(inside);
            QCOMPARE(button.grab(inside).toImage().convertToFormat(QImage::Format_RGB32),
                     expected.convertToFormat(QImage::Format_RGB32));
        }
        QVERIFY(button.parentWidget()->rect().contains(button.geometry()));
    }
}

void TextEditWidgetTest::backgroundIsSavedWithTheText()
{
    auto *title = qobject_cast<ProjectItemFirst *>(slide(0));
    edit(title);
    click("butColor01");
    QTest::keyClicks(&child<QTextEdit>("teProjectItemText"), QStringLiteral(" of the sea"));
    click("butSaveText");
    QCOMPARE(title->backgroundIndex(), 0);
    QCOMPARE(title->caption().text, QStringLiteral("My slideshow of the sea"));
    QVERIFY(title->isShown());
    QCOMPARE(stack().count(), 1);
    stack().undo();
    QCOMPARE(title->backgroundIndex(), 22);
    QCOMPARE(title->caption().text, QStringLiteral("My slideshow"));
}

void TextEditWidgetTest::textColorFollowsTheBackground()
{
    edit(slide(0));
    auto &color = child<ColorBox>("cbColor");
    click("butColor03");
    QCOMPARE(color.color(), titleCaptionColor(2));
    // A colour of one's own choice stays.
    choose(color, QStringLiteral("Black"));
    click("butColor05");
    QCOMPARE(color.color(), QColor(Qt::black));
}

void TextEditWidgetTest::unknownValuesSurvive()
{
    CaptionStyle strange = slide(1)->caption();
    strange.text = QString(QChar(0xa0)) + QStringLiteral("a\tb\r\nc");
    strange.fontFamily = QStringLiteral("No Such Font 12345");
    strange.textColor = QColor(1, 2, 3);
    strange.backgroundColor = QColor(4, 5, 6);
    strange.effect = 4711;
    strange.changed = true;
    slide(1)->setCaption(strange);
    edit(slide(1));
    QCOMPARE(child<QFontComboBox>("cbFont").currentText(), strange.fontFamily);
    click("butSaveText");
    QCOMPARE(slide(1)->caption(), strange);
    QCOMPARE(stack().count(), 0);
}

void TextEditWidgetTest::customColorIsAsked()
{
    edit(slide(1));
    auto &box = child<ColorBox>("cbColor");
    const QColor wanted(12, 200, 34);
    for (const bool accept : {false, true}) {
        QTimer::singleShot(0, this, [&wanted, accept] {
            auto *dialog = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            dialog->setCurrentColor(wanted);
            accept ? dialog->accept() : dialog->reject();
        });
        choose(box, QStringLiteral("Brown")); // white to brown passes no dialog
        box.setFocus();
        QTest::keyClick(&box, Qt::Key_End);
        QTRY_VERIFY(!QApplication::activeModalWidget());
        if (!accept)
            QCOMPARE(box.currentText(), QStringLiteral("Brown"));
    }
    QCOMPARE(box.color(), wanted);
    QCOMPARE(box.currentText(), wanted.name());
}

void TextEditWidgetTest::styleGoesToAllSlides_data()
{
    QTest::addColumn<bool>("titleToo");
    QTest::newRow("photos") << false;
    QTest::newRow("title too") << true;
}

void TextEditWidgetTest::styleGoesToAllSlides()
{
    QFETCH(bool, titleToo);
    CaptionStyle second = slide(2)->caption();
    second.text = QStringLiteral("Second");
    slide(2)->setCaption(second);
    m_widget->setAllSlides();
    QVERIFY(!child<QWidget>("teProjectItemText").isVisible());
    click("btnLeftTop");
    if (titleToo)
        QTest::mouseClick(&child<QCheckBox>("chkTitleToo"), Qt::LeftButton, {}, {8, 12});
    click("butSaveText");
    QCOMPARE(slide(0)->caption().position, titleToo ? 0 : 4);
    QCOMPARE(slide(1)->caption().position, 0);
    QCOMPARE(slide(2)->caption().position, 0);
    QCOMPARE(slide(0)->caption().text, QStringLiteral("My slideshow"));
    QCOMPARE(slide(1)->caption().text, QString());
    QCOMPARE(slide(2)->caption().text, QStringLiteral("Second"));
    QCOMPARE(stack().count(), 1);
    stack().undo();
    QCOMPARE(slide(2)->caption(), second);
}

void TextEditWidgetTest::pictureFollowsTheControls()
{
    edit(slide(1));
    auto &preview = child<CaptionPreview>("captionPreview");
    QTest::keyClicks(&child<QTextEdit>("teProjectItemText"), QStringLiteral("Seen at once"));
    click("btnCenterCenter");
    ProjectItemSimple expected(qobject_cast<ProjectItemSimple *>(slide(1))->fileName(), 3, 1);
    CaptionStyle caption = slide(1)->caption();
    caption.text = QStringLiteral("Seen at once");
    caption.position = 4;
    expected.setCaption(caption);
    const FrameFormat format{preview.pictureRect().size(), true, true};
    const QImage frame =
        SlideRenderer::captionedFrame(SlideRenderer::bareFrame(expected, format), expected);
    QTRY_COMPARE(preview.picture(), frame);
    // The picture has the proportions of the video.
    m_editor->setResolution({640, 480});
    QTRY_COMPARE(preview.picture().width() * 3, preview.picture().height() * 4);
}

void TextEditWidgetTest::removedSlideEndsEditing()
{
    QSignalSpy finished(m_widget.get(), &TextEditWidget::finished);
    edit(slide(1));
    m_editor->removeSlides({slide(2)});
    QCOMPARE(finished.size(), 0);
    m_editor->removeSlides({slide(1)});
    QCOMPARE(finished.size(), 1);
    edit(slide(0));
    m_editor->setProject(nullptr);
    QCOMPARE(finished.size(), 2);
    QVERIFY(!m_widget->item());
}

QTEST_MAIN(TextEditWidgetTest)
#include "TextEditWidgetTest.moc"
