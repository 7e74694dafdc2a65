// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/pipeline/OutputTarget.h"
#include "helpers/DeadLock.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

using namespace velmora;

class OutputTargetTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString locks() const { return path(QStringLiteral("locks")); }

    RenderError prepare(OutputTarget &target, const QString &name) const
    {
        return target.prepare(path(name), QStringLiteral("mp4"), locks());
    }

    static void write(const QString &name, const QByteArray &content)
    {
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), qint64(content.size()));
    }

    static QByteArray read(const QString &name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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
        QTest::addColumn<QString>("told");
        const auto row = [](const QString &name, const char *told) {
            QTest::newRow(told) << name << QString::fromLatin1(told);
        };
        row(QStringLiteral("none/a.mp4"), "does not exist");
        row(QStringLiteral("plain/a.mp4"), "not a folder");
        row(QStringLiteral("dir.mp4"), "a folder has that name");
        row(QString(150, QChar(0xfc)), "too long"); // in bytes
    }

    void refusesWhatCannotBeWritten()
    {
        QFETCH(QString, name);
        QFETCH(QString, told);
        write(path(QStringLiteral("plain")), "x");
        QDir(m_folder->path()).mkdir(QStringLiteral("dir.mp4"));
        OutputTarget target;
        const RenderError error = prepare(target, name);
        QCOMPARE(error.code, QString(RenderErrorCode::kOutput));
        QVERIFY2(error.text.contains(told), qPrintable(error.text));
    }

    void refusesAReadOnlyFolder()
    {
        // The system's own files are read-only even for the super-user.
        if (!QFileInfo(QStringLiteral("/proc")).isDir())
            QSKIP("needs a folder into which nobody can write");
        OutputTarget target;
        const RenderError error =
            target.prepare(QStringLiteral("/proc/a.mp4"), QStringLiteral("mp4"), locks());
        QVERIFY(error.isSet());
        QVERIFY2(error.text.contains(QLatin1String("/proc")), qPrintable(error.text));
    }

    void takesTheLongestNames()
    {
        OutputTarget target;
        const RenderError error =
            prepare(target, QString(251, QLatin1Char('x')) + QStringLiteral(".mp4"));
        QVERIFY2(!error.isSet(), qPrintable(error.text));
        write(target.temporaryFile(), "video");
        QVERIFY(!target.commit().isSet());
        QCOMPARE(read(target.fileName()), QByteArray("video"));
    }

    void replacesTheOlderVideoOnlyAtTheEnd()
    {
        write(path(QStringLiteral("a.mp4")), "old");
        OutputTarget target;
        QVERIFY(!prepare(target, QStringLiteral("a.mp4")).isSet());
        write(target.temporaryFile(), "new");
        QCOMPARE(read(path(QStringLiteral("a.mp4"))), QByteArray("old"));
        QVERIFY(!target.commit().isSet());
        QCOMPARE(read(path(QStringLiteral("a.mp4"))), QByteArray("new"));
    }

    void keepsAVideoThatCannotBePutInPlace_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("taken");
        QTest::addColumn<QString>("kept");
        const QString longest(251, QLatin1Char('x'));
        QTest::newRow("first free name")
            << QStringLiteral("50% %1.MP4") << QStringList() << QStringLiteral("50% %1 (2).MP4");
        QTest::newRow("others taken")
            << QStringLiteral("a.mp4")
            << QStringList{QStringLiteral("a (2).mp4"), QStringLiteral("a (3).mp4")}
            << QStringLiteral("a (4).mp4");
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
        write(target.temporaryFile(), "video");
        for (const QString &other : qAsConst(taken))
            write(path(other), "older");
        QVERIFY(QDir().mkpath(path(name))); // nothing can be renamed to a folder's name
        const RenderError error = target.commit();
        target.release();
        QCOMPARE(error.code, QString(RenderErrorCode::kOutput));
        QVERIFY2(error.text.contains(path(name)), qPrintable(error.text));
        QVERIFY2(error.text.contains(path(kept)), qPrintable(error.text));
        QCOMPARE(read(path(kept)), QByteArray("video"));
        for (const QString &other : qAsConst(taken))
            QCOMPARE(read(path(other)), QByteArray("older"));
    }

    void leavesNothingWithoutCommit()
    {
        write(path(QStringLiteral("a.mp4")), "old");
        {
            OutputTarget target;
            QVERIFY(!prepare(target, QStringLiteral("a.mp4")).isSet());
            write(target.temporaryFile(), "half");
        }
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList{QStringLiteral("a.mp4")});
        QCOMPARE(read(path(QStringLiteral("a.mp4"))), QByteArray("old"));
    }

    void refusesASecondRenderOfTheSameVideo()
    {
        OutputTarget first;
        QVERIFY(!prepare(first, QStringLiteral("a.mp4")).isSet());
        const QString folder = QFileInfo(m_folder->path()).fileName();
        QFile::link(m_folder->path(), path(QStringLiteral("link")));
        const bool linked = QFileInfo(path(QStringLiteral("link"))).isDir();
        write(path(QStringLiteral("B.MP4")), "x");
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
        write(lockFile, deadLock());
        OutputTarget target;
        const RenderError error = prepare(target, QStringLiteral("a.mp4"));
        QVERIFY2(!error.isSet(), qPrintable(error.text));
    }

    void sweepsUnfinishedVideosOfTheSameName()
    {
        const QStringList strays{QStringLiteral(".a.part-abc123.mp4"),
                                 QStringLiteral(".a.part-abc123.part.mp4")};
        const QStringList others{
            QStringLiteral(".a.part-abc123.avi"), QStringLiteral(".a.part-b.part-abc123.mp4"),
            QStringLiteral(".a.part-ABC124.mp4"), QStringLiteral("a.part.mp4")};
        for (const QString &name : strays + others)
            write(path(name), "x");
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
