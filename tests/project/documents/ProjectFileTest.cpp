// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/documents/ProjectFile.h"

#include "app/AppSettings.h"
#include "project/slides/ProjectItemFirst.h"
#include "project/slides/ProjectItemSimple.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

using namespace velmora;

namespace
{

AppSettings testSettings()
{
    AppSettings settings;
    settings.defaultTime = 9;
    settings.transitionTime = 3;
    settings.audioFade = 4;
    settings.scaleToFit = false;
    settings.origRatio = true;
    settings.resolution = QSize(1366, 768);
    return settings;
}

const AppSettings settings = testSettings();

const QByteArray kDocument = R"({
    "name": "Ostsee", "file_name": "/videos/Ostsee.mp4", "format": "mp4",
    "resolution": "1280x720", "orig_ratio": false, "scale_to_fit": true,
    "audio": {"offset": -5, "loop": true, "fade": 2, "files": [
        {"file_name": "/music/b.mp3", "duration": "0:03:12"},
        {"file_name": "/music/a.ogg", "duration": "0:00:59"}]},
    "images": [
        {"type": "starter", "visible": false, "bg_index": 7, "time": 4, "angle": 0,
         "text": {"text": "Titel", "font": "Segoe UI", "text_color": "#5370a7", "position": 1,
                  "transition": 11, "changed": true}},
        {"type": "image", "file_name": "/photos/1.jpg", "transition": 12, "time": 3, "angle": 270,
         "text": {"text": "", "font": "Noto Sans", "text_color": "#ffffff",
                  "bg_color": "#000000", "position": 8, "transition": 27, "changed": false}}],
    "transition_time": 3})";

QJsonObject parse(const QByteArray &text)
{
    QJsonParseError error;
    const QJsonObject object = QJsonDocument::fromJson(text, &error).object();
    if (error.error != QJsonParseError::NoError)
        qFatal("Faulty test document: %s", text.constData());
    return object;
}

QJsonObject documentOf(const ProjectFile &project)
{
    QJsonObject object;
    project.toJson(object);
    return object;
}

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("Cannot write %s", qPrintable(path));
}

} // namespace

class ProjectFileTest : public QObject
{
    Q_OBJECT
private slots:
    void takesDefaultsFromSettings()
    {
        const ProjectFile project(settings, ProjectFile::TitleSlide::Create);
        QCOMPARE(project.items().size(), 1);
        QVERIFY(qobject_cast<ProjectItemFirst *>(project.items().first()));
        QCOMPARE(project.items().first()->time(), 9);
        const ProjectFile empty(settings, ProjectFile::TitleSlide::Omit);
        QCOMPARE(documentOf(empty), parse(R"({
            "name": "New project", "file_name": "", "format": "mkv", "resolution": "1366x768",
            "orig_ratio": true, "scale_to_fit": false, "transition_time": 3, "images": [],
            "audio": {"offset": 0, "loop": false, "fade": 4, "files": []}})"));
    }

    void defaultNameIsOfNoLanguage_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("own");
        QTest::newRow("of a new project") << ProjectFile::defaultName() << false;
        QTest::newRow("of a German one") << QStringLiteral("Neues Projekt") << false;
        QTest::newRow("of a Russian one") << QString::fromUtf8("Новый проект") << false;
        QTest::newRow("blank") << QStringLiteral(" ") << false;
        QTest::newRow("own") << QStringLiteral("Neues Projekt 2") << true;
    }
    void defaultNameIsOfNoLanguage()
    {
        QFETCH(QString, name);
        ProjectFile project(settings, ProjectFile::TitleSlide::Omit);
        project.setName(name);
        QTEST(project.hasOwnName(), "own");
        QCOMPARE(project.shownName(), project.hasOwnName() ? name : QStringLiteral("New project"));
        QCOMPARE(project.name(), name);
    }

    void documentForm()
    {
        const auto project = ProjectFile::fromJson(parse(kDocument), settings);
        QVERIFY(project);
        QCOMPARE(project->fileName(), QStringLiteral("/videos/Ostsee.mp4"));
        QCOMPARE(project->resolution(), QSize(1280, 720));
        QVERIFY(!project->origRatio());
        QVERIFY(project->scaleToFit());
        QCOMPARE(project->audio().offset, -5);
        QVERIFY(project->audioLoop());
        QCOMPARE(project->audioFade(), 2);
        QCOMPARE(project->audio().items.at(1).duration, QStringLiteral("0:00:59"));
        QCOMPARE(documentOf(*project), parse(kDocument));
    }

    void roundTripThroughFile()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("Ostsee 'ü' %1.json"));
        const auto project = ProjectFile::fromJson(parse(kDocument), settings);
        QVERIFY(project->saveToFile(path));

        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY2(file.readAll().contains("\n    \"name\": \"Ostsee\""), "it is indented");

        QString error;
        const auto read = ProjectFile::loadFromFile(path, settings, &error);
        QVERIFY2(read, qPrintable(error));
        QCOMPARE(documentOf(*read), parse(kDocument));
    }

    void transitionTimeIsReadWhenWritten()
    {
        AppSettings changing;
        QJsonObject document = parse(kDocument);
        document.insert(QStringLiteral("transition_time"), 77);
        const auto project = ProjectFile::fromJson(document, changing);
        for (const int seconds : {1, 2}) {
            changing.transitionTime = seconds;
            QCOMPARE(documentOf(*project).value(QStringLiteral("transition_time")).toInt(),
                     seconds);
        }
    }

    void missingAudioReadsAsEmpty()
    {
        QJsonObject document = parse(kDocument);
        document.remove(QStringLiteral("audio"));
        const auto project = ProjectFile::fromJson(document, settings);
        QVERIFY(project);
        QCOMPARE(documentOf(*project).value(QStringLiteral("audio")).toObject(),
                 parse(R"({"offset": 0, "loop": false, "fade": 0, "files": []})"));
    }

    void faultyDocuments_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QString>("word");
        const QString resolution = QStringLiteral("resolution");
        QTest::newRow("empty") << QByteArray("{}") << resolution;
        for (const char *text :
             {"\"1280x\"", "\"abc\"", "\"x720\"", "\"0x0\"", "\"-5x20\"", "\"1280X720\"",
              "\"1280x720x3\"", "\"99999999999x1\"", "1280", "null", "[1280,720]"})
            QTest::newRow(text) << QByteArray("{\"resolution\":") + text + "}" << resolution;
        const QString image = QStringLiteral("Failed load image info");
        for (const char *text : {R"({"type":"video"})", "{}", "7", "null", R"("image")",
                                 R"({"type":"image"},{"type":"Image"})", R"({"type":1})"})
            QTest::newRow(text) << QByteArray(R"({"resolution":"64x64","images":[)") + text + "]}"
                                << image;
    }

    void faultyDocuments()
    {
        QFETCH(QByteArray, document);
        QFETCH(QString, word);
        QStringList errors;
        QVERIFY(!ProjectFile::fromJson(parse(document), settings, &errors));
        QCOMPARE(errors, QStringList{word});
        QVERIFY(!ProjectFile::fromJson(parse(document), settings));
    }

    void hostileDocuments_data()
    {
        QTest::addColumn<QByteArray>("document");
        const QByteArray start = R"({"resolution":"64x64",)";
        for (const char *value :
             {"null", "1e300", "-1e300", "\"x\"", "true", "[[[]]]", "[null]", R"({"files":{}})",
              R"({"files":[1,null,"x",[]]})", R"({"offset":1e300,"fade":-1e300,"loop":"yes"})"})
            QTest::addRow("audio %s", value) << start + "\"audio\":" + value + "}";
        for (const char *value : {"null", "1", "\"x\"", "{}", R"({"0":{"type":"image"}})"})
            QTest::addRow("images %s", value) << start + "\"images\":" + value + "}";
        QTest::newRow("texts of wrong types")
            << start + R"("name":[],"file_name":{},"format":5,"orig_ratio":"a","scale_to_fit":1})";
        QTest::newRow("doubled keys") << start + R"("name":"a","name":"b","resolution":"32x32"})";
        QTest::newRow("deep") << start + "\"audio\":" + QByteArray(1000, '[') +
                                     QByteArray(1000, ']') + "}";
        QTest::newRow("zero bytes") << start + R"("name":"a\u0000b","file_name":"\ud800"})";
        QTest::newRow("long text") << start + "\"name\":\"" + QByteArray(5000000, 'x') + "\"}";
    }

    /// Whatever can be read is written in a form that reads the same.
    void hostileDocuments()
    {
        QFETCH(QByteArray, document);
        const auto project = ProjectFile::fromJson(parse(document), settings);
        QVERIFY(project);
        const QJsonObject written = documentOf(*project);
        const auto again = ProjectFile::fromJson(written, settings);
        QVERIFY(again);
        QCOMPARE(documentOf(*again), written);
    }

    void unreadableFiles_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("resolution=1280x720");
        QTest::newRow("cut") << kDocument.left(kDocument.size() / 2);
        QTest::newRow("array") << QByteArray("[1,2]");
        QTest::newRow("no project") << QByteArray("{\"a\":1}");
        QTest::newRow("broken UTF-8") << QByteArray("{\"name\":\"\xc3\x28\xff\"}");
        QTest::newRow("zeros") << QByteArray(5000, '\0');
        QTest::newRow("too deep") << QByteArray(100000, '[');
        QTest::newRow("deep objects") << QByteArray("{\"a\":").repeated(100000);
    }

    void unreadableFiles()
    {
        QFETCH(QByteArray, content);
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("a.json"));
        writeFile(path, content);
        for (const QString &unreadable : {path, path + QLatin1Char('x'), folder.path()}) {
            QString error;
            QVERIFY(!ProjectFile::loadFromFile(unreadable, settings, &error));
            QVERIFY(!error.isEmpty());
        }
    }

    void tooLargeFileIsRefused()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("a.json"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        // A sparse file: nothing of that size is really written.
        QVERIFY(file.resize(ProjectFile::kMaximumFileSize + 1));
        QString error;
        QVERIFY(!ProjectFile::loadFromFile(path, settings, &error));
        QCOMPARE(error, QStringLiteral("The file is larger than 100 MB."));
    }

    void tooManySlidesAreRefused()
    {
        QJsonArray images;
        for (int i = 0; i <= ProjectFile::kMaximumItems; ++i)
            images.append(QJsonObject{{QStringLiteral("type"), QStringLiteral("image")}});
        QJsonObject document{{QStringLiteral("resolution"), QStringLiteral("64x64")},
                             {QStringLiteral("images"), images}};
        QStringList errors;
        QVERIFY(!ProjectFile::fromJson(document, settings, &errors));
        QCOMPARE(errors, QStringList{QStringLiteral("images")});
        images.removeLast();
        document.insert(QStringLiteral("images"), images);
        QVERIFY(ProjectFile::fromJson(document, settings));
    }
};

QTEST_GUILESS_MAIN(ProjectFileTest)
#include "ProjectFileTest.moc"
