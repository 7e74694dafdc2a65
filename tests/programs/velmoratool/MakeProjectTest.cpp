// SPDX-License-Identifier: GPL-3.0-or-later
#include "programs/velmoratool/MakeProject.h"
#include "helpers/RenderFixture.h"
#include "programs/velmoratool/InputFiles.h"
#include "project/images/Pictures.h"
#include "project/slides/ProjectItemFirst.h"
#include "project/slides/ProjectItemSimple.h"

#include <QtTest>

using namespace velmora;

class MakeProjectTest : public QObject
{
    Q_OBJECT
private slots:
    void ordersPhotos_data()
    {
        QTest::addColumn<int>("order");
        QTest::addColumn<QString>("names");
        QTest::newRow("given") << int(MakeOptions::Order::Given) << "z 2 10 x";
        QTest::newRow("name") << int(MakeOptions::Order::Name) << "2 10 x z";
        QTest::newRow("date") << int(MakeOptions::Order::Date) << "10 z 2 x";
    }
    void ordersPhotos()
    {
        QFETCH(int, order);
        QDir().mkpath(m_fixture.path(QStringLiteral("folder")));
        const QString z = datedPhoto(QStringLiteral("z.jpg"), 1, "2020:05:01 08:00:00");
        datedPhoto(QStringLiteral("folder/10.jpg"), 2, "2019:12:31 23:59:59");
        datedPhoto(QStringLiteral("folder/2.JPG"), 3, "2020:05:01 08:00:01");
        m_fixture.file(QStringLiteral("folder/notes.txt"), "no photo");
        const QString x = m_fixture.photo(QStringLiteral("x.png"), 4); // only its file's time
        QStringList errors;
        const QStringList files =
            InputFiles::photos({z, m_fixture.path(QStringLiteral("folder")), x},
                               static_cast<MakeOptions::Order>(order), &errors);
        QCOMPARE(errors, QStringList());
        QStringList found;
        for (const QString &file : files) {
            QVERIFY(QFileInfo(file).isAbsolute());
            found << QFileInfo(file).completeBaseName();
        }
        QTEST(found.join(QLatin1Char(' ')), "names");
    }

    // Captions go by the photos' places, so a link that is no photo must not take one.
    void linksCountAsTheirTargets()
    {
        const QString folder = m_fixture.path(QStringLiteral("links/"));
        QDir().mkpath(folder);
        const QString notes = m_fixture.file(QStringLiteral("notes.txt"), "text");
        const QString photo = m_fixture.photo(QStringLiteral("target.png"), 1);
        // Only files that are called so are links on Windows.
        const bool windows = QSysInfo::productType() == QLatin1String("windows");
        const QLatin1String suffix(windows ? ".lnk" : ".jpg");
        QVERIFY(QFile::link(notes, folder + QStringLiteral("a no photo") + suffix));
        QVERIFY(QFile::link(photo, folder + QStringLiteral("b photo.lnk")));
        QVERIFY(QFile::link(photo, folder + QStringLiteral("c photo") + suffix));
        MakeOptions options;
        options.photos << folder;
        options.captionsFromNames = true;
        const ProjectFile *project = build(options);
        QVERIFY(project);
        QCOMPARE(project->items().size(), 3);
        QCOMPARE(project->items().at(1)->caption().text, QStringLiteral("b photo"));
        QCOMPARE(project->items().at(2)->caption().text, QStringLiteral("c photo"));
    }

    void namesEveryUnusableFile()
    {
        QDir().mkpath(m_fixture.path(QStringLiteral("empty")));
        MakeOptions options;
        options.photos = QStringList{m_fixture.path(QStringLiteral("gone 100%1.jpg")),
                                     m_fixture.file(QStringLiteral("text.txt"), "text"),
                                     m_fixture.path(QStringLiteral("empty"))};
        options.music = QStringList{m_fixture.path(QStringLiteral("gone.mp3"))};
        options.output = m_fixture.output(QStringLiteral("video.mp4"));
        const RenderError error = MakeProject(options, m_fixture.settings).build();
        QCOMPARE(error.code, QString(RenderErrorCode::kInput));
        const QStringList lines = error.text.split(QLatin1Char('\n'));
        const QStringList files = options.photos + options.music;
        QCOMPARE(lines.size(), files.size());
        for (int i = 0; i < files.size(); ++i)
            QVERIFY2(lines.at(i).contains(files.at(i)), qPrintable(lines.at(i)));
    }

    void optionsWinAndSettingsFillGaps()
    {
        AppSettings &settings = m_fixture.settings;
        settings.defaultTime = 9;
        settings.defaultTransition = 12;
        settings.transitionTime = 4;
        settings.audioFade = 6;
        settings.audioOffset = -2;
        settings.resolution = QSize(1600, 900);
        settings.speedGeneration = true;
        settings.outputProfile = QStringLiteral("everywhere");
        const auto made = [this](const MakeOptions &options) {
            const ProjectFile *project = build(options);
            if (!project)
                return QVariantList();
            const auto *slide = qobject_cast<ProjectItemSimple *>(project->items().at(1));
            return QVariantList{slide->time(),
                                slide->transition(),
                                m_request.transitionSeconds,
                                project->audioFade(),
                                project->audio().offset,
                                project->resolution(),
                                m_request.parallel,
                                outputProfileKey(m_request.profile)};
        };
        QCOMPARE(made({}), (QVariantList{9, 12, 4, 6, -2, QSize(1600, 900), true,
                                         QStringLiteral("everywhere")}));
        MakeOptions options;
        options.time = 7;
        options.transition = 27;
        options.transitionSeconds = 1;
        options.fade = 3;
        options.offset = 5;
        options.loop = true;
        options.size = QSize(320, 180);
        options.profile = OutputProfile::OriginalQuality;
        options.music << m_fixture.sound(QStringLiteral("tone.wav"), 2);
        options.output = m_fixture.output(QStringLiteral("Two words.WebM"));
        QCOMPARE(made(options),
                 (QVariantList{7, 27, 1, 3, 5, QSize(320, 180), true, QStringLiteral("original")}));
        settings = AppSettings();
        options.parallel = true;
        const ProjectFile *project = build(options);
        QVERIFY(m_request.parallel && project->audioLoop());
        QCOMPARE(project->audio().items.size(), 1);
        QCOMPARE(project->audio().items.first().duration, QStringLiteral("0:00:02"));
        QCOMPARE(project->name(), QStringLiteral("Two words"));
        QCOMPARE(project->format(), QStringLiteral("webm"));
        QCOMPARE(project->fileName(), options.output);
        // Photos are scaled to fit, unless they shall be stretched or keep their size.
        QVERIFY(project->origRatio() && project->scaleToFit());
        options.stretch = true;
        project = build(options);
        QVERIFY(!project->origRatio() && !project->scaleToFit());
        options.stretch = false;
        options.originalSize = true;
        project = build(options);
        QVERIFY(project->origRatio() && !project->scaleToFit());
    }

    void titleSlideIsHiddenWithoutTitle()
    {
        const ProjectFile *project = build({});
        QVERIFY(project);
        QVERIFY(qobject_cast<ProjectItemFirst *>(project->items().value(0)));
        QVERIFY(!project->items().first()->isShown());

        MakeOptions options;
        options.title = QStringLiteral("Our trip");
        project = build(options);
        QVERIFY(project);
        QVERIFY(project->items().first()->isShown());
        QCOMPARE(project->items().first()->caption().text, options.title);
    }

    void captions_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("caption");
        const auto row = [](const char *path, const char *caption) {
            QTest::newRow(path) << QString::fromUtf8(path) << QString::fromUtf8(caption);
        };
        row("/photos/Dawn over the ridges.jpg", "Dawn over the ridges");
        row("in_the_alps.JPEG", "in the alps");
        row("__two__words__.png", "two words");
        row("1.5 million.tar.png", "1.5 million.tar");
        row("/with.dot/Käse 100%1.png", "Käse 100%1");
        row("/photos/.png", "");
    }
    void captions()
    {
        QFETCH(QString, path);
        QTEST(captionFromName(path), "caption");
    }

    void projectKeepsItsOwn()
    {
        MakeOptions options;
        options.transitionSeconds = 5;
        options.time = 8;
        options.captionsFromNames = true;
        options.photos << m_fixture.photo(QStringLiteral("a_b.png"), 1);
        QVERIFY(build(options));
        const QString saved = m_fixture.path(QStringLiteral("saved.json"));
        QVERIFY(m_request.project->saveToFile(saved));

        MakeOptions again;
        again.projectFile = saved;
        again.size = QSize(64, 48);
        again.output = m_fixture.output(QStringLiteral("other.avi"));
        const ProjectFile *project = build(again);
        QVERIFY(project);
        QCOMPARE(m_request.transitionSeconds, 5);
        QCOMPARE(m_make->settings().transitionTime, 5);
        QCOMPARE(project->name(), QStringLiteral("video"));
        QCOMPARE(project->fileName(), again.output);
        QCOMPARE(project->format(), QStringLiteral("avi"));
        QCOMPARE(project->resolution(), QSize(64, 48));
        QCOMPARE(project->items().value(1)->time(), 8);
        QCOMPARE(project->items().value(1)->caption().text, QStringLiteral("a b"));
    }

    void howToMakeAProject_data()
    {
        QTest::addColumn<bool>("named");
        QTest::newRow("as the document says") << false;
        QTest::newRow("as the options say") << true;
    }

    // The options win, and what comes out is what a document written from it says again.
    void howToMakeAProject()
    {
        QFETCH(bool, named);
        QVERIFY(build({}));
        const QString saved = m_fixture.path(QStringLiteral("made.json"));
        AppSettings made;
        made.outputProfile = QStringLiteral("everywhere");
        made.speedGeneration = !named;
        QString error;
        QVERIFY(RenderRequest::save(*m_request.project, made, saved, &error));

        MakeOptions options;
        options.projectFile = saved;
        if (named) {
            options.profile = OutputProfile::OriginalQuality;
            options.parallel = true;
        }
        for (int round = 0; round < 2; ++round) {
            QVERIFY(build(options));
            QCOMPARE(m_request.profile == OutputProfile::OriginalQuality, named);
            QVERIFY(m_request.parallel);
            QVERIFY(RenderRequest::save(*m_request.project, m_make->settings(), saved, &error));
            options.profile.reset();
            options.parallel = false;
        }
    }

private:
    QString datedPhoto(const QString &name, int variant, const char *taken) const
    {
        const QString path = m_fixture.photo(name, variant);
        Pictures::setExif(path, "Exif.Photo.DateTimeOriginal", taken);
        return path;
    }

    /// The project of @p options; null if they cannot be used.
    ProjectFile *build(MakeOptions options)
    {
        if (options.photos.isEmpty() && options.projectFile.isEmpty())
            options.photos << m_fixture.photo(QStringLiteral("only.png"), 1);
        if (options.output.isEmpty())
            options.output = m_fixture.output(QStringLiteral("video.mp4"));
        m_request = {};
        m_make = std::make_unique<MakeProject>(options, m_fixture.settings);
        const RenderError error = m_make->build();
        if (error.isSet())
            qWarning() << error.text;
        m_request = m_make->takeRequest();
        return m_request.project.get();
    }

    RenderFixture m_fixture;
    std::unique_ptr<MakeProject> m_make;
    RenderRequest m_request;
};

QTEST_MAIN(MakeProjectTest)
#include "MakeProjectTest.moc"
