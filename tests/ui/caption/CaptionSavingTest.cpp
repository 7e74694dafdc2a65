// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/MessageDialog.h"
#include "chrome/Theme.h"
#include "ui/caption/CaptionEditor.h"
#include "ui/caption/PositionPicker.h"

#include <QCheckBox>
#include <QFontComboBox>
#include <QPushButton>
#include <QTextEdit>

using namespace velmora;

/// How the editing of a caption ends, and what it leaves in the project.
class CaptionSavingTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<CaptionEditor> m;

private slots:
    void initTestCase() { Theme::install(*qApp); }
    void init() { m = std::make_unique<CaptionEditor>(); }
    void cleanup() { m.reset(); }

    void savingIsOneStep()
    {
        QSignalSpy finished(m->widget.get(), &TextEditWidget::finished);
        const CaptionStyle before = m->slide(1)->caption();
        m->edit(m->slide(1));
        auto &text = m->child<QTextEdit>("teProjectItemText");
        QCOMPARE(QApplication::focusWidget(), &text);
        QTest::keyClicks(&text, QStringLiteral("Sylt"));
        m->choose(m->child<QComboBox>("cbColor"), QStringLiteral("Yellow"));
        m->choose(m->child<QComboBox>("cbBgColor"), QStringLiteral("None"));
        m->choose(m->child<QComboBox>("cbEffect"), QStringLiteral("Zoom In"));
        m->click("btnCenterTop");
        QCOMPARE(m->slide(1)->caption(), before);
        m->click("butSaveText");

        CaptionStyle expected = before;
        expected.text = QStringLiteral("Sylt");
        expected.textColor = QColor(0xff, 0xf2, 0x00);
        expected.backgroundColor = QColor();
        expected.effect = 19;
        expected.position = 1;
        expected.changed = true;
        QCOMPARE(m->slide(1)->caption(), expected);
        QCOMPARE(finished.size(), 1);
        QCOMPARE(m->stack().count(), 1);
        m->stack().undo();
        QCOMPARE(m->slide(1)->caption(), before);
    }

    void cancellingChangesNothing_data()
    {
        QTest::addColumn<QByteArray>("button");
        for (const char *button : {"butCancelText", "btnBackInTextEdit"})
            QTest::newRow(button) << QByteArray(button);
    }
    void cancellingChangesNothing()
    {
        QFETCH(QByteArray, button);

        const CaptionStyle before = m->slide(1)->caption();
        m->edit(m->slide(1));
        auto &fonts = m->child<QFontComboBox>("cbFont");
        QTest::keyClick(&fonts, Qt::Key_Down);
        m->click("btnLeftTop");
        QVERIFY(m->widget->isEdited());
        QSignalSpy finished(m->widget.get(), &TextEditWidget::finished);
        m->click(button.constData());
        QCOMPARE(finished.size(), 1);
        QCOMPARE(m->slide(1)->caption(), before);
        QCOMPARE(m->stack().count(), 0);
        m->edit(m->slide(1));
        QCOMPARE(m->child<PositionPicker>("framePosition").position(), before.position);
    }

    void escapeAsksOnlyAfterChanges()
    {
        QSignalSpy finished(m->widget.get(), &TextEditWidget::finished);
        auto &text = m->child<QTextEdit>("teProjectItemText");
        m->edit(m->slide(1));
        QTest::keyClick(&text, Qt::Key_Escape);
        QCOMPARE(finished.size(), 1);

        int asked = 0;
        for (const char *button : {"button1", "button0"}) { // keep, then discard
            if (!m->widget->item())
                m->widget->setItem(m->slide(1));
            // A closed dialog may leave no window active.
            QApplication::setActiveWindow(m->widget.get());
            QVERIFY(QTest::qWaitForWindowActive(m->widget.get()));
            QTest::keyClicks(&text, QStringLiteral("x"));
            QTimer::singleShot(0, this, [&asked, button] {
                QWidget *dialog = QApplication::activeModalWidget();
                QVERIFY(qobject_cast<MessageDialog *>(dialog));
                ++asked;
                QTest::mouseClick(dialog->findChild<QPushButton *>(QLatin1String(button)),
                                  Qt::LeftButton);
            });
            QTest::keyClick(&text, Qt::Key_Escape);
            QCOMPARE(m->widget->item() != nullptr, qstrcmp(button, "button1") == 0);
        }
        QCOMPARE(asked, 2);
        QCOMPARE(finished.size(), 2);
        QCOMPARE(m->stack().count(), 0);
    }

    void controlEnterSavesTheText()
    {
        m->edit(m->slide(2));
        auto &text = m->child<QTextEdit>("teProjectItemText");
        QTest::keyClicks(&text, QStringLiteral("one"));
        QTest::keyClick(&text, Qt::Key_Return);
        QTest::keyClicks(&text, QStringLiteral("two"));
        QTest::keyClick(&text, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(m->slide(2)->caption().text, QStringLiteral("one\ntwo"));
        QVERIFY(!m->widget->item());
    }

    void unknownValuesSurvive()
    {
        CaptionStyle strange = m->slide(1)->caption();
        strange.text = QString(QChar(0xa0)) + QStringLiteral("a\tb\r\nc");
        strange.fontFamily = QStringLiteral("No Such Font 12345");
        strange.textColor = QColor(1, 2, 3);
        strange.backgroundColor = QColor(4, 5, 6);
        strange.effect = 4711;
        strange.changed = true;
        m->slide(1)->setCaption(strange);
        m->edit(m->slide(1));
        QCOMPARE(m->child<QFontComboBox>("cbFont").currentText(), strange.fontFamily);
        m->click("butSaveText");
        QCOMPARE(m->slide(1)->caption(), strange);
        QCOMPARE(m->stack().count(), 0);
    }

    void styleGoesToAllSlides_data()
    {
        QTest::addColumn<bool>("titleToo");
        QTest::newRow("photos") << false;
        QTest::newRow("title too") << true;
    }
    void styleGoesToAllSlides()
    {
        QFETCH(bool, titleToo);
        CaptionStyle second = m->slide(2)->caption();
        second.text = QStringLiteral("Second");
        m->slide(2)->setCaption(second);
        m->widget->setAllSlides();
        QVERIFY(!m->child<QWidget>("teProjectItemText").isVisible());
        m->click("btnLeftTop");
        if (titleToo)
            QTest::mouseClick(&m->child<QCheckBox>("chkTitleToo"), Qt::LeftButton, {}, {8, 12});
        m->click("butSaveText");
        const char *texts[] = {"My slideshow", "", "Second"};
        for (int row = 0; row < 3; ++row) {
            QCOMPARE(m->slide(row)->caption().position, row > 0 || titleToo ? 0 : 4);
            QCOMPARE(m->slide(row)->caption().text, QLatin1String(texts[row]));
        }
        QCOMPARE(m->stack().count(), 1);
        m->stack().undo();
        QCOMPARE(m->slide(2)->caption(), second);
    }

    void removedSlideEndsEditing()
    {
        QSignalSpy finished(m->widget.get(), &TextEditWidget::finished);
        m->edit(m->slide(1));
        m->editor->removeSlides({m->slide(2)});
        QCOMPARE(finished.size(), 0);
        m->editor->removeSlides({m->slide(1)});
        QCOMPARE(finished.size(), 1);
        m->edit(m->slide(0));
        m->editor->setProject(nullptr);
        QCOMPARE(finished.size(), 2);
        QVERIFY(!m->widget->item());
    }
};

QTEST_MAIN(CaptionSavingTest)
#include "CaptionSavingTest.moc"
