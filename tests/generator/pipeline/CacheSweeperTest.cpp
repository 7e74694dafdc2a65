// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/CacheSweeper.h"
#include "helpers/DeadLock.h"

#include "generator/pipeline/RenderCache.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QtTest>

using namespace velmora;

class CacheSweeperTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_cache;

    QString path(const QString &name) const { return m_cache->filePath(name); }

    static void write(const QString &name, const QByteArray &content)
    {
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), qint64(content.size()));
    }

    /// What a render leaves that was killed: its lock names a process that cannot exist.
    QString makeDead(const QString &name) const
    {
        const QString folder = path(name);
        QDir().mkpath(folder + QStringLiteral("/images"));
        write(folder + QStringLiteral("/images/img_i0_00001.jpg"), "x");
        write(folder + QLatin1Char('/') + CacheSweeper::kLockFile, deadLock());
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
        QTest::addColumn<QString>("name");
        QTest::newRow("complete") << QStringLiteral(".holiday.part-abc123.mp4");
        QTest::newRow("being multiplexed") << QStringLiteral(".holiday.part-abc123.part.mp4");
    }

    void removesTheUnfinishedVideoOfADeadRender()
    {
        QFETCH(QString, name);
        write(path(name), "half");
        const QString dead = makeDead(QStringLiteral("render-dead01"));
        write(dead + QLatin1Char('/') + CacheSweeper::kOutputNote,
              path(QStringLiteral(".holiday.part-abc123.mp4")).toUtf8());
        CacheSweeper::sweep(m_cache->path());
        QVERIFY(!QFileInfo::exists(path(name)));
        QVERIFY(!QFileInfo::exists(dead));
    }

    void keepsTheNoteOfAVideoThatCannotBeRemoved()
    {
        const QString video = path(QStringLiteral(".holiday.part-abc123.mp4"));
        QVERIFY(QDir().mkpath(video)); // in place of a file that is open
        const QString dead = makeDead(QStringLiteral("render-dead01"));
        const QString note = dead + QLatin1Char('/') + CacheSweeper::kOutputNote;
        write(note, video.toUtf8());
        QCOMPARE(CacheSweeper::sweep(m_cache->path()), 0);
        QVERIFY(QFileInfo::exists(note));
    }

    void removesNoOtherFileThatANoteNames()
    {
        const QString video = path(QStringLiteral("holiday.mp4"));
        write(video, "whole");
        const QString dead = makeDead(QStringLiteral("render-dead01"));
        write(dead + QLatin1Char('/') + CacheSweeper::kOutputNote, video.toUtf8());
        CacheSweeper::sweep(m_cache->path());
        QVERIFY(QFileInfo::exists(video));
    }

    void removesTheLocksOfDeadRendersOnly()
    {
        QLockFile live(path(QStringLiteral("live.lock")));
        QVERIFY(live.tryLock(0));
        write(path(QStringLiteral("dead.lock")), deadLock());
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
        write(path(QStringLiteral("file")), "x");
        const RenderCache cache(path(QStringLiteral("file")));
        QVERIFY(!cache.isValid());
        QVERIFY(!cache.errorText().isEmpty());
        QVERIFY(cache.wantedPath().startsWith(path(QStringLiteral("file"))));
    }
};

QTEST_GUILESS_MAIN(CacheSweeperTest)
#include "CacheSweeperTest.moc"
