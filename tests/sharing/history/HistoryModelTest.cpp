// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/history/HistoryModel.h"
#include "helpers/MediaSamples.h"
#include "helpers/Words.h"
#include "project/documents/Timeline.h"
#include "sharing/history/HistoryFixture.h"
#include "sharing/history/VideoProber.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace velmora;

class HistoryModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_history = std::make_unique<HistoryFixture>(); }
    void cleanup() { m_model.reset(); }

    void sorting_data()
    {
        QTest::addColumn<QStringList>("clicks");
        QTest::addColumn<QStringList>("order");
        const QStringList up = words("b9.mp4 B10.mp4 c.mp4");
        const QStringList down = words("c.mp4 B10.mp4 b9.mp4");
        QTest::newRow("at first the newest") << QStringList() << down;
        QTest::newRow("date twice") << words("date") << up;
        QTest::newRow("name") << words("name") << up;
        QTest::newRow("name twice") << words("name name") << down;
        QTest::newRow("name, then date") << words("name date") << down;
    }

    void sorting()
    {
        QFETCH(QStringList, clicks);
        QFETCH(QStringList, order);
        // The file times decide, not the order in the history.
        m_history->add("c.mp4", 10, QDate(2026, 3, 1));
        m_history->add("b9.mp4", 10, QDate(2026, 1, 1));
        m_history->add("B10.mp4", 10, QDate(2026, 2, 1));
        load();
        const QAbstractItemModelTester tester(m_model.get());
        for (const QString &click : clicks)
            m_model->sortBy(click == QLatin1String("date") ? HistoryModel::Key::Date
                                                           : HistoryModel::Key::FileName);
        QCOMPARE(names(), order);
        m_model->reload();
        QCOMPARE(names(), order);
    }

    void factsFollow()
    {
        m_history->add("first.mp4", 5 * 1048576, QDate(2026, 1, 17));
        m_history->add("gone.mp4", -1, {});
        m_history->add("last.mp4", 10, QDate(2026, 2, 1));
        load();
        QCOMPARE(names(), words("last.mp4 gone.mp4 first.mp4")); // Removed ones keep their place.
        const HistoryEntry entry = entryOf("first.mp4");
        QVERIFY(entry.facts.exists);
        QCOMPARE(entry.facts.size, 5 * 1048576);
        QCOMPARE(entry.facts.date.date(), QDate(2026, 1, 17));
        QVERIFY(!entryOf("gone.mp4").facts.exists);
        // A video that goes later is noticed with the next reload.
        QVERIFY(QFile::remove(m_history->path("first.mp4")));
        QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
        m_model->reload();
        QTRY_VERIFY(!changed.isEmpty());
        QVERIFY(!entryOf("first.mp4").facts.exists);
    }

    void laterLookReplacesTheFirst()
    {
        VideoProber prober;
        QStringList seen;
        connect(&prober, &VideoProber::looked, this,
                [&seen](const QHash<QString, VideoFacts> &facts) { seen += facts.keys(); });
        prober.look({QStringLiteral("first")});
        prober.look({QStringLiteral("second")});
        QTRY_VERIFY(seen.contains(QStringLiteral("second")));
        QCOMPARE(seen, QStringList{QStringLiteral("second")});
    }

    void durationComesFromTheVideo()
    {
        const ProjectFile *project = m_history->add("tone.wav", -1, {});
        MediaSamples::Tone tone;
        tone.seconds = 3;
        QVERIFY(MediaSamples::makeTone(m_history->path("tone.wav"), tone));
        load();
        const qint64 planned =
            Timeline::ofProject(*project, m_history->settings.transitionTime).totalLength();
        QVERIFY(planned != 3000);
        QCOMPARE(m_model->entry(0).facts.duration, planned);
        m_model->probe(0);
        QTRY_COMPARE(m_model->entry(0).facts.duration, 3000);
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
        const ProjectFile *project = m_history->add("a.mp4", 10, QDate(2026, 1, 1));
        m_history->add("unchanged.mp4", 10, QDate(2025, 1, 1));
        load();
        QVERIFY(QFile::remove(m_history->path("a.mp4")));
        if (size >= 0)
            HistoryFixture::write(m_history->path("a.mp4"), size, QDate(2026, 2, 1));
        QStringList changed;
        // The list asks for the duration of each row that changes.
        connect(m_model.get(), &QAbstractItemModel::dataChanged, this,
                [&](const QModelIndex &index) {
                    changed.append(index.data().toString());
                    m_model->probe(index.row());
                });
        m_model->probe(0);
        QTRY_COMPARE(changed, words("a.mp4"));
        const HistoryEntry entry = m_model->entry(m_model->rowOf(project));
        QCOMPARE(entry.facts.exists, size >= 0);
        QCOMPARE(entry.facts.size, qMax(size, 0));
        // One reader reads one file after the other: what comes next was asked for last.
        m_model->probe(m_model->rowOf(m_history->path("unchanged.mp4")));
        QTRY_COMPARE(changed, words("a.mp4 unchanged.mp4"));
    }

    void sameFileTwice()
    {
        const ProjectFile *old = m_history->add("a.mp4", 10, QDate(2026, 1, 1));
        const ProjectFile *fresh = m_history->add("a.mp4", 10, QDate(2026, 1, 1));
        load();
        QCOMPARE(entryOf("a.mp4").project, fresh);
        QVERIFY(m_model->rowOf(old) != m_model->rowOf(fresh));
        QCOMPARE(m_model->rowOf(QStringLiteral("/nowhere")), -1);
    }

private:
    /// Waits for the facts too.
    void load()
    {
        m_model = std::make_unique<HistoryModel>(m_history->store, m_history->settings);
        m_model->reload();
        QVERIFY(!m_model->entry(0).facts.known);
        QTRY_VERIFY(m_model->entry(0).facts.known);
    }
    QStringList names() const
    {
        QStringList all;
        for (int row = 0; row < m_model->rowCount(); ++row)
            all.append(m_model->index(row).data().toString());
        return all;
    }
    HistoryEntry entryOf(const char *name) const
    {
        return m_model->entry(m_model->rowOf(m_history->path(name)));
    }

    std::unique_ptr<HistoryFixture> m_history;
    std::unique_ptr<HistoryModel> m_model;
};

QTEST_GUILESS_MAIN(HistoryModelTest)
#include "HistoryModelTest.moc"
