// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppSettings.h"
#include "helpers/LogCapture.h"
#include "project/documents/HistoryStore.h"
#include "project/documents/ProjectFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace velmora;

/// Saving where the system refuses: the older file stays whole, nothing is left behind, and the
/// reason is told and logged.
class SaveFailuresTest : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void diskFullWhileSavingProject();
    void diskFullWhileSavingHistory();
    void missingFolder();
    void folderInPlaceOfFile();
    void readOnlyFolder();
    void linkIsKeptAndItsTargetReplaced();
    void linkIntoMissingFolder();
    void linkToItselfIsReplaced();
    void pipeIsNotRead();

private:
    QByteArray content() const;
    QStringList filesInFolder() const { return QDir(m_folder->path()).entryList(QDir::Files); }

    const AppSettings m_settings;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

namespace
{

/// Lets no file of this process grow beyond a size, as a full disk would, while it lives.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_previous);
        rlimit limit = m_previous;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &m_previous); }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    rlimit m_previous = {};
};

constexpr rlim_t kLimit = 64 * 1024;

std::unique_ptr<ProjectFile> largeProject(const AppSettings &settings)
{
    auto project = std::make_unique<ProjectFile>(settings, ProjectFile::TitleSlide::Create);
    QStringList paths;
    for (int i = 0; i < 2000; ++i) {
        paths.append(QStringLiteral("/photos/%1.jpg").arg(i));
    }
    project->addFiles(paths, 3, 1);
    return project;
}

} // namespace

void SaveFailuresTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath(QStringLiteral("a.json"));
}

QByteArray SaveFailuresTest::content() const
{
    QFile file(m_path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void SaveFailuresTest::diskFullWhileSavingProject()
{
    const ProjectFile small(m_settings, ProjectFile::TitleSlide::Create);
    QVERIFY(small.saveToFile(m_path));
    const QByteArray before = content();
    const auto project = largeProject(m_settings);
    QString error;
    const LogCapture log;
    {
        const FileSizeLimit limit(kLimit);
        QVERIFY(!project->saveToFile(m_path, &error));
    }
    QCOMPARE(error, QStringLiteral("File too large"));
    QCOMPARE(log.lines(QtCriticalMsg),
             QStringList{QStringLiteral("Save file '%1' failed:'File too large'").arg(m_path)});
    QCOMPARE(content(), before);
    QCOMPARE(filesInFolder(), QStringList{QStringLiteral("a.json")});
    QCOMPARE(project->items().size(), 2001);
    QVERIFY(project->saveToFile(m_path));
    QVERIFY(content().size() > static_cast<int>(kLimit));
}

void SaveFailuresTest::diskFullWhileSavingHistory()
{
    HistoryStore history(m_path, m_settings);
    QVERIFY(history.save());
    const QByteArray before = content();
    history.add(largeProject(m_settings));
    QString error;
    const LogCapture log;
    {
        const FileSizeLimit limit(kLimit);
        QVERIFY(!history.save(&error));
    }
    QCOMPARE(error, QStringLiteral("File too large"));
    QCOMPARE(log.lines(QtCriticalMsg),
             QStringList{QStringLiteral("Save file '%1' failed:'File too large'").arg(m_path)});
    QCOMPARE(content(), before);
    QCOMPARE(filesInFolder(), QStringList{QStringLiteral("a.json")});
}

void SaveFailuresTest::missingFolder()
{
    const QString path = m_folder->filePath(QStringLiteral("missing/a.json"));
    const ProjectFile project(m_settings, ProjectFile::TitleSlide::Create);
    QString error;
    const LogCapture log;
    QVERIFY(!project.saveToFile(path, &error));
    QCOMPARE(error, QStringLiteral("No such file or directory"));
    QCOMPARE(log.lines(),
             QStringList{QStringLiteral("Save file '%1' failed:'%2'").arg(path, error)});
}

void SaveFailuresTest::folderInPlaceOfFile()
{
    QVERIFY(QDir().mkdir(m_path));
    const ProjectFile project(m_settings, ProjectFile::TitleSlide::Create);
    QString error;
    const LogCapture log;
    QVERIFY(!project.saveToFile(m_path, &error));
    QVERIFY(!error.isEmpty());
    QVERIFY(QFileInfo(m_path).isDir());
    QVERIFY(filesInFolder().isEmpty());
}

void SaveFailuresTest::readOnlyFolder()
{
    if (geteuid() == 0) {
        QSKIP("The superuser may write into read-only folders.");
    }
    const ProjectFile project(m_settings, ProjectFile::TitleSlide::Create);
    QVERIFY(project.saveToFile(m_path));
    const QByteArray before = content();
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::ReadOwner | QFile::ExeOwner));
    QString error;
    const LogCapture log;
    const bool saved = project.saveToFile(m_path, &error);
    QFile::setPermissions(m_folder->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QVERIFY(!saved);
    QCOMPARE(error, QStringLiteral("Permission denied"));
    QCOMPARE(content(), before);
}

void SaveFailuresTest::linkIsKeptAndItsTargetReplaced()
{
    const QString target = m_folder->filePath(QStringLiteral("target.json"));
    const ProjectFile project(m_settings, ProjectFile::TitleSlide::Create);
    QVERIFY(QFile::link(target, m_path));
    for (int round = 0; round < 2; ++round) { // at first the target is missing
        QVERIFY(project.saveToFile(m_path));
        QVERIFY(QFileInfo(m_path).isSymLink());
        QVERIFY(!QFileInfo(target).isSymLink());
        QVERIFY(ProjectFile::loadFromFile(target, m_settings, nullptr));
    }
    QCOMPARE(filesInFolder().size(), 2);
}

void SaveFailuresTest::linkIntoMissingFolder()
{
    QVERIFY(QFile::link(m_folder->filePath(QStringLiteral("missing/b.json")), m_path));
    const ProjectFile project(m_settings, ProjectFile::TitleSlide::Create);
    QString error;
    const LogCapture log;
    QVERIFY(!project.saveToFile(m_path, &error));
    QCOMPARE(error, QStringLiteral("No such file or directory"));
    QVERIFY(QFileInfo(m_path).isSymLink());
}

void SaveFailuresTest::linkToItselfIsReplaced()
{
    QVERIFY(QFile::link(m_path, m_path));
    const ProjectFile project(m_settings, ProjectFile::TitleSlide::Create);
    QVERIFY(project.saveToFile(m_path));
    QVERIFY(ProjectFile::loadFromFile(m_path, m_settings, nullptr));
}

void SaveFailuresTest::pipeIsNotRead()
{
    QCOMPARE(mkfifo(QFile::encodeName(m_path).constData(), 0600), 0);
    QString error;
    QVERIFY(!ProjectFile::loadFromFile(m_path, m_settings, &error));
    QVERIFY(!error.isEmpty());
    QVERIFY(!ProjectFile::loadFromFile(QStringLiteral("/dev/zero"), m_settings, &error));
}

QTEST_GUILESS_MAIN(SaveFailuresTest)
#include "SaveFailuresTest.moc"
