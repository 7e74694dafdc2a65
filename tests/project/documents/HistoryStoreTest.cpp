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

namespace
{

const AppSettings settings;

std::unique_ptr<ProjectFile> projectNamed(const QString &name)
{
    auto project = std::make_unique<ProjectFile>(settings, ProjectFile::TitleSlide::Create);
    project->setName(name);
    project->setFileName(QStringLiteral("/videos/%1.mp4").arg(name));
    return project;
}

const ProjectFile *add(HistoryStore &history, const char *name)
{
    return history.add(projectNamed(QString::fromUtf8(name)));
}

/// "a, b, c"
QString namesIn(const HistoryStore &history)
{
    QStringList names;
    for (const auto &project : history.projects())
        names.append(project->name());
    return names.join(QStringLiteral(", "));
}

} // namespace

class HistoryStoreTest : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(QStringLiteral("project_history.json"));
    }

    void savesAndLoadsInOrder_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::newRow("none") << QStringList();
        QTest::newRow("three") << QString::fromUtf8("b|ä 日本|a").split(QLatin1Char('|'));
    }

    void savesAndLoadsInOrder()
    {
        QFETCH(QStringList, names);
        m_path = m_folder->filePath(QStringLiteral("new/folder/project_history.json"));
        HistoryStore history(m_path, settings);
        for (const QString &name : names)
            QCOMPARE(history.add(projectNamed(name))->name(), name);
        QVERIFY(history.save());

        HistoryStore loaded(m_path, settings);
        const LogCapture log;
        QVERIFY(loaded.load());
        QCOMPARE(log.lines(), QStringList{openedLine()});
        QCOMPARE(namesIn(loaded), names.join(QStringLiteral(", ")));
        QJsonArray documents;
        for (const auto &project : loaded.projects()) {
            QJsonObject document;
            project->toJson(document);
            documents.append(document);
        }
        QCOMPARE(fileContent(), (QJsonObject{{QStringLiteral("version"), QStringLiteral("1.0")},
                                             {QStringLiteral("projects"), documents}}));
        QVERIFY(loaded.save());
        QVERIFY(!QFile::exists(loaded.copyPath())); // All of it had been read.
    }

    void unusableFiles_data()
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
        QTest::newRow("no version") << QByteArray("{\"projects\":[],\"x\":1}") << versionLine;
        QTest::newRow("other version") << QByteArray("{\"version\":\"999\"}") << versionLine;
        QTest::newRow("number as version") << QByteArray("{\"version\":1.0}") << versionLine;
    }

    void unusableFiles()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, line);
        write(content);
        HistoryStore history(m_path, settings);
        const LogCapture log;
        QVERIFY(!history.load());
        QCOMPARE(log.lines(), (QStringList{openedLine(), line.arg(m_path)}));
        keepsCopy(history, content);
    }

    void unusableProjectsAreLeftOut_data()
    {
        QTest::addColumn<QString>("word");
        QTest::newRow(R"({"resolution":"1280x"})") << "resolution";
        QTest::newRow("17") << "resolution";
        QTest::newRow(R"({"resolution":"8x8","images":[{"type":"video"}]})")
            << "Failed load image info";
    }

    void unusableProjectsAreLeftOut()
    {
        QFETCH(QString, word);
        const QByteArray content =
            R"({"version":"1.0","projects":[{"name":"a","resolution":"8x8"},)" +
            QByteArray(QTest::currentDataTag()) + R"(,{"name":"z","resolution":"8x8"}]})";
        write(content);
        HistoryStore history(m_path, settings);
        const LogCapture log;
        QVERIFY(history.load());
        QCOMPARE(namesIn(history), QStringLiteral("a, z"));
        const QStringList expected = {
            openedLine(), QStringLiteral("Failed to parse history, error field: '%1'").arg(word),
            QStringLiteral("Parse history file '%1' failed").arg(m_path)};
        QCOMPARE(log.lines(), expected);
        keepsCopy(history, content);
    }

    void missingListIsKept()
    {
        const QByteArray content = R"({"version":"1.0","projects":{}})";
        write(content);
        HistoryStore history(m_path, settings);
        QVERIFY(history.load());
        keepsCopy(history, content);
    }

    void keepsFileThatIsTooLarge()
    {
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.resize(HistoryStore::kMaximumFileSize + 1));
        file.close();
        HistoryStore history(m_path, settings);
        QVERIFY(!history.load());
        QVERIFY(history.save());
        QCOMPARE(QFileInfo(history.copyPath()).size(), HistoryStore::kMaximumFileSize + 1);
        QVERIFY(history.load());
    }

    void loadReplacesList()
    {
        HistoryStore history(m_path, settings);
        add(history, "saved");
        QVERIFY(history.save());
        add(history, "not saved");
        QVERIFY(history.load());
        QCOMPARE(namesIn(history), QStringLiteral("saved"));
        QFile missing(m_path);
        QVERIFY(missing.remove());
        QVERIFY(!missing.open(QIODevice::ReadOnly));
        const LogCapture log;
        QVERIFY(!history.load());
        QVERIFY(history.projects().empty());
        const QString line = QStringLiteral("Open file '%1' failed:'%2'");
        QCOMPARE(log.lines(), QStringList{line.arg(m_path, missing.errorString())});
    }

    void loadsOnAnotherThread()
    {
        HistoryStore history(m_path, settings);
        add(history, "a");
        QVERIFY(history.save());
        TaskThread thread;
        thread.add([&history]() -> TaskThread::Report {
            history.load();
            return [] {};
        });
        thread.finish();
        QCOMPARE(namesIn(history), QStringLiteral("a"));
        QCOMPARE(history.projects().front()->thread(), QThread::currentThread());
        QCOMPARE(history.projects().front()->items().first()->thread(), QThread::currentThread());
    }

    void savesLater()
    {
        HistoryStore history(m_path, settings);
        int answers = 0;
        const auto save = [&](QObject *context) {
            history.saveLater(context, [&](const QString &error) {
                QCOMPARE(error, QString());
                QCOMPARE(QThread::currentThread(), thread());
                ++answers;
            });
        };
        const ProjectFile *first = add(history, "first");
        save(this);
        {
            QObject context;
            save(&context);
        }
        history.take(first); // It may be in the midst of being written.
        add(history, "second");
        save(this);
        history.clear(); // Not saved.
        QTRY_COMPARE(answers, 2);
        QVERIFY(history.load());
        QCOMPARE(namesIn(history), QStringLiteral("second"));

        history.clear();
        save(this);
        add(history, "third");
        QVERIFY(history.save());
        QVERIFY(history.load());
        QCOMPARE(namesIn(history), QStringLiteral("third"));
    }

    void failureOfSavingLater()
    {
        QVERIFY(QDir().mkpath(m_path));
        HistoryStore history(m_path, settings);
        QStringList errors;
        const LogCapture log;
        history.saveLater(this, [&errors](const QString &error) { errors.append(error); });
        QTRY_COMPARE(errors.size(), 1);
        QVERIFY(!errors.first().isEmpty());
        QCOMPARE(
            log.lines(QtCriticalMsg),
            QStringList{QStringLiteral("Save file '%1' failed:'%2'").arg(m_path, errors.first())});
    }

    void endWaitsForSaving()
    {
        {
            HistoryStore history(m_path, settings);
            for (const char *name : {"a", "b"}) {
                add(history, name);
                history.saveLater(this, [](const QString &) { QFAIL("The store is gone."); });
            }
        }
        HistoryStore loaded(m_path, settings);
        QVERIFY(loaded.load());
        QCOMPARE(namesIn(loaded), QStringLiteral("a, b"));
        QCoreApplication::processEvents();
    }

    void takesProjectsOut()
    {
        HistoryStore history(m_path, settings);
        add(history, "a");
        const ProjectFile *b = add(history, "b");
        add(history, "c");
        QCOMPARE(history.take(b).get(), b);
        QCOMPARE(namesIn(history), QStringLiteral("a, c"));
        QVERIFY(!history.take(b));
        QVERIFY(!history.take(nullptr));
    }

    void longHistory()
    {
        constexpr int kProjects = 2000;
        constexpr int kSlides = 100;
        const auto project = projectNamed(QStringLiteral("long"));
        project->addFiles(
            QVector<QString>(kSlides - 1, QStringLiteral("/home/me/Trip 2026/1.jpg")).toList(), 3,
            1);
        QJsonObject document;
        project->toJson(document);
        const QByteArray text = QJsonDocument(document).toJson(QJsonDocument::Compact);
        HistoryStore history(m_path, settings);
        QVERIFY(history.loadContent(R"({"version":"1.0","projects":[)" +
                                    (text + ',').repeated(kProjects - 1) + text + "]}"));
        QCOMPARE(history.projects().size(), static_cast<size_t>(kProjects));
        for (const auto &loaded : history.projects())
            QCOMPARE(loaded->items().size(), kSlides);
    }

private:
    QString openedLine() const { return QStringLiteral("Open history file '%1' [OK]").arg(m_path); }

    void write(const QByteArray &content) const
    {
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
    }

    /// Whatever is saved after @p content was loaded, that file itself stays as a copy.
    void keepsCopy(HistoryStore &history, const QByteArray &content) const
    {
        const QString loaded = namesIn(history);
        QFile copy(history.copyPath());
        QVERIFY(!copy.exists());
        for (const char *name : {"first", "second"}) {
            add(history, name);
            QVERIFY(history.save());
        }
        QVERIFY(copy.open(QIODevice::ReadOnly));
        QCOMPARE(copy.readAll(), content);
        QVERIFY(history.load());
        const QString added = QStringLiteral("first, second");
        QCOMPARE(namesIn(history),
                 loaded.isEmpty() ? added : loaded + QStringLiteral(", ") + added);
        QCOMPARE(fileContent().size(), 2); // Nothing of the older file remains.
    }

    QJsonObject fileContent() const
    {
        QFile file(m_path);
        return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                              : QJsonObject();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

QTEST_GUILESS_MAIN(HistoryStoreTest)
#include "HistoryStoreTest.moc"
