// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FileManager.h"
#include "helpers/Files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTest>

#include <windows.h>

using namespace velmora;

/// What the file manager is told. A copy of this program takes its place.
class FileManagerTest : public QObject
{
    Q_OBJECT

public:
    /// The command line that @p program was started with lies beside it.
    static QString noteOf(const QString &program) { return program + QStringLiteral(".txt"); }

private slots:
    void initTestCase()
    {
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(),
                            path(QStringLiteral("explorer.exe"))));
        QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("Мои видео")));
        QVERIFY(writeFile(path(QStringLiteral("Мои видео/日本 2, 3.mp4"))));
        // Programs are looked for in the current folder before that of the system.
        QVERIFY(QDir::setCurrent(m_folder.path()));
    }

    void cleanupTestCase() { QDir::setCurrent(QDir::tempPath()); }

    void showsFiles_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("arguments"); // Empty: nothing is started.
        const char *rows[][3] = {
            {"file", "Мои видео/日本 2, 3.mp4", "/select, \"%1\\Мои видео\\日本 2, 3.mp4\""},
            {"gone", "Мои видео/gone.mp4", "\"%1\\Мои видео\""},
            {"folder gone", "gone/gone.mp4", ""}};
        for (const auto &row : rows)
            QTest::newRow(row[0]) << row[1] << row[2];
    }

    void showsFiles()
    {
        QFETCH(QString, file);
        QFETCH(QString, arguments);
        QCOMPARE(createFileManager()->showInFolder(path(file)), !arguments.isEmpty());
        if (arguments.isEmpty())
            return;
        QFile note(noteOf(path(QStringLiteral("explorer.exe"))));
        QTRY_VERIFY(note.isOpen() || note.open(QIODevice::ReadOnly));
        const QString folder =
            QDir::toNativeSeparators(QFileInfo(m_folder.path()).absoluteFilePath());
        const QString line = QString::fromUtf8(note.readAll());
        QVERIFY2(line.startsWith(QStringLiteral("explorer.exe ")), qPrintable(line));
        QCOMPARE(line.section(QLatin1Char(' '), 1).trimmed(), arguments.arg(folder));
        QVERIFY(note.remove());
    }

    void programThatDoesNotStart()
    {
        const QString program = path(QStringLiteral("explorer.exe"));
        // The last copy may still be ending.
        QTRY_VERIFY(!QFile::exists(program) || QFile::remove(program));
        QVERIFY(writeFile(program, "no program"));
        QVERIFY(!createFileManager()->showInFolder(path(QStringLiteral("Мои видео/gone.mp4"))));
    }

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QString program = QCoreApplication::applicationFilePath();
    if (program.endsWith(QLatin1String("explorer.exe"))) {
        QSaveFile note(FileManagerTest::noteOf(program));
        note.open(QIODevice::WriteOnly);
        note.write(QString::fromWCharArray(GetCommandLineW()).toUtf8());
        return note.commit() ? 0 : 1;
    }
    FileManagerTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "FileManagerTest.moc"
