// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/CacheSweeper.h"
#include "helpers/DeadLock.h"
#include "helpers/Files.h"

#include "generator/pipeline/RenderCache.h"

#include <QtTest>

using namespace velmora;

class CacheSweeperTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_cache;

    QString path(const QString &name) const { return m_cache->filePath(name); }

    /// What a render leaves that was killed: its lock names a process that cannot exist.
    QString makeDead(const QString &name) const
    {
        const QString folder = path(name);
        QDir().mkpath(folder + QStringLiteral("/images"));
        writeFile(folder + QStringLiteral("/images/img_i0_00001.jpg"), "x");
        writeFile(folder + QLatin1Char('/') + CacheSweeper::kLockFile, deadLock());
        return folder;
    }

private slots:
    void init() { m_cache = std::make_unique<QTemporaryDir>(); }

    void removesTheCachesOfDeadRendersOnly()
    {
        const RenderCache live(m_cache->path());
        QVERIFY2(live.isValid(), qPrintable(live.errorText()));
        const QString dead = makeDead(QStringLiteral("render-dead01"));
        QDir().mkpath(path(QStringLiteral("photos")));
        QDir().mkpath(path(QStringLiteral("render-young1"))); // not locked yet
        QCOMPARE(CacheSweeper::sweep(m_cache->path()), 1);
        QVERIFY(!QFileInfo::exists(dead));
        QVERIFY(QFileInfo::exists(live.path()));
        QVERIFY(QFileInfo::exists(path(QStringLiteral("photos"))));
        QVERIFY(QFileInfo::exists(path(QStringLiteral("render-young1"))));
    }

    void removesTheUnfinishedVideoOfADeadRender_data()
    {
        QTest::addColumn<QString>("noted");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("removed");
        const auto row = [](const char *what, const char *noted, const char *name, bool removed) {
            QTest::newRow(what) << noted << QString::fromLatin1(name) << removed;
        };
        const char *video = ".holiday.part-abc123.mp4";
        row("complete", video, video, true);
        row("being multiplexed", video, ".holiday.part-abc123.part.mp4", true);
        row("no unfinished video", "holiday.mp4", "holiday.mp4", false);
    }
    void removesTheUnfinishedVideoOfADeadRender()
    {
        QFETCH(QString, noted);
        QFETCH(QString, name);
        QFETCH(bool, removed);
        QVERIFY(writeFile(path(name), "half"));
        const QString dead = makeDead(QStringLiteral("render-dead01"));
        QVERIFY(
            writeFile(dead + QLatin1Char('/') + CacheSweeper::kOutputNote, path(noted).toUtf8()));
        CacheSweeper::sweep(m_cache->path());
        QCOMPARE(QFileInfo::exists(path(name)), !removed);
        QVERIFY(!QFileInfo::exists(dead));
    }

    void keepsTheNoteOfAVideoThatCannotBeRemoved()
    {
        const QString video = path(QStringLiteral(".holiday.part-abc123.mp4"));
        QVERIFY(QDir().mkpath(video)); // in place of a file that is open
        const QString note = makeDead(QStringLiteral("render-dead01")) + QLatin1Char('/') +
                             CacheSweeper::kOutputNote;
        QVERIFY(writeFile(note, video.toUtf8()));
        QCOMPARE(CacheSweeper::sweep(m_cache->path()), 0);
        QVERIFY(QFileInfo::exists(note));
    }

    void removesTheLocksOfDeadRendersOnly()
    {
        QLockFile live(path(QStringLiteral("live.lock")));
        QVERIFY(live.tryLock(0));
        QVERIFY(writeFile(path(QStringLiteral("dead.lock")), deadLock()));
        CacheSweeper::sweepLocks(m_cache->path());
        QVERIFY(QFileInfo::exists(path(QStringLiteral("live.lock"))));
        QVERIFY(!QFileInfo::exists(path(QStringLiteral("dead.lock"))));
    }

    void aCacheGoesWithItsObject()
    {
        QString folder;
        {
            const RenderCache cache(m_cache->path());
            folder = cache.path();
            QVERIFY(QFileInfo(folder + QStringLiteral("/images")).isDir());
            QVERIFY(QFileInfo(folder + QStringLiteral("/video")).isDir());
        }
        QVERIFY(!QFileInfo::exists(folder));
    }

    void aCacheThatCannotBeMadeSaysWhy()
    {
        QVERIFY(writeFile(path(QStringLiteral("file")), "x"));
        const RenderCache cache(path(QStringLiteral("file")));
        QVERIFY(!cache.isValid());
        QVERIFY(!cache.errorText().isEmpty());
        QVERIFY(cache.wantedPath().startsWith(path(QStringLiteral("file"))));
    }
};

QTEST_GUILESS_MAIN(CacheSweeperTest)
#include "CacheSweeperTest.moc"
