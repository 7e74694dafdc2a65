// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/Theme.h"
#include "project/frames/SlideRenderer.h"
#include "project/slides/ProjectItemFirst.h"
#include "project/slides/ProjectItemSimple.h"
#include "project/slides/TitleBackground.h"
#include "ui/caption/CaptionEditor.h"
#include "ui/caption/CaptionPreview.h"
#include "ui/caption/ColorBox.h"
#include "ui/caption/PositionPicker.h"
#include "ui/caption/SelectedColorButtonEffect.h"

#include <QColorDialog>
#include <QLabel>
#include <QPushButton>
#include <QTextEdit>

using namespace velmora;

/// What the caption editor shows, and its controls.
class TextEditWidgetTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<CaptionEditor> m;

private slots:
    void initTestCase() { Theme::install(*qApp); }
    void init() { m = std::make_unique<CaptionEditor>(); }
    void cleanup() { m.reset(); }

    void headingNamesTheSlide()
    {
        QSignalSpy titles(m->widget.get(), &TextEditWidget::titleChanged);
        const auto &label = m->child<QLabel>("lbTextEditSlideName");
        const auto heading = [&] {
            const auto told = titles.isEmpty() ? QVariantList() : titles.takeFirst();
            return told == QVariantList{label.text()} ? label.text() : QString();
        };
        m->widget->setItem(m->slide(0));
        QCOMPARE(heading(), QStringLiteral("Edit style for 'Starter' slide"));
        m->widget->setItem(m->slide(2));
        QCOMPARE(heading(), QStringLiteral("Edit style for 'second.png' slide"));
        m->widget->setAllSlides();
        QCOMPARE(heading(), QStringLiteral("Edit style for All slides"));
        m->widget->setItem(m->slide(1));
        QCOMPARE(heading(), QStringLiteral("Edit style for 'first.png' slide"));
        m->widget->setItem(nullptr);
        QCOMPARE(titles.size(), 0);
        QCOMPARE(label.text(), QStringLiteral("Edit style for 'first.png' slide"));
        // A style that all slides share is the title's when there is no other.
        ProjectFile alone(m->settings, ProjectFile::TitleSlide::Create);
        m->editor->setProject(&alone);
        m->widget->setAllSlides();
        QCOMPARE(heading(), QStringLiteral("Edit style for 'Starter' slide"));
        m->editor->setProject(m->project.get());
    }

    void positionsAreChosen_data()
    {
        QTest::addColumn<int>("position");
        const char *const names[] = {"btnLeftTop",    "btnCenterTop",    "btnRightTop",
                                     "btnLeftCenter", "btnCenterCenter", "btnRightCenter",
                                     "btnLeftBottom", "btnCenterBottom", "btnRightBottom"};
        for (int i = 0; i < 9; ++i)
            QTest::newRow(names[i]) << i;
    }
    void positionsAreChosen()
    {
        QFETCH(int, position);
        m->edit(m->slide(1));
        const auto &button = m->child<QPushButton>(QTest::currentDataTag());
        const QRect area = m->child<PositionPicker>("framePosition").rect();
        const QPoint centre = button.geometry().center();
        QCOMPARE(centre.x() * 3 / area.width(), position % 3);
        QCOMPARE(centre.y() * 3 / area.height(), position / 3);
        m->click(QTest::currentDataTag());
        m->click("butSaveText");
        QCOMPARE(m->slide(1)->caption().position, position);
    }

    void arrowKeysMoveThePosition()
    {
        m->edit(m->slide(1)); // bottom right
        auto &button = m->child<QPushButton>("btnRightBottom");
        button.setFocus();
        QTest::keyClick(&button, Qt::Key_Up);
        QCOMPARE(m->child<PositionPicker>("framePosition").position(), 5);
        QVERIFY(m->widget->isEdited());
    }

    void backgroundsAreShownAsTheyAre()
    {
        m->widget->setItem(m->slide(1));
        QVERIFY(!m->child<QWidget>("frameStarterBg").isVisible());
        m->widget->setItem(m->slide(0));
        QVERIFY(m->child<QWidget>("frameStarterBg").isVisible());
        for (int i = 0; i < kTitleBackgroundCount; ++i) {
            const QString name = QStringLiteral("butColor%1").arg(i + 1, 2, 10, QLatin1Char('0'));
            auto &button = m->child<QPushButton>(name.toLatin1().constData());
            QCOMPARE(button.size(), QSize(44, 28));
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

    void backgroundIsSavedWithTheText()
    {
        auto *title = qobject_cast<ProjectItemFirst *>(m->slide(0));
        m->edit(title);
        m->click("butColor01");
        QTest::keyClicks(&m->child<QTextEdit>("teProjectItemText"), QStringLiteral(" of the sea"));
        m->click("butSaveText");
        QCOMPARE(title->backgroundIndex(), 0);
        QCOMPARE(title->caption().text, QStringLiteral("My slideshow of the sea"));
        QVERIFY(title->isShown());
        QCOMPARE(m->stack().count(), 1);
        m->stack().undo();
        QCOMPARE(title->backgroundIndex(), 22);
        QCOMPARE(title->caption().text, QStringLiteral("My slideshow"));
    }

    void textColorFollowsTheBackground()
    {
        m->edit(m->slide(0));
        auto &color = m->child<ColorBox>("cbColor");
        m->click("butColor03");
        QCOMPARE(color.color(), titleCaptionColor(2));
        // A colour of one's own choice stays.
        m->choose(color, QStringLiteral("Black"));
        m->click("butColor05");
        QCOMPARE(color.color(), QColor(Qt::black));
    }

    void customColorIsAsked()
    {
        m->edit(m->slide(1));
        auto &box = m->child<ColorBox>("cbColor");
        const QColor wanted(12, 200, 34);
        for (const bool accept : {false, true}) {
            QTimer::singleShot(0, this, [&wanted, accept] {
                auto *dialog = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
                QVERIFY(dialog);
                dialog->setCurrentColor(wanted);
                accept ? dialog->accept() : dialog->reject();
            });
            m->choose(box, QStringLiteral("Brown")); // white to brown passes no dialog
            box.setFocus();
            QTest::keyClick(&box, Qt::Key_End);
            QTRY_VERIFY(!QApplication::activeModalWidget());
            if (!accept)
                QCOMPARE(box.currentText(), QStringLiteral("Brown"));
        }
        QCOMPARE(box.color(), wanted);
        QCOMPARE(box.currentText(), wanted.name());
    }

    void pictureFollowsTheControls()
    {
        m->edit(m->slide(1));
        auto &preview = m->child<CaptionPreview>("captionPreview");
        QTest::keyClicks(&m->child<QTextEdit>("teProjectItemText"), QStringLiteral("Seen at once"));
        m->click("btnCenterCenter");
        ProjectItemSimple expected(qobject_cast<ProjectItemSimple *>(m->slide(1))->fileName(), 3,
                                   1);
        CaptionStyle caption = m->slide(1)->caption();
        caption.text = QStringLiteral("Seen at once");
        caption.position = 4;
        expected.setCaption(caption);
        const FrameFormat format{preview.pictureRect().size(), true, true};
        const QImage frame =
            SlideRenderer::captionedFrame(SlideRenderer::bareFrame(expected, format), expected);
        QTRY_COMPARE(preview.picture(), frame);
        // The picture has the proportions of the video.
        m->editor->setResolution({640, 480});
        QTRY_COMPARE(preview.picture().width() * 3, preview.picture().height() * 4);
    }
};

QTEST_MAIN(TextEditWidgetTest)
#include "TextEditWidgetTest.moc"
