// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/model/ProjectEditor.h"
#include "app/AppSettings.h"
#include "helpers/Files.h"
#include "project/documents/ProjectFile.h"
#include "ui/model/PhotoImporter.h"
#include "ui/model/ValueLists.h"

#include <QUndoStack>
#include <QtTest>

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

    /// The first letters of the photos' names.
    QString letters() const
    {
        QString letters;
        for (const ProjectItem *slide : m_project->items().mid(1))
            letters += slide->title().at(0);
        return letters;
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
        QTest::newRow("after row 2") << 3 << "abxyzcd";
        QTest::newRow("end") << -1 << "abcdxyz";
        QTest::newRow("title stays first") << 0 << "xyzabcd";
        QTest::newRow("beyond") << 99 << "abcdxyz";
    }
    void photosGoToTheirRow()
    {
        QFETCH(int, row);
        m_editor->addPhotos(photos(QStringLiteral("xyz")), row);
        QTEST(letters(), "order");
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
        const auto path = [&](const char *name) { return folder.filePath(QLatin1String(name)); };
        QVERIFY(QDir().mkpath(path("in/deep")));
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(Qt::blue);
        for (const char *name : {"in/img10.png", "in/img2.png", "in/deep/a.JPG"})
            QVERIFY(image.save(path(name)));
        for (const char *name : {"in/broken.jpg", "in/notes.txt", "letter.txt"})
            QVERIFY(writeFile(path(name), "text"));
        PhotoImporter importer;
        PhotoImport result;
        int endings = 0;
        connect(&importer, &PhotoImporter::finished, this, [&](const PhotoImport &import) {
            result = import;
            ++endings;
        });
        QVERIFY(importer.start({path("in"), path("letter.txt"), path("gone.png")}, 4));
        QVERIFY(!importer.start({}, 0));
        QTRY_COMPARE(endings, 1);
        QCOMPARE(result.photos,
                 QStringList({path("in/img2.png"), path("in/img10.png"), path("in/deep/a.JPG")}));
        QCOMPARE(result.refused.size(), 3);
        QCOMPARE(result.row, 4);
        QVERIFY(!result.cancelled);
    }

    void valueListsAreComplete_data()
    {
        QTest::addColumn<QPopupButton::Values>("values");
        QTest::addColumn<QString>("texts"); // in seconds, where they are times
        QTest::newRow("times") << ValueLists::slideTimes() << "1,2,3,4,5,7,10,15,20";
        QTest::newRow("transition lengths") << ValueLists::transitionLengths() << "1,2,3";
        QTest::newRow("fades") << ValueLists::fades() << "0,1,2,3,4,5";
        QTest::newRow("offsets") << ValueLists::offsets()
                                 << "-10,-7,-5,-4,-3,-2,-1,0,1,2,3,4,5,7,10";
        QTest::newRow("resolutions") << ValueLists::resolutions()
                                     << "640x480,800x600,960x540,1024x768,1280x1024,1366x768,"
                                        "1600x900,1600x1200,1920x1080,2560x1440,3840x2160";
        QTest::newRow("formats") << ValueLists::formats() << ".mp4,.avi,.mov,.webm";
    }
    void valueListsAreComplete()
    {
        QFETCH(QPopupButton::Values, values);
        QStringList shown;
        for (const auto &value : values)
            shown.append(value.second.type() == QVariant::Int
                             ? value.first.section(QStringLiteral(" sec"), 0, 0)
                             : value.first);
        QTEST(shown.join(QLatin1Char(',')), "texts");
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
