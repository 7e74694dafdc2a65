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
    for (int i = 0; i < 2000; ++i)
        paths.append(QStringLiteral("/photos/%1.jpg").arg(i));
    project->addFiles(paths, 3, 1);
    return project;
}

} // namespace

/// Saving where the system refuses: the older file stays whole, nothing is left behind, and the
/// reason is told and logged.
class SaveFailuresTest : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(QStringLiteral("a.json"));
    }

    void diskFull_data()
    {
        QTest::addColumn<bool>("ofHistory");
        QTest::newRow("project") << false;
        QTest::newRow("history") << true;
    }

    void diskFull()
    {
        QFETCH(bool, ofHistory);
        HistoryStore history(m_path, m_settings);
        const ProjectFile small(m_settings, ProjectFile::TitleSlide::Create);
        QVERIFY(ofHistory ? history.save() : small.saveToFile(m_path));
        const QByteArray before = content();
        const ProjectFile *large = history.add(largeProject(m_settings));
        QString error;
        const LogCapture log;
        {
            const FileSizeLimit limit(kLimit);
            QVERIFY(!(ofHistory ? history.save(&error) : large->saveToFile(m_path, &error)));
        }
        QCOMPARE(error, QStringLiteral("File too large"));
        QCOMPARE(log.lines(QtCriticalMsg), QStringList{lineOf(m_path, error)});
        QCOMPARE(content(), before);
        QCOMPARE(filesInFolder(), QStringList{QStringLiteral("a.json")});
        QVERIFY(ofHistory ? history.save() : large->saveToFile(m_path));
        QVERIFY(content().size() > static_cast<int>(kLimit));
    }

    void unsuitablePlaces_data()
    {
        QTest::addColumn<QString>("place");
        QTest::addColumn<QString>("reason");
        const QString missing = QStringLiteral("No such file or directory");
        QTest::newRow("missing folder") << "missing/a.json" << missing;
        QTest::newRow("link into a missing folder") << "link" << missing;
        QTest::newRow("folder") << "folder" << QStringLiteral("Filename refers to a directory");
    }

    void unsuitablePlaces()
    {
        QFETCH(QString, place);
        const QString link = m_folder->filePath(QStringLiteral("link"));
        QVERIFY(QFile::link(m_folder->filePath(QStringLiteral("missing/b.json")), link));
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder")));
        const ProjectFile project(m_settings, ProjectFile::TitleSlide::Create);
        QString error;
        const LogCapture log;
        QVERIFY(!project.saveToFile(m_folder->filePath(place), &error));
        QTEST(error, "reason");
        QCOMPARE(log.lines(), QStringList{lineOf(m_folder->filePath(place), error)});
        QVERIFY(QFileInfo(link).isSymLink());
        QVERIFY(QFileInfo(m_folder->filePath(QStringLiteral("folder"))).isDir());
        QCOMPARE(filesInFolder(), QStringList());
    }

    void readOnlyFolder()
    {
        if (geteuid() == 0)
            QSKIP("The superuser may write into read-only folders.");
        const ProjectFile project(m_settings, ProjectFile::TitleSlide::Create);
        QVERIFY(project.saveToFile(m_path));
        const QByteArray before = content();
        QVERIFY(QFile::setPermissions(m_folder->path(), QFile::ReadOwner | QFile::ExeOwner));
        QString error;
        const LogCapture log;
        const bool saved = project.saveToFile(m_path, &error);
        QFile::setPermissions(m_folder->path(),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QVERIFY(!saved);
        QCOMPARE(error, QStringLiteral("Permission denied"));
        QCOMPARE(content(), before);
    }

    void linkIsKeptAndItsTargetReplaced()
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

    void linkToItselfIsReplaced()
    {
        QVERIFY(QFile::link(m_path, m_path));
        const ProjectFile project(m_settings, ProjectFile::TitleSlide::Create);
        QVERIFY(project.saveToFile(m_path));
        QVERIFY(ProjectFile::loadFromFile(m_path, m_settings, nullptr));
    }

    void pipeIsNotRead()
    {
        QCOMPARE(mkfifo(QFile::encodeName(m_path).constData(), 0600), 0);
        QString error;
        QVERIFY(!ProjectFile::loadFromFile(m_path, m_settings, &error));
        QVERIFY(!error.isEmpty());
        QVERIFY(!ProjectFile::loadFromFile(QStringLiteral("/dev/zero"), m_settings, &error));
    }

private:
    static QString lineOf(const QString &path, const QString &reason)
    {
        return QStringLiteral("Save file '%1' failed:'%2'").arg(path, reason);
    }

    QByteArray content() const
    {
        QFile file(m_path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QStringList filesInFolder() const { return QDir(m_folder->path()).entryList(QDir::Files); }

    const AppSettings m_settings;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

QTEST_GUILESS_MAIN(SaveFailuresTest)
#include "SaveFailuresTest.moc"
