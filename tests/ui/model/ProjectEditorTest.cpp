// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/model/ProjectEditor.h"
#include "app/AppSettings.h"
#include "project/documents/ProjectFile.h"
#include "project/slides/ProjectItemFirst.h"
#include "project/slides/ProjectItemSimple.h"
#include "ui/model/PhotoImporter.h"
#include "ui/model/ValueLists.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUndoStack>

#include <functional>

using namespace velmora;

using Edit = std::function<void(ProjectEditor &, const ProjectEditor::Slides &)>;
Q_DECLARE_METATYPE(Edit)
Q_DECLARE_METATYPE(velmora::QPopupButton::Values)

class ProjectEditorTest : public QObject
{
    Q_OBJECT

private:
    QJsonObject document() const
    {
        QJsonObject object;
        m_project->toJson(object);
        return object;
    }

    QStringList names() const
    {
        QStringList names;
        for (const ProjectItem *slide : m_project->items())
            names.append(slide->title());
        return names;
    }

    static QStringList photos(const QString &letters)
    {
        QStringList paths;
        for (const QChar letter : letters)
            paths.append(QStringLiteral("/p/") + letter + QStringLiteral(".jpg"));
        return paths;
    }

    AppSettings m_settings;
    std::unique_ptr<ProjectFile> m_project;
    std::unique_ptr<ProjectEditor> m_editor;

private slots:
    void init()
    {
        m_settings = AppSettings();
        m_project = std::make_unique<ProjectFile>(m_settings, ProjectFile::TitleSlide::Create);
        m_project->addFiles(photos(QStringLiteral("abcd")), 3, 1);
        m_project->setAudio({{{QStringLiteral("/m/1.mp3"), QStringLiteral("0:01:00")},
                              {QStringLiteral("/m/2.mp3"), QStringLiteral("0:02:00")}},
                             0});
        m_editor = std::make_unique<ProjectEditor>(m_settings);
        m_editor->setProject(m_project.get());
    }

    void cleanup()
    {
        m_editor.reset();
        m_project.reset();
    }

    void everyEditCanBeUndoneAndRedone_data()
    {
        using S = ProjectEditor::Slides;
        QTest::addColumn<Edit>("edit");
        const auto row = [](const char *name, const Edit &edit) { QTest::newRow(name) << edit; };
        row("add", [](auto &e, auto &) { e.addPhotos({QStringLiteral("/p/x.png")}, 2); });
        row("remove", [](auto &e, auto &s) { e.removeSlides({s[1], s[3]}); });
        row("remove all", [](auto &e, auto &s) { e.removeSlides(s); });
        row("move", [](auto &e, auto &s) { e.moveSlides({s[1], s[3]}, 5); });
        row("order", [](auto &e, auto &s) { e.setOrder(S{s[0], s[4], s[3], s[2], s[1]}, "Sort"); });
        row("time", [](auto &e, auto &s) { e.setTime(s, 7); });
        row("transition", [](auto &e, auto &s) { e.setTransition(s, 27); });
        row("rotate", [](auto &e, auto &s) { e.rotate({s[2]}, -90); });
        row("caption", [](auto &e, auto &s) {
            CaptionStyle caption;
            caption.text = QStringLiteral("Hello");
            caption.position = 2;
            e.setCaption({s[1], s[2]}, caption);
        });
        row("title", [](auto &e, auto &) { e.setTitleSlide(5, false); });
        row("relocate", [](auto &e, auto &s) { e.relocate(s[1], QStringLiteral("/q/n.jpg")); });
        row("add audio", [](auto &e, auto &) {
            e.addAudio({{QStringLiteral("/m/3.mp3"), QStringLiteral("0:00:03")}}, 1);
        });
        row("remove audio", [](auto &e, auto &) { e.removeAudio({0}); });
        row("move audio", [](auto &e, auto &) { e.moveAudio(0, 1); });
        row("offset", [](auto &e, auto &) { e.setAudioOffset(-3); });
        row("fade", [](auto &e, auto &) { e.setAudioFade(2); });
        row("loop", [](auto &e, auto &) { e.setAudioLoop(true); });
        row("resolution", [](auto &e, auto &) { e.setResolution({640, 480}); });
        row("format", [](auto &e, auto &) { e.setFormat(QStringLiteral("webm")); });
        row("ratio", [](auto &e, auto &) { e.setOrigRatio(false); });
        row("scale", [](auto &e, auto &) { e.setScaleToFit(false); });
        row("transition time", [](auto &e, auto &) { e.setTransitionSeconds(3); });
        row("name", [](auto &e, auto &) { e.setName(QStringLiteral("Holiday")); });
    }

    void everyEditCanBeUndoneAndRedone()
    {
        QFETCH(Edit, edit);
        const QJsonObject before = document();
        edit(*m_editor, m_project->items());
        const QJsonObject after = document();
        QVERIFY(after != before);
        QCOMPARE(m_editor->undoStack()->count(), 1);
        QVERIFY(m_editor->isModified());
        for (int round = 0; round < 2; ++round) {
            m_editor->undoStack()->undo();
            QCOMPARE(document(), before);
            QVERIFY(!m_editor->isModified());
            m_editor->undoStack()->redo();
            QCOMPARE(document(), after);
        }
    }

    void undoLeavesWhatOthersChanged()
    {
        m_editor->setResolution({640, 480});
        m_settings.transitionTime = 3;
        m_project->setName(QStringLiteral("Holiday"));
        m_editor->undoStack()->undo();
        QCOMPARE(m_settings.transitionTime, 3);
        QCOMPARE(m_project->name(), QStringLiteral("Holiday"));
    }

    void unchangedValuesAreNoSteps()
    {
        m_editor->setTime(m_project->items(), 3);
        m_editor->setResolution(m_project->resolution());
        m_editor->setResolution({0, 0});
        m_editor->moveSlides({m_project->items().at(1)}, 1);
        QCOMPARE(m_editor->undoStack()->count(), 0);
    }

    void photosGoToTheirRow_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("order");
        QTest::newRow("after row 2") << 3 << QStringLiteral("abxyzcd");
        QTest::newRow("end") << -1 << QStringLiteral("abcdxyz");
        QTest::newRow("title stays first") << 0 << QStringLiteral("xyzabcd");
        QTest::newRow("beyond") << 99 << QStringLiteral("abcdxyz");
    }

    void photosGoToTheirRow()
    {
        QFETCH(int, row);
        QFETCH(QString, order);
        m_editor->addPhotos(photos(QStringLiteral("xyz")), row);
        QString letters;
        for (const QString &name : names().mid(1))
            letters += name.left(1);
        QCOMPARE(letters, order);
    }

    void movedSlidesKeepTheirOrder()
    {
        const auto s = m_project->items();
        m_editor->moveSlides({s[4], s[1], s[0]}, 3);
        QCOMPARE(m_project->items(), (ProjectEditor::Slides{s[0], s[2], s[1], s[4], s[3]}));
    }

    void importFindsPhotosAndTellsWhatItRefuses()
    {
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("in/deep")));
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(Qt::blue);
        for (const char *name : {"in/img10.png", "in/img2.png", "in/deep/a.JPG"})
            QVERIFY(image.save(folder.filePath(QLatin1String(name))));
        for (const char *name : {"in/broken.jpg", "in/notes.txt", "letter.txt"}) {
            QFile file(folder.filePath(QLatin1String(name)));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("text");
        }
        PhotoImporter importer;
        PhotoImport result;
        int endings = 0;
        connect(&importer, &PhotoImporter::finished, this, [&](const PhotoImport &import) {
            result = import;
            ++endings;
        });
        QVERIFY(importer.start({folder.filePath(QStringLiteral("in")),
                                folder.filePath(QStringLiteral("letter.txt")),
                                folder.filePath(QStringLiteral("gone.png"))},
                               4));
        QVERIFY(!importer.start({}, 0));
        QTRY_COMPARE(endings, 1);
        QStringList found;
        for (const QString &path : qAsConst(result.photos))
            found.append(QFileInfo(path).fileName());
        found.sort();
        QCOMPARE(found, (QStringList{QStringLiteral("a.JPG"), QStringLiteral("img10.png"),
                                     QStringLiteral("img2.png")}));
        const auto place = [&](const char *name) {
            return result.photos.indexOf(folder.filePath(QLatin1String(name)));
        };
        QVERIFY(place("in/img2.png") < place("in/img10.png"));
        QCOMPARE(result.refused.size(), 3);
        QCOMPARE(result.row, 4);
        QVERIFY(!result.cancelled);
    }

    void valueListsAreComplete_data()
    {
        QTest::addColumn<QPopupButton::Values>("values");
        QTest::addColumn<QString>("texts");
        QTest::newRow("times") << ValueLists::slideTimes()
                               << QStringLiteral("1 sec,2 sec,3 sec,4 sec,5 sec,7 sec,10 sec,"
                                                 "15 sec,20 sec");
        QTest::newRow("transition lengths")
            << ValueLists::transitionLengths() << QStringLiteral("1 sec,2 sec,3 sec");
        QTest::newRow("fades") << ValueLists::fades()
                               << QStringLiteral("0 sec,1 sec,2 sec,3 sec,4 sec,5 sec");
        QTest::newRow("offsets") << ValueLists::offsets()
                                 << QStringLiteral("-10 sec,-7 sec,-5 sec,-4 sec,-3 sec,-2 sec,"
                                                   "-1 sec,0 sec,1 sec,2 sec,3 sec,4 sec,5 sec,"
                                                   "7 sec,10 sec");
        QTest::newRow("resolutions")
            << ValueLists::resolutions()
            << QStringLiteral("640x480,800x600,960x540,1024x768,1280x1024,1366x768,1600x900,"
                              "1600x1200,1920x1080,2560x1440,3840x2160");
        QTest::newRow("formats") << ValueLists::formats() << QStringLiteral(".mp4,.avi,.mov,.webm");
    }

    void valueListsAreComplete()
    {
        QFETCH(QPopupButton::Values, values);
        QFETCH(QString, texts);
        QStringList shown;
        for (const auto &value : values)
            shown.append(value.first);
        QCOMPARE(shown.join(QLatin1Char(',')), texts);
    }

    void transitionsStandInMenuOrder()
    {
        QVector<int> expected = {0, 1, 27, 26, 28};
        for (int type = 2; type <= 25; ++type)
            expected.append(type);
        QVector<int> types;
        for (const auto &value : ValueLists::transitions())
            types.append(value.second.toInt());
        QCOMPARE(types, expected);
        QCOMPARE(ValueLists::transitions().at(2).first, QStringLiteral("Cross fade"));
        QCOMPARE(ValueLists::transitions().last().first, QStringLiteral("Slide From Top Left"));
    }

    void durationsAreTexts()
    {
        QCOMPARE(ValueLists::durationText(3725999), QStringLiteral("1:02:05"));
        QCOMPARE(ValueLists::durationText(-5), QStringLiteral("0:00:00"));
    }
};

QTEST_MAIN(ProjectEditorTest)
#include "ProjectEditorTest.moc"
