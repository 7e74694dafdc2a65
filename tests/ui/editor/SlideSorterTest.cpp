// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/Words.h"
#include "project/images/Pictures.h"
#include "ui/editor/BusyNote.h"
#include "ui/editor/EditorPage.h"

#include <QAction>
#include <QUndoStack>

using namespace velmora;

/// Sorting by the page's buttons and menus.
class SlideSorterTest : public QObject
{
    Q_OBJECT

private:
    void add(const QStringList &names)
    {
        QStringList paths;
        for (const QString &name : names)
            paths.append(m->makePhoto(name));
        m->page->editor().addPhotos(paths, -1);
        QCoreApplication::processEvents();
    }
    QString order() const { return m->names().mid(1).join(QLatin1Char(' ')); }
    void changeDate(const char *name, int day)
    {
        QFile file(m->path(name));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime({2020, 5, day}, {12, 0}),
                                 QFileDevice::FileModificationTime));
    }

    std::unique_ptr<EditorPage> m;

private slots:
    void init() { m = std::make_unique<EditorPage>(); }
    void cleanup() { m.reset(); }

    void buttonSortsNaturallyAndTurnsAround()
    {
        add(words("img10.png IMG2.png img1.png"));
        const auto arrow = [this] {
            return m->child<QAbstractButton>("btnSort")->icon().pixmap(24, 24).toImage();
        };
        const QImage down = arrow();
        m->click("btnSort");
        QCOMPARE(order(), QStringLiteral("img1.png IMG2.png img10.png"));
        QVERIFY(arrow() != down);
        m->click("btnSort");
        QCOMPARE(order(), QStringLiteral("img10.png IMG2.png img1.png"));
        QCOMPARE(arrow(), down);
        m->click("btnUndo");
        m->click("btnUndo");
        QCOMPARE(order(), QStringLiteral("img10.png IMG2.png img1.png"));
        QCOMPARE(m->items().first()->title(), QStringLiteral("Starter"));
    }

    void otherOrderIsSortedUpwards_data()
    {
        QTest::addColumn<QString>("button");
        QTest::newRow("moved") << "btnDown";
        QTest::newRow("undone") << "btnUndo";
        QTest::newRow("deleted") << "btnDelete";
    }
    void otherOrderIsSortedUpwards()
    {
        QFETCH(QString, button);
        add(words("b.png c.png a.png"));
        m->click("btnSort");
        m->select({1});
        m->click(button.toLatin1());
        m->click("btnSort");
        QVERIFY2(order().endsWith(QStringLiteral("b.png c.png")), qPrintable(order()));
    }

    void datesAreReadInTheBackground()
    {
        add(words("b.png a.png c.png"));
        changeDate("a.png", 3);
        changeDate("b.png", 1);
        changeDate("c.png", 2);
        m->child<QAction>("actSortByDate")->trigger();
        QCOMPARE(order(), QStringLiteral("b.png a.png c.png"));
        QTRY_COMPARE(order(), QStringLiteral("b.png c.png a.png"));
        m->child<QAction>("actSortByDate")->trigger();
        QTRY_COMPARE(order(), QStringLiteral("a.png c.png b.png"));
    }

    void dateTakenGoesBeforeDateOfFile()
    {
        add(words("a.png b.png"));
        Pictures::setExif(m->path("b.png"), "Exif.Photo.DateTimeOriginal", "2010:01:01 10:00:00");
        changeDate("a.png", 1);
        changeDate("b.png", 2);
        m->child<QAction>("actSortByDate")->trigger();
        QTRY_COMPARE(order(), QStringLiteral("b.png a.png"));
    }

    void jobsAreCancelledOneByOne_data()
    {
        QTest::addColumn<QString>("result");
        QTest::newRow("importNote") << "b.png a.png";
        QTest::newRow("sortNote") << "a.png b.png c.png";
    }
    void jobsAreCancelledOneByOne()
    {
        add(words("a.png b.png"));
        changeDate("a.png", 2);
        changeDate("b.png", 1);
        m->child<QAction>("actSortByDate")->trigger();
        m->page->onFilesDropped({m->makePhoto(QStringLiteral("c.png"))}, -1);
        emit m->child<BusyNote>(QTest::currentDataTag())->cancelClicked();
        const auto *create = m->child<QWidget>("btnCreate"); // waits for both
        QTRY_VERIFY(create->isEnabled());
        QTEST(order(), "result");
    }

    void shuffleKeepsAllPhotos()
    {
        QStringList names;
        for (int i = 0; i < 20; ++i)
            names.append(QStringLiteral("%1.png").arg(i));
        add(names);
        const QString before = order();
        m->click("btnShufle");
        QVERIFY(order() != before);
        const QStringList after = m->names().mid(1);
        QCOMPARE(QSet<QString>(after.begin(), after.end()),
                 QSet<QString>(names.begin(), names.end()));
        QCOMPARE(m->items().first()->title(), QStringLiteral("Starter"));
        m->click("btnUndo");
        QCOMPARE(order(), before);
    }
};

QTEST_MAIN(SlideSorterTest)
#include "SlideSorterTest.moc"
