// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/history/HistoryModel.h"
#include "helpers/MediaSamples.h"
#include "project/documents/Timeline.h"
#include "sharing/history/HistoryFixture.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace velmora;

namespace
{

QString names(const HistoryModel &model)
{
    QStringList all;
    for (int row = 0; row < model.rowCount(); ++row)
        all.append(model.index(row).data().toString());
    return all.join(QLatin1Char(' '));
}

bool isKnown(const HistoryModel &model)
{
    return model.rowCount() > 0 && model.entry(0).facts.known;
}

} // namespace

class HistoryModelTest : public QObject
{
    Q_OBJECT

private slots:
    void sorting_data()
    {
        QTest::addColumn<QVector<int>>("clicks"); // 0: date, 1: file name
        QTest::addColumn<QString>("order");
        QTest::newRow("at first the newest")
            << QVector<int>{} << QStringLiteral("c.mp4 B10.mp4 b9.mp4");
        QTest::newRow("date twice") << QVector<int>{0} << QStringLiteral("b9.mp4 B10.mp4 c.mp4");
        QTest::newRow("name") << QVector<int>{1} << QStringLiteral("b9.mp4 B10.mp4 c.mp4");
        QTest::newRow("name twice") << QVector<int>{1, 1} << QStringLiteral("c.mp4 B10.mp4 b9.mp4");
        QTest::newRow("name, then date")
            << QVector<int>{1, 0} << QStringLiteral("c.mp4 B10.mp4 b9.mp4");
    }

    void sorting()
    {
        QFETCH(QVector<int>, clicks);
        QFETCH(QString, order);
        HistoryFixture history;
        // The file times decide, not the order in the history.
        history.add("c.mp4", 10, QDate(2026, 3, 1));
        history.add("b9.mp4", 10, QDate(2026, 1, 1));
        history.add("B10.mp4", 10, QDate(2026, 2, 1));
        HistoryModel model(history.store, history.settings);
        const QAbstractItemModelTester tester(&model);
        model.reload();
        QTRY_VERIFY(isKnown(model));
        for (const int click : clicks)
            model.sortBy(click == 0 ? HistoryModel::Key::Date : HistoryModel::Key::FileName);
        QCOMPARE(names(model), order);
        model.reload();
        QCOMPARE(names(model), order);
    }

    void factsFollow()
    {
        HistoryFixture history;
        history.add("a.mp4", 5 * 1048576, QDate(2026, 5, 17));
        history.add("gone.mp4", -1, {});
        HistoryModel model(history.store, history.settings);
        model.reload();
        QVERIFY(!isKnown(model));
        QTRY_VERIFY(isKnown(model));
        const HistoryEntry entry = model.entry(model.rowOf(history.path("a.mp4")));
        QVERIFY(entry.facts.exists);
        QCOMPARE(entry.facts.size, 5 * 1048576);
        QCOMPARE(entry.facts.date.date(), QDate(2026, 5, 17));
        QVERIFY(!model.entry(model.rowOf(history.path("gone.mp4"))).facts.exists);
        // A video that goes later is noticed with the next reload.
        QVERIFY(QFile::remove(history.path("a.mp4")));
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        model.reload();
        QVERIFY(changed.wait());
        QVERIFY(!model.entry(model.rowOf(history.path("a.mp4"))).facts.exists);
    }

    void removedVideosKeepTheirPlace()
    {
        HistoryFixture history;
        history.add("first.mp4", 10, QDate(2026, 1, 1));
        history.add("gone.mp4", -1, {});
        history.add("last.mp4", 10, QDate(2026, 2, 1));
        HistoryModel model(history.store, history.settings);
        model.reload();
        QTRY_VERIFY(isKnown(model));
        QCOMPARE(names(model), QStringLiteral("last.mp4 gone.mp4 first.mp4"));
    }

    void durationComesFromTheVideo()
    {
        HistoryFixture history;
        const ProjectFile *project = history.add("tone.wav", -1, {});
        MediaSamples::Tone tone;
        tone.seconds = 3;
        QVERIFY(MediaSamples::makeTone(history.path("tone.wav"), tone));
        HistoryModel model(history.store, history.settings);
        model.reload();
        QTRY_VERIFY(isKnown(model));
        const qint64 planned =
            Timeline::ofProject(*project, history.settings.transitionTime).totalLength();
        QVERIFY(planned != 3000);
        QCOMPARE(model.entry(0).facts.duration, planned);
        model.probe(0);
        QTRY_COMPARE(model.entry(0).facts.duration, 3000);
    }

    void videoChangesAfterTheList_data()
    {
        QTest::addColumn<int>("size"); // Of the new video; below 0 when there is none.
        QTest::newRow("removed") << -1;
        QTest::newRow("replaced") << 20;
    }

    void videoChangesAfterTheList()
    {
        QFETCH(int, size);
        HistoryFixture history;
        const ProjectFile *project = history.add("a.mp4", 10, QDate(2026, 1, 1));
        history.add("unchanged.mp4", 10, QDate(2025, 1, 1));
        HistoryModel model(history.store, history.settings);
        model.reload();
        QTRY_VERIFY(isKnown(model));
        QVERIFY(QFile::remove(history.path("a.mp4")));
        if (size >= 0)
            HistoryFixture::write(history.path("a.mp4"), size, QDate(2026, 2, 1));
        QStringList changed;
        // The list asks for the duration of each row that changes.
        connect(&model, &QAbstractItemModel::dataChanged, this, [&](const QModelIndex &index) {
            changed.append(index.data().toString());
            model.probe(index.row());
        });
        model.probe(0);
        QTRY_COMPARE(changed, QStringList{QStringLiteral("a.mp4")});
        const HistoryEntry entry = model.entry(model.rowOf(project));
        QCOMPARE(entry.facts.exists, size >= 0);
        QCOMPARE(entry.facts.size, qMax(size, 0));
        // One reader reads one file after the other: what comes next was asked for last.
        model.probe(model.rowOf(history.path("unchanged.mp4")));
        QTRY_COMPARE(changed.size(), 2);
        QCOMPARE(changed.last(), QStringLiteral("unchanged.mp4"));
    }

    void sameFileTwice()
    {
        HistoryFixture history;
        const ProjectFile *old = history.add("a.mp4", 10, QDate(2026, 1, 1));
        const ProjectFile *fresh = history.add("a.mp4", 10, QDate(2026, 1, 1));
        HistoryModel model(history.store, history.settings);
        model.reload();
        QCOMPARE(model.entry(model.rowOf(history.path("a.mp4"))).project, fresh);
        QVERIFY(model.rowOf(old) != model.rowOf(fresh));
        QCOMPARE(model.rowOf(QStringLiteral("/nowhere")), -1);
    }
};

QTEST_GUILESS_MAIN(HistoryModelTest)
#include "HistoryModelTest.moc"
