// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/documents/HistoryStore.h"

#include "app/AppSettings.h"
#include "app/TaskThread.h"
#include "helpers/LogCapture.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

using namespace velmora;

class HistoryStoreTest : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void missingFile();
    void savesAndLoadsInOrder();
    void emptyHistoryWritesEmptyArray();
    void unusableFiles_data();
    void unusableFiles();
    void otherVersionIsOverwritten();
    void unusableProjectsAreLeftOut_data();
    void unusableProjectsAreLeftOut();
    void keepsCopyOfWhatItCannotRead_data();
    void keepsCopyOfWhatItCannotRead();
    void keepsFileThatIsTooLarge();
    void loadReplacesList();
    void loadsOnAnotherThread();
    void savesLater();
    void failureOfSavingLater();
    void endWaitsForSaving();
    void takesProjectsOut();
    void makesMissingFolder();
    void longHistory();

private:
    QString openedLine() const { return QStringLiteral("Open history file '%1' [OK]").arg(m_path); }
    void write(const QByteArray &content) const;
    QJsonObject fileContent() const;
    QByteArray currentVersion() const;

    const AppSettings m_settings;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

namespace
{

std::unique_ptr<ProjectFile> projectNamed(const QString &name, const AppSettings &settings)
{
    auto project = std::make_unique<ProjectFile>(settings, ProjectFile::TitleSlide::Create);
    project->setName(name);
    project->setFileName(QStringLiteral("/videos/%1.mp4").arg(name));
    return project;
}

QStringList namesIn(const HistoryStore &history)
{
    QStringList names;
    for (const auto &project : history.projects()) {
        names.append(project->name());
    }
    return names;
}

} // namespace

void HistoryStoreTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath(QStringLiteral("project_history.json"));
}

void HistoryStoreTest::write(const QByteArray &content) const
{
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

QJsonObject HistoryStoreTest::fileContent() const
{
    QFile file(m_path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                          : QJsonObject();
}

/// The version text that the program itself writes.
QByteArray HistoryStoreTest::currentVersion() const
{
    HistoryStore(m_path, m_settings).save();
    return fileContent().value(QStringLiteral("version")).toString().toUtf8();
}

void HistoryStoreTest::missingFile()
{
    HistoryStore history(m_path, m_settings);
    const LogCapture log;
    QVERIFY(!history.load());
    QVERIFY(history.projects().empty());
    QFile missing(m_path);
    QVERIFY(!missing.open(QIODevice::ReadOnly));
    QCOMPARE(log.lines(),
             QStringList{
                 QStringLiteral("Open file '%1' failed:'%2'").arg(m_path, missing.errorString())});
}

void HistoryStoreTest::savesAndLoadsInOrder()
{
    const QStringList names = {QStringLiteral("b"), QStringLiteral("ä 日本"), QStringLiteral("a")};
    HistoryStore history(m_path, m_settings);
    for (const QString &name : names) {
        QCOMPARE(history.add(projectNamed(name, m_settings))->name(), name);
    }
    QVERIFY(history.save());

    HistoryStore loaded(m_path, m_settings);
    const LogCapture log;
    QVERIFY(loaded.load());
    QCOMPARE(log.lines(), QStringList{openedLine()});
    QCOMPARE(namesIn(loaded), names);
    const QJsonArray projects = fileContent().value(QStringLiteral("projects")).toArray();
    for (int i = 0; i < names.size(); ++i) {
        QJsonObject document;
        loaded.projects().at(static_cast<size_t>(i))->toJson(document);
        QCOMPARE(projects.at(i).toObject(), document);
    }
}

void HistoryStoreTest::emptyHistoryWritesEmptyArray()
{
    QVERIFY(HistoryStore(m_path, m_settings).save());
    const QJsonObject content = fileContent();
    QVERIFY(content.value(QStringLiteral("projects")).isArray());
    QVERIFY(content.value(QStringLiteral("projects")).toArray().isEmpty());
    QVERIFY(content.value(QStringLiteral("version")).isString());
    HistoryStore loaded(m_path, m_settings);
    QVERIFY(loaded.load());
    QVERIFY(loaded.projects().empty());
}

void HistoryStoreTest::unusableFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("line");
    const QString parseLine = QStringLiteral("Parse json from file '%1' failed");
    const QString versionLine = QStringLiteral("Invalid history version in file '%1'");
    QTest::newRow("empty") << QByteArray() << parseLine;
    QTest::newRow("cut") << QByteArray("{\"version\":\"1.0\",\"projects\":[") << parseLine;
    QTest::newRow("broken UTF-8") << QByteArray("{\"version\":\"\xff\"}") << parseLine;
    QTest::newRow("too deep") << QByteArray("[").repeated(100000) << parseLine;
    QTest::newRow("array") << QByteArray("[]") << versionLine;
    QTest::newRow("no version") << QByteArray("{\"projects\":[]}") << versionLine;
    QTest::newRow("other version") << QByteArray("{\"version\":\"999\"}") << versionLine;
    QTest::newRow("number as version") << QByteArray("{\"version\":1.0}") << versionLine;
}

void HistoryStoreTest::unusableFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, line);
    write(content);
    HistoryStore history(m_path, m_settings);
    const LogCapture log;
    QVERIFY(!history.load());
    QVERIFY(history.projects().empty());
    QCOMPARE(log.lines(), (QStringList{openedLine(), line.arg(m_path)}));
}

void HistoryStoreTest::otherVersionIsOverwritten()
{
    write(R"({"version":"0","projects":[{"name":"old","resolution":"64x64"}],"extra":1})");
    HistoryStore history(m_path, m_settings);
    history.load();
    history.add(projectNamed(QStringLiteral("new"), m_settings));
    QVERIFY(history.save());
    const QJsonObject content = fileContent();
    QCOMPARE(content.keys(), (QStringList{QStringLiteral("projects"), QStringLiteral("version")}));
    HistoryStore loaded(m_path, m_settings);
    QVERIFY(loaded.load());
    QCOMPARE(namesIn(loaded), QStringList{QStringLiteral("new")});
}

void HistoryStoreTest::unusableProjectsAreLeftOut_data()
{
    QTest::addColumn<QByteArray>("project");
    QTest::addColumn<QString>("word");
    const QString image = QStringLiteral("Failed load image info");
    const QString resolution = QStringLiteral("resolution");
    QTest::newRow("resolution") << QByteArray(R"({"resolution":"1280x"})") << resolution;
    QTest::newRow("no object") << QByteArray("17") << resolution;
    QTest::newRow("slide") << QByteArray(R"({"resolution":"8x8","images":[{"type":"video"}]})")
                           << image;
}

void HistoryStoreTest::unusableProjectsAreLeftOut()
{
    QFETCH(QByteArray, project);
    QFETCH(QString, word);
    write("{\"version\":\"" + currentVersion() +
          R"(","projects":[{"name":"a","resolution":"8x8"},)" + project +
          R"(,{"name":"z","resolution":"8x8"}]})");
    HistoryStore history(m_path, m_settings);
    const LogCapture log;
    QVERIFY(history.load());
    QCOMPARE(namesIn(history), (QStringList{QStringLiteral("a"), QStringLiteral("z")}));
    const QStringList expected = {
        openedLine(), QStringLiteral("Failed to parse history, error field: '%1'").arg(word),
        QStringLiteral("Parse history file '%1' failed").arg(m_path)};
    QCOMPARE(log.lines(), expected);
}

void HistoryStoreTest::keepsCopyOfWhatItCannotRead_data()
{
    QTest::addColumn<QByteArray>("projects");
    QTest::addColumn<bool>("isKept");
    QTest::newRow("damaged") << QByteArray("[{") << true;
    QTest::newRow("other version") << QByteArray(R"([],"version":"999")") << true;
    QTest::newRow("unusable project") << QByteArray(R"([{"name":"a"}])") << true;
    QTest::newRow("no list") << QByteArray("{}") << true;
    QTest::newRow("whole") << QByteArray(R"([{"name":"a","resolution":"8x8"}])") << false;
    QTest::newRow("empty list") << QByteArray("[]") << false;
}

void HistoryStoreTest::keepsCopyOfWhatItCannotRead()
{
    QFETCH(QByteArray, projects);
    QFETCH(bool, isKept);
    const QByteArray content =
        "{\"version\":\"" + currentVersion() + "\",\"projects\":" + projects + '}';
    write(content);
    HistoryStore history(m_path, m_settings);
    history.load();
    QFile copy(history.copyPath());
    QVERIFY(!copy.exists());
    for (const char *name : {"first", "second"}) { // The copy is of the file that was loaded.
        history.add(projectNamed(QLatin1String(name), m_settings));
        QVERIFY(history.save());
    }
    QCOMPARE(copy.exists(), isKept);
    QCOMPARE(copy.open(QIODevice::ReadOnly) ? copy.readAll() : content, content);
    QVERIFY(history.load());
    QCOMPARE(namesIn(history).constLast(), QStringLiteral("second"));
}

void HistoryStoreTest::keepsFileThatIsTooLarge()
{
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(HistoryStore::kMaximumFileSize + 1));
    file.close();
    HistoryStore history(m_path, m_settings);
    QVERIFY(!history.load());
    QVERIFY(history.save());
    QCOMPARE(QFileInfo(history.copyPath()).size(), HistoryStore::kMaximumFileSize + 1);
    QVERIFY(history.load());
}

void HistoryStoreTest::loadsOnAnotherThread()
{
    HistoryStore history(m_path, m_settings);
    history.add(projectNamed(QStringLiteral("a"), m_settings));
    QVERIFY(history.save());
    TaskThread thread;
    thread.add([&history]() -> TaskThread::Report {
        history.load();
        return [] {};
    });
    thread.finish();
    QCOMPARE(namesIn(history), QStringList{QStringLiteral("a")});
    QCOMPARE(history.projects().front()->thread(), QThread::currentThread());
    QCOMPARE(history.projects().front()->items().first()->thread(), QThread::currentThread());
}

void HistoryStoreTest::savesLater()
{
    HistoryStore history(m_path, m_settings);
    int answers = 0;
    const auto save = [&](QObject *context) {
        history.saveLater(context, [&](const QString &error) {
            QCOMPARE(error, QString());
            QCOMPARE(QThread::currentThread(), thread());
            ++answers;
        });
    };
    const ProjectFile *first = history.add(projectNamed(QStringLiteral("first"), m_settings));
    save(this);
    {
        QObject context;
        save(&context);
    }
    history.take(first); // It may be in the midst of being written.
    history.add(projectNamed(QStringLiteral("second"), m_settings));
    save(this);
    history.clear(); // Not saved.
    QTRY_COMPARE(answers, 2);
    QVERIFY(history.load());
    QCOMPARE(namesIn(history), QStringList{QStringLiteral("second")});

    history.clear();
    save(this);
    history.add(projectNamed(QStringLiteral("third"), m_settings));
    QVERIFY(history.save());
    QVERIFY(history.load());
    QCOMPARE(namesIn(history), QStringList{QStringLiteral("third")});
}

void HistoryStoreTest::failureOfSavingLater()
{
    QVERIFY(QDir().mkpath(m_path));
    HistoryStore history(m_path, m_settings);
    QStringList errors;
    const LogCapture log;
    history.saveLater(this, [&errors](const QString &error) { errors.append(error); });
    QTRY_COMPARE(errors.size(), 1);
    QVERIFY(!errors.first().isEmpty());
    QCOMPARE(log.lines(QtCriticalMsg),
             QStringList{QStringLiteral("Save file '%1' failed:'%2'").arg(m_path, errors.first())});
}

void HistoryStoreTest::endWaitsForSaving()
{
    {
        HistoryStore history(m_path, m_settings);
        for (const char *name : {"a", "b"}) {
            history.add(projectNamed(QLatin1String(name), m_settings));
            history.saveLater(this, [](const QString &) { QFAIL("The store is gone."); });
        }
    }
    HistoryStore loaded(m_path, m_settings);
    QVERIFY(loaded.load());
    QCOMPARE(namesIn(loaded), (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
    QCoreApplication::processEvents();
}

void HistoryStoreTest::loadReplacesList()
{
    HistoryStore history(m_path, m_settings);
    history.add(projectNamed(QStringLiteral("saved"), m_settings));
    QVERIFY(history.save());
    history.add(projectNamed(QStringLiteral("not saved"), m_settings));
    QVERIFY(history.load());
    QCOMPARE(namesIn(history), QStringList{QStringLiteral("saved")});
    QVERIFY(QFile::remove(m_path));
    const LogCapture log;
    QVERIFY(!history.load());
    QVERIFY(history.projects().empty());
}

void HistoryStoreTest::takesProjectsOut()
{
    HistoryStore history(m_path, m_settings);
    history.add(projectNamed(QStringLiteral("a"), m_settings));
    const ProjectFile *b = history.add(projectNamed(QStringLiteral("b"), m_settings));
    history.add(projectNamed(QStringLiteral("c"), m_settings));
    const auto taken = history.take(b);
    QCOMPARE(taken.get(), b);
    QCOMPARE(namesIn(history), (QStringList{QStringLiteral("a"), QStringLiteral("c")}));
    QVERIFY(!history.take(b));
    QVERIFY(!history.take(nullptr));
    history.clear();
    QVERIFY(history.projects().empty());
}

void HistoryStoreTest::makesMissingFolder()
{
    m_path = m_folder->filePath(QStringLiteral("new/folder/project_history.json"));
    QVERIFY(HistoryStore(m_path, m_settings).save());
    QVERIFY(QFile::exists(m_path));
}

void HistoryStoreTest::longHistory()
{
    constexpr int kProjects = 2000;
    constexpr int kSlides = 100;
    auto project = projectNamed(QStringLiteral("long"), m_settings);
    QStringList paths;
    for (int i = 1; i < kSlides; ++i) {
        paths.append(QStringLiteral("/home/someone/Pictures/Holiday 2026/IMG_%1.jpg").arg(i));
    }
    project->addFiles(paths, 3, 1);
    QJsonObject document;
    project->toJson(document);
    const QByteArray text = QJsonDocument(document).toJson(QJsonDocument::Compact);
    QByteArray content = "{\"version\":\"" + currentVersion() + R"(","projects":[)" + text;
    for (int i = 1; i < kProjects; ++i) {
        content += ',' + text;
    }
    HistoryStore history(m_path, m_settings);
    QVERIFY(history.loadContent(content + "]}"));
    QCOMPARE(history.projects().size(), static_cast<size_t>(kProjects));
    for (const auto &loaded : history.projects()) {
        QCOMPARE(loaded->items().size(), kSlides);
        QCOMPARE(loaded->items().last()->title(), QStringLiteral("IMG_99.jpg"));
    }
}

QTEST_GUILESS_MAIN(HistoryStoreTest)
#include "HistoryStoreTest.moc"
