// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/QTableViewEx.h"
#include "chrome/RowsMimeData.h"
#include "chrome/Theme.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>
#include <QUrl>

#include <functional>

using namespace velmora;

namespace
{

constexpr int kRows = 5;
constexpr int kRowHeight = 40;
constexpr Qt::DropActions kActions(Qt::CopyAction | Qt::MoveAction);
const QUrl kAddress(QStringLiteral("https://a.example/b.png"));

struct DraggedFile : QMimeData {
    explicit DraggedFile(const char *path)
    {
        setUrls({QUrl::fromLocalFile(QString::fromLatin1(path))});
    }
};

} // namespace

Q_DECLARE_METATYPE(std::function<void(QStandardItemModel &)>)

class QTableViewExTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { Theme::install(*qApp); }

    void init()
    {
        m_model = std::make_unique<QStandardItemModel>(kRows, 2);
        m_table = std::make_unique<QTableViewEx>();
        m_table->setModel(m_model.get());
        m_table->verticalHeader()->setDefaultSectionSize(kRowHeight);
        m_table->resize(400, 400);
        m_table->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_table.get()));
    }

    void filesAreReportedAfterTheirRow_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("y");
        QTest::addColumn<int>("newRow");
        QTest::newRow("upper half of the first row") << kRows << 5 << 0;
        QTest::newRow("lower half of the first row") << kRows << 35 << 0;
        QTest::newRow("upper half of the third row") << kRows << 2 * kRowHeight + 5 << 1;
        QTest::newRow("lower half of the third row") << kRows << 2 * kRowHeight + 35 << 2;
        QTest::newRow("lower half of the last row") << kRows << kRows * kRowHeight - 5 << -1;
        QTest::newRow("below the rows") << kRows << kRows * kRowHeight + 30 << -1;
        QTest::newRow("no rows") << 0 << 100 << -1;
    }

    void filesAreReportedAfterTheirRow()
    {
        QFETCH(int, rows);
        QFETCH(int, y);
        QFETCH(int, newRow);
        m_model->setRowCount(rows);
        QSignalSpy dropped(m_table.get(), &QTableViewEx::filesDropped);
        QSignalSpy moved(m_table.get(), &QTableViewEx::rowsMoved);
        QSignalSpy ended(m_table.get(), &QTableViewEx::dropEnd);
        DraggedFile data("/photos/a b%20.jpg");
        QVERIFY(drop(data, y));
        const QList<QVariantList> expected = {
            {QStringList(QStringLiteral("/photos/a b%20.jpg")), newRow}};
        QCOMPARE(dropped, expected);
        QCOMPARE(moved.size(), 0);
        QCOMPARE(ended.size(), 1);
    }

    void folderAndOrderAreKept()
    {
        const QStringList files = {QStringLiteral("/z.png"), QStringLiteral("/folder"),
                                   QString::fromUtf8("/\xc3\xa4.png")};
        QList<QUrl> urls = {kAddress};
        for (const QString &file : files)
            urls.append(QUrl::fromLocalFile(file));
        QMimeData data;
        data.setUrls(urls);
        QSignalSpy dropped(m_table.get(), &QTableViewEx::filesDropped);
        QVERIFY(drop(data, 60));
        QCOMPARE(dropped.first().at(0).toStringList(), files);
    }

    void foreignDataIsRefused()
    {
        QMimeData address;
        address.setUrls({kAddress});
        QVERIFY(!drop(address, 60));
        QMimeData text;
        text.setText(QStringLiteral("/photos/a.jpg"));
        QVERIFY(!drop(text, 60));
        QTableViewEx other;
        RowsMimeData rows(&other, {1});
        QVERIFY(!drop(rows, 60));
    }

    void rowsAreMoved_data()
    {
        QTest::addColumn<QVector<int>>("rows");
        QTest::addColumn<int>("y");
        QTest::addColumn<int>("before"); // -2: no move
        QTest::newRow("one down") << QVector<int>{0} << 2 * kRowHeight + 30 << 3;
        QTest::newRow("one to the end") << QVector<int>{1} << 390 << kRows;
        QTest::newRow("one to the top") << QVector<int>{3} << 2 << 0;
        QTest::newRow("several") << QVector<int>{1, 3} << kRows * kRowHeight - 2 << kRows;
        QTest::newRow("gathered around the middle")
            << QVector<int>{1, 3} << 2 * kRowHeight + 2 << 2;
        QTest::newRow("onto itself") << QVector<int>{2} << 2 * kRowHeight + 2 << -2;
        QTest::newRow("directly after itself") << QVector<int>{2} << 2 * kRowHeight + 38 << -2;
        QTest::newRow("block onto itself") << QVector<int>{1, 2} << 2 * kRowHeight + 2 << -2;
    }

    void rowsAreMoved()
    {
        QFETCH(QVector<int>, rows);
        QFETCH(int, y);
        QFETCH(int, before);
        QSignalSpy moved(m_table.get(), &QTableViewEx::rowsMoved);
        QSignalSpy ended(m_table.get(), &QTableViewEx::dropEnd);
        RowsMimeData data(m_table.get(), rows);
        QVERIFY(drop(data, y));
        QCOMPARE(ended.size(), 1);
        QCOMPARE(m_model->rowCount(), kRows);
        QCOMPARE(moved.size(), before == -2 ? 0 : 1);
        if (before == -2)
            return;
        QCOMPARE(moved.first().at(0).value<QVector<int>>(), rows);
        QCOMPARE(moved.first().at(1).toInt(), before);
    }

    void changedRowsAreNotMoved_data()
    {
        QTest::addColumn<std::function<void(QStandardItemModel &)>>("change");
        const auto row = [](const char *name,
                            const std::function<void(QStandardItemModel &)> &change) {
            QTest::newRow(name) << change;
        };
        row("came", [](QStandardItemModel &model) { model.insertRow(0); });
        row("went", [](QStandardItemModel &model) { model.removeRow(0); });
        row("sorted", [](QStandardItemModel &model) { model.sort(0); });
        row("all anew", [](QStandardItemModel &model) {
            model.clear();
            model.setRowCount(kRows);
            model.setColumnCount(2);
        });
    }
    void changedRowsAreNotMoved()
    {
        QFETCH(std::function<void(QStandardItemModel &)>, change);
        QSignalSpy moved(m_table.get(), &QTableViewEx::rowsMoved);
        RowsMimeData data(m_table.get(), {0});
        QVERIFY(drag(data, 2 * kRowHeight + 30));
        change(*m_model);
        QVERIFY(!drop(data, 2 * kRowHeight + 30));
        QCOMPARE(moved.size(), 0);
    }

    void fixedRowsStay()
    {
        m_table->setFixedRows(1);
        m_table->selectAll();
        QCOMPARE(m_table->movableSelection(), QVector<int>({1, 2, 3, 4}));
        QSignalSpy moved(m_table.get(), &QTableViewEx::rowsMoved);
        RowsMimeData data(m_table.get(), {3});
        QVERIFY(drop(data, 2));
        QCOMPARE(moved.first().at(1).toInt(), 1);
    }

    void lineFollowsTheDragUntilItLeaves()
    {
        QSignalSpy ended(m_table.get(), &QTableViewEx::dropEnd);
        const QImage before = picture();
        DraggedFile data("/a.png");
        QVERIFY(drag(data, 2 * kRowHeight + 30));
        QCOMPARE(picture().pixel(200, 3 * kRowHeight), Theme::Accent);
        QVERIFY(picture().pixel(200, 2 * kRowHeight) != Theme::Accent);
        QDragLeaveEvent leave;
        QApplication::sendEvent(m_table->viewport(), &leave);
        QCOMPARE(ended.size(), 1);
        QCOMPARE(picture(), before);
    }

    void emptyStateIsPainted()
    {
        m_model->removeRows(0, kRows);
        const QImage bare = picture();
        QPixmap pixmap(64, 64);
        pixmap.fill(Qt::red);
        m_table->setEmptyState(pixmap, QStringLiteral("Drop photos here"));
        const QImage painted = picture();
        QVERIFY(painted != bare);
        const QPoint inPixmap(painted.width() / 2, painted.height() / 2 - 20);
        QCOMPARE(painted.pixelColor(inPixmap), QColor(Qt::red));
        m_model->appendRow(new QStandardItem);
        QVERIFY(picture().pixelColor(inPixmap) != QColor(Qt::red));
    }

    void selectionIsSorted()
    {
        for (const int row : {4, 0, 2})
            m_table->selectionModel()->select(
                m_model->index(row, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
        QCOMPARE(m_table->movableSelection(), QVector<int>({0, 2, 4}));
    }

private:
    /// Enter and move of @p data at height @p y, as the window system sends them.
    bool drag(QMimeData &data, int y)
    {
        QWidget *viewport = m_table->viewport();
        QDragEnterEvent enter({50, y}, kActions, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &enter);
        if (!enter.isAccepted())
            return false;
        QDragMoveEvent move({50, y}, kActions, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &move);
        return move.isAccepted();
    }

    /// The same, and a drop.
    bool drop(QMimeData &data, int y)
    {
        if (!drag(data, y))
            return false;
        QDropEvent event(QPointF(50, y), kActions, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_table->viewport(), &event);
        return event.isAccepted();
    }

    QImage picture() const { return m_table->viewport()->grab().toImage(); }

    std::unique_ptr<QTableViewEx> m_table;
    std::unique_ptr<QStandardItemModel> m_model;
};

QTEST_MAIN(QTableViewExTest)
#include "QTableViewExTest.moc"
