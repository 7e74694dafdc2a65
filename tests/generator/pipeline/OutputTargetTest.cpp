// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/OutputTarget.h"
#include "helpers/DeadLock.h"
#include "helpers/Files.h"
#include "helpers/Words.h"
#include "platform/FileNames.h"

#include <QtTest>

using namespace velmora;

class OutputTargetTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const QString &name) const { return QDir(m_folder->path()).filePath(name); }
    QString locks() const { return path(QStringLiteral("locks")); }

    RenderError prepare(OutputTarget &target, const QString &name) const
    {
        return target.prepare(path(name), QStringLiteral("mp4"), locks());
    }

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void choosesTheContainer_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("format");
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<QString>("extension");
        const auto row = [](const char *what, const char *name, const char *format,
                            const char *fileName, const char *extension) {
            QTest::newRow(what) << QString::fromUtf8(name) << QString::fromUtf8(format)
                                << QString::fromUtf8(fileName) << QString::fromUtf8(extension);
        };
        row("suffix wins", "a.webm", "mp4", "a.webm", "webm");
        row("upper case", "a.AVI", "mp4", "a.AVI", "avi");
        row("no suffix", "a", "mov", "a.mov", "mov");
        row("unknown suffix", "trip 12.2024", "wmv", "trip 12.2024.wmv", "wmv");
        row("unknown format", "a", "../x", "a.mkv", "mkv");
        row("odd letters", "Ü 100% 'x'", "MKV", "Ü 100% 'x'.mkv", "mkv");
    }
    void choosesTheContainer()
    {
        QFETCH(QString, name);
        QFETCH(QString, format);
        QFETCH(QString, extension);
        OutputTarget target;
        const RenderError error = target.prepare(path(name), format, locks());
        QVERIFY2(!error.isSet(), qPrintable(error.text));
        QTEST(QFileInfo(target.fileName()).fileName(), "fileName");
        QCOMPARE(target.extension(), extension);
        QCOMPARE(QFileInfo(target.temporaryFile()).suffix(), extension);
        QVERIFY(OutputTarget::isTemporaryName(QFileInfo(target.temporaryFile()).fileName()));
    }

    void refusesWhatCannotBeWritten_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("does not exist") << "none/a.mp4";
        QTest::newRow("not a folder") << "plain/a.mp4";
        QTest::newRow("a folder has that name") << "dir.mp4";
        const QString letter(QChar(0xfc)); // two bytes, but one unit on Windows
        QTest::newRow("too long") << letter.repeated(256 / FileNames::length(letter));
        // The system's own files are read-only even for the super-user.
        if (QFileInfo(QStringLiteral("/proc")).isDir())
            QTest::newRow("/proc") << "/proc/a.mp4";
    }
    void refusesWhatCannotBeWritten()
    {
        QFETCH(QString, name);
        QVERIFY(writeFile(path(QStringLiteral("plain")), "x"));
        QDir(m_folder->path()).mkdir(QStringLiteral("dir.mp4"));
        OutputTarget target;
        const RenderError error = prepare(target, name);
        if (!name.startsWith(QLatin1Char('/'))) // where the system claims to have no room
            QCOMPARE(error.code, QString(RenderErrorCode::kOutput));
        QVERIFY2(error.text.contains(QLatin1String(QTest::currentDataTag())),
                 qPrintable(error.text));
    }

    void takesTheLongestNames()
    {
        OutputTarget target;
        const RenderError error =
            prepare(target, QString(251, QLatin1Char('x')) + QStringLiteral(".mp4"));
        QVERIFY2(!error.isSet(), qPrintable(error.text));
        QVERIFY(writeFile(target.temporaryFile(), "video"));
        QVERIFY(!target.commit().isSet());
        QCOMPARE(readFile(target.fileName()), QByteArray("video"));
    }

    void keepsAVideoThatCannotBePutInPlace_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("taken");
        QTest::addColumn<QString>("kept");
        const QString longest(251, QLatin1Char('x'));
        QTest::newRow("first free name") << "50% %1.MP4" << QStringList() << "50% %1 (2).MP4";
        QTest::newRow("others taken")
            << "a.mp4" << QStringList{QStringLiteral("a (2).mp4"), QStringLiteral("a (3).mp4")}
            << "a (4).mp4";
        QTest::newRow("longest name") << longest + QStringLiteral(".mp4") << QStringList()
                                      << longest.left(207) + QStringLiteral(" (2).mp4");
    }
    void keepsAVideoThatCannotBePutInPlace()
    {
        QFETCH(QString, name);
        QFETCH(QStringList, taken);
        QFETCH(QString, kept);
        OutputTarget target;
        QVERIFY(!prepare(target, name).isSet());
        QVERIFY(writeFile(target.temporaryFile(), "video"));
        for (const QString &other : qAsConst(taken))
            QVERIFY(writeFile(path(other), "older"));
        QVERIFY(QDir().mkpath(path(name))); // nothing can be renamed to a folder's name
        const RenderError error = target.commit();
        target.release();
        QCOMPARE(error.code, QString(RenderErrorCode::kOutput));
        QVERIFY2(error.text.contains(path(name)), qPrintable(error.text));
        QVERIFY2(error.text.contains(path(kept)), qPrintable(error.text));
        QCOMPARE(readFile(path(kept)), QByteArray("video"));
        for (const QString &other : qAsConst(taken))
            QCOMPARE(readFile(path(other)), QByteArray("older"));
    }

    void replacesTheOlderVideoOnlyAtTheEnd()
    {
        const QString video = path(QStringLiteral("a.mp4"));
        QVERIFY(writeFile(video, "old"));
        for (const bool committed : {false, true}) {
            {
                OutputTarget target;
                QVERIFY(!prepare(target, QStringLiteral("a.mp4")).isSet());
                QVERIFY(writeFile(target.temporaryFile(), "new"));
                QCOMPARE(readFile(video), QByteArray("old"));
                if (committed)
                    QVERIFY(!target.commit().isSet());
            }
            QCOMPARE(readFile(video), QByteArray(committed ? "new" : "old"));
            QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden),
                     QStringList{QStringLiteral("a.mp4")});
        }
    }

    void refusesASecondRenderOfTheSameVideo()
    {
        OutputTarget first;
        QVERIFY(!prepare(first, QStringLiteral("a.mp4")).isSet());
        const QString folder = QFileInfo(m_folder->path()).fileName();
        QFile::link(m_folder->path(), path(QStringLiteral("link")));
        const bool linked = QFileInfo(path(QStringLiteral("link"))).isDir();
        QVERIFY(writeFile(path(QStringLiteral("B.MP4")), "x"));
        const bool anyCase = QFileInfo::exists(path(QStringLiteral("b.mp4")));
        for (const QString &name : {QStringLiteral("../%1/a.mp4").arg(folder),
                                    linked ? QStringLiteral("link/a.mp4") : QStringLiteral("a.mp4"),
                                    anyCase ? QStringLiteral("A.Mp4") : QStringLiteral("a.mp4")}) {
            OutputTarget second;
            QCOMPARE(prepare(second, name).code, QString(RenderErrorCode::kBusy));
        }
        OutputTarget other;
        QVERIFY(!prepare(other, QStringLiteral("b.mp4")).isSet());
        first.release();
        OutputTarget third;
        QVERIFY(!prepare(third, QStringLiteral("a.mp4")).isSet());
    }

    void takesOverTheLockOfADeadRender()
    {
        QString lockFile;
        {
            OutputTarget target;
            QVERIFY(!prepare(target, QStringLiteral("a.mp4")).isSet());
            lockFile = QDir(locks()).entryInfoList(QDir::Files).constFirst().filePath();
        }
        QVERIFY(writeFile(lockFile, deadLock()));
        OutputTarget target;
        const RenderError error = prepare(target, QStringLiteral("a.mp4"));
        QVERIFY2(!error.isSet(), qPrintable(error.text));
    }

    void longNamesThatDifferAtTheirEndDoNotMeet()
    {
        const QString name = QString(240, QLatin1Char('x')) + QStringLiteral("%1.mp4");
        OutputTarget first;
        QVERIFY(!prepare(first, name.arg(1)).isSet());
        QVERIFY(writeFile(first.temporaryFile(), "x"));
        OutputTarget second;
        QVERIFY(!prepare(second, name.arg(2)).isSet());
        QVERIFY(QFile::exists(first.temporaryFile()));
    }

    void sweepsUnfinishedVideosOfTheSameName()
    {
        const QStringList strays = words(".a.part-abc123.mp4 .a.part-abc123.part.mp4");
        const QStringList others =
            words(".a.part-abc123.avi .a.part-b.part-abc123.mp4 .a.part-ABC124.mp4 a.part.mp4");
        for (const QString &name : strays + others)
            QVERIFY(writeFile(path(name), "x"));
        OutputTarget target;
        QVERIFY(!prepare(target, QStringLiteral("a.mp4")).isSet());
        for (const QString &name : strays)
            QVERIFY2(!QFileInfo::exists(path(name)), qPrintable(name));
        for (const QString &name : others)
            QVERIFY2(QFileInfo::exists(path(name)), qPrintable(name));
    }
};

QTEST_GUILESS_MAIN(OutputTargetTest)
#include "OutputTargetTest.moc"
