// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/RowsMimeData.h"
#include "chrome/Theme.h"
#include "helpers/Drop.h"
#include "ui/editor/EditorPage.h"
#include "ui/editor/SlideNumberDelegate.h"
#include "ui/preview/VideoPlayer.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QUndoStack>

using namespace velmora;

/// Mouse, keys and drags on the rows of the slide table.
class SlideTableTest : public QObject
{
    Q_OBJECT

private:
    QRect cell(int row, int column) const
    {
        return m->table().visualRect(m->table().model()->index(row, column));
    }
    void clickAt(const QPoint &position) const
    {
        QTest::mouseMove(m->table().viewport(), position);
        QTest::mouseClick(m->table().viewport(), Qt::LeftButton, Qt::NoModifier, position);
    }
    /// The painted buttons from the right edge of the last column.
    QPoint button(int row, int place) const
    {
        const QRect area = cell(row, SlideTableModel::TextColumn);
        return {area.right() - 24 - 32 * place, area.center().y()};
    }
    QComboBox *openValues() const
    {
        return m->table().viewport()->findChild<QComboBox *>(QStringLiteral("cellValues"));
    }

    void loseSecondPhoto() const
    {
        QFile::remove(m->path("b.png"));
        m->table().slides()->checkFiles();
        QTRY_VERIFY(m->table().model()->index(2, 0).data(SlideTableModel::MissingRole).toBool());
    }

    std::unique_ptr<EditorPage> m;

private slots:
    void init()
    {
        m = std::make_unique<EditorPage>();
        m->addPhotos(QStringLiteral("abcde"));
        QCoreApplication::processEvents();
    }
    void cleanup() { m.reset(); }

    void currentRowIsSeen()
    {
        m->select({2});
        m->table().setFocus();
        const auto photo = [this] {
            return m->table().model()->index(4, 0).data(Qt::DecorationRole).value<QImage>();
        };
        QTRY_VERIFY(!photo().isNull());
        const auto picture = [this] { return m->table().viewport()->grab(cell(4, 0)).toImage(); };
        const QImage before = picture();
        for (int i = 0; i < 2; ++i)
            QTest::keyClick(&m->table(), Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(m->table().currentIndex(), m->table().model()->index(4, 0));
        QVERIFY(!m->table().selectionModel()->isRowSelected(4, {}));
        const QImage current = picture();
        QVERIFY(current != before);
        QTest::keyClick(&m->table(), Qt::Key_Up, Qt::ControlModifier);
        QCOMPARE(picture(), before);
    }

    void filesAreDroppedBetweenRows()
    {
        QVERIFY(dropFilesOn(
            m->table().viewport(),
            {m->makePhoto(QStringLiteral("x.png")), m->makePhoto(QStringLiteral("y.png"))},
            cell(2, 0).center() + QPoint(0, 20)));
        QTRY_COMPARE(m->letters(), QStringLiteral("abxycde"));
    }

    void rowsAreReorderedByDragging_data()
    {
        QTest::addColumn<QVector<int>>("rows");
        QTest::addColumn<int>("before");
        QTest::addColumn<QString>("order");
        QTest::newRow("one down") << QVector<int>{1} << 4 << "bcade";
        QTest::newRow("two up") << QVector<int>{3, 5} << 1 << "ceabd";
        QTest::newRow("never above the title slide") << QVector<int>{2} << 0 << "bacde";
    }
    void rowsAreReorderedByDragging()
    {
        QFETCH(QVector<int>, rows);
        QFETCH(int, before);
        const ProjectEditor::Slides slides = m->items();
        m->select(rows);
        RowsMimeData data(&m->table(), rows);
        QVERIFY(dropOn(m->table().viewport(), data, cell(before, 0).topLeft() + QPoint(60, 4)));
        QTEST(m->letters(), "order");
        QCOMPARE(m->table().selectionModel()->selectedRows().size(), rows.size());
        for (const int row : rows)
            QVERIFY(m->table().selectionModel()->isRowSelected(m->items().indexOf(slides.at(row)),
                                                               QModelIndex()));
        m->page->editor().undoStack()->undo();
        QCOMPARE(m->letters(), QStringLiteral("abcde"));
    }

    void valueIsChosenForTheSelection_data()
    {
        QTest::addColumn<QVector<int>>("selected");
        QTest::addColumn<QVector<int>>("changed");
        QTest::newRow("within the selection") << QVector<int>{2, 4} << QVector<int>{2, 4};
        QTest::newRow("outside of it") << QVector<int>{4, 5} << QVector<int>{2};
    }
    void valueIsChosenForTheSelection()
    {
        QFETCH(QVector<int>, selected);
        QFETCH(QVector<int>, changed);
        m->select(selected);
        clickAt(cell(2, SlideTableModel::TimeColumn).center());
        QTRY_VERIFY(openValues() && openValues()->view()->isVisible());
        QComboBox *box = openValues();
        QCOMPARE(box->currentText(), QStringLiteral("1 sec"));
        const QModelIndex ten = box->model()->index(box->findData(10), 0);
        box->view()->setCurrentIndex(ten);
        QTest::keyClick(box->view(), Qt::Key_Return);
        for (int row = 0; row < m->items().size(); ++row)
            QCOMPARE(m->items().at(row)->time(), changed.contains(row) ? 10 : 1);
        QCOMPARE(m->page->editor().undoStack()->undoText(), QStringLiteral("Change time"));
        QTRY_VERIFY(!openValues());
    }

    void listClosesWithoutAChoice()
    {
        const int steps = m->page->editor().undoStack()->count();
        m->select({1});
        m->table().openValues(SlideTableModel::TransitionColumn);
        QTRY_VERIFY(openValues() && openValues()->view()->isVisible());
        QCOMPARE(openValues()->count(), 29);
        QCOMPARE(openValues()->itemText(2), QStringLiteral("Cross fade"));
        QTest::keyClick(openValues()->view(), Qt::Key_Escape);
        QTRY_VERIFY(!openValues());
        QCOMPARE(m->page->editor().undoStack()->count(), steps);
    }

    void titleSlideHasNoTransition()
    {
        m->select({0});
        m->table().openValues(SlideTableModel::TransitionColumn);
        clickAt(cell(0, SlideTableModel::TransitionColumn).center());
        QCoreApplication::processEvents();
        QVERIFY(!openValues());
    }

    void rowButtonsAreClicked()
    {
        QSignalSpy clicked(&m->table(), &SlideTable::buttonClicked);
        m->select({1, 3});
        clickAt(button(3, 0));
        QCOMPARE(clicked.size(), 1);
        QCOMPARE(clicked.first().at(0).value<SlideButton>(), SlideButton::Caption);
        QCOMPARE(clicked.first().at(1).toInt(), 3);
        QCOMPARE(m->table().selectionModel()->selectedRows().size(), 2);
        clickAt(button(2, 1));
        QCOMPARE(m->letters(), QStringLiteral("acde"));
        clickAt(button(0, 1));
        QVERIFY(!m->items().first()->isShown());
        clickAt(button(0, 1));
        QVERIFY(m->items().first()->isShown());
    }

    void pressThatLeavesTheButtonDoesNothing()
    {
        QSignalSpy clicked(&m->table(), &SlideTable::buttonClicked);
        QTest::mouseMove(m->table().viewport(), button(2, 1));
        QTest::mousePress(m->table().viewport(), Qt::LeftButton, Qt::NoModifier, button(2, 1));
        QTest::mouseRelease(m->table().viewport(), Qt::LeftButton, Qt::NoModifier, button(4, 1));
        QCOMPARE(clicked.size(), 0);
        QCOMPARE(m->letters(), QStringLiteral("abcde"));
    }

    void deletingMovesTheSelectionOn()
    {
        m->select({2});
        QTest::keyClick(&m->table(), Qt::Key_Delete);
        QCOMPARE(m->table().currentIndex().row(), 2);
        QTest::keyClick(&m->table(), Qt::Key_Delete);
        QCOMPARE(m->letters(), QStringLiteral("ade"));
    }

    void keysAskForCaptionAndPreview()
    {
        QSignalSpy clicked(&m->table(), &SlideTable::buttonClicked);
        QSignalSpy preview(&m->table(), &SlideTable::previewRequested);
        m->select({2});
        m->table().setFocus();
        QTest::keyClick(&m->table(), Qt::Key_Return);
        QCOMPARE(clicked.size(), 1);
        QTest::keyClick(&m->table(), Qt::Key_Space);
        QCOMPARE(preview.size(), 1);
    }

    void rowsShowPhotoAndMissingState()
    {
        loseSecondPhoto();
        const QRect photo = cell(1, 0);
        QTRY_COMPARE(m->table().viewport()->grab(photo).toImage().pixelColor(
                         SlideNumberDelegate::width() / 2 + 10, photo.height() / 2),
                     QColor(Qt::darkGreen));
        const QImage text = m->table().viewport()->grab(cell(2, 3)).toImage();
        bool red = false;
        for (int i = 0; i < text.width() * text.height() && !red; ++i)
            red = text.pixelColor(i % text.width(), i / text.width()) == QColor(Theme::Danger);
        QVERIFY(red);
    }

    void previewFollowsTheFile()
    {
        m->select({2});
        const auto color = [this] {
            const QImage &picture = m->child<VideoPlayer>("player")->picture();
            return picture.isNull() ? QColor()
                                    : picture.pixelColor(picture.width() / 2, picture.height() / 4);
        };
        QTRY_COMPARE(color(), QColor(Qt::darkGreen));
        loseSecondPhoto();
        QTRY_COMPARE(color(), QColor(Qt::black)); // a note, farther below
        m->makePhoto(QStringLiteral("b.png"), Qt::red);
        m->table().slides()->checkFiles();
        QTRY_COMPARE(color(), QColor(Qt::red));
    }

    void relocateButtonHoldsItsText()
    {
        loseSecondPhoto();
        // The widgets of the program have larger letters than the application.
        QFont font = m->table().font();
        font.setPixelSize(24);
        m->table().setFont(font);
        const QRect area = cell(2, SlideTableModel::TextColumn);
        const int text = m->table().fontMetrics().horizontalAdvance(QStringLiteral("Relocate..."));
        const QPoint end(area.left() + 8 + text, area.center().y() + 12);
        QTest::mouseMove(m->table().viewport(), end);
        QCOMPARE(m->table().viewport()->cursor().shape(), Qt::PointingHandCursor);
    }
};

QTEST_MAIN(SlideTableTest)
#include "SlideTableTest.moc"
