// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppSettings.h"
#include "helpers/LogCapture.h"
#include "project/documents/ProjectFile.h"
#include "project/slides/ProjectItemSimple.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace velmora;

namespace
{

const AppSettings settings;

/// Photo slides named by one letter each.
std::unique_ptr<ProjectFile> projectOf(const char *letters)
{
    auto project = std::make_unique<ProjectFile>(settings, ProjectFile::TitleSlide::Omit);
    for (const QChar letter : QString::fromLatin1(letters))
        project->insertItem(-1, new ProjectItemSimple(letter, 1, 0));
    return project;
}

QString lettersOf(const ProjectFile &project)
{
    QString letters;
    for (const ProjectItem *item : project.items())
        letters += item->title();
    return letters;
}

} // namespace

/// The order of a project's slides.
class ProjectSlidesTest : public QObject
{
    Q_OBJECT
private slots:
    void movesSlides_data()
    {
        QTest::addColumn<int>("item");
        QTest::addColumn<int>("anchor");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        const auto row = [](int item, int anchor, const char *before, const char *after) {
            QTest::addRow("%d to %d", item, anchor) << item << anchor << before << after;
        };
        row(0, 3, "bcad", "bcda");
        row(3, 0, "dabc", "adbc");
        row(1, 2, "abcd", "acbd");
        row(2, 1, "acbd", "abcd");
        row(2, 2, "abcd", "abcd");
    }

    void movesSlides()
    {
        QFETCH(int, item);
        QFETCH(int, anchor);
        const LogCapture log;
        const auto project = projectOf("abcd");
        project->moveItemBefore(project->items().at(item), project->items().at(anchor));
        QTEST(lettersOf(*project), "before");

        const auto other = projectOf("abcd");
        other->moveItemAfter(other->items().at(item), other->items().at(anchor));
        QTEST(lettersOf(*other), "after");

        const QString line = QStringLiteral("move item \"%1\" from %2 %4 %3")
                                 .arg(QLatin1Char("abcd"[item]))
                                 .arg(item)
                                 .arg(anchor);
        const QStringList expected = {line.arg(QStringLiteral("before")),
                                      line.arg(QStringLiteral("after"))};
        QCOMPARE(log.lines(), item == anchor ? QStringList() : expected);
    }

    void foreignSlidesAreNotMovedOrTaken()
    {
        const auto project = projectOf("abc");
        ProjectItemSimple stranger(QStringLiteral("x"), 1, 0);
        project->moveItemBefore(&stranger, project->items().at(0));
        project->moveItemAfter(project->items().at(0), &stranger);
        project->moveItemAfter(nullptr, project->items().at(0));
        QVERIFY(!project->takeItem(&stranger));
        QVERIFY(!project->takeItem(nullptr));
        QCOMPARE(lettersOf(*project), QStringLiteral("abc"));
    }

    void takenSlideBelongsToCaller()
    {
        auto project = projectOf("abc");
        ProjectItem *b = project->items().at(1);
        QCOMPARE(project->takeItem(b), b);
        QCOMPARE(lettersOf(*project), QStringLiteral("ac"));
        project->insertItem(0, new ProjectItemSimple(QStringLiteral("0"), 1, 0));
        project->insertItem(99, new ProjectItemSimple(QStringLiteral("9"), 1, 0));
        QCOMPARE(lettersOf(*project), QStringLiteral("0ac9"));
        project.reset();
        QCOMPARE(b->title(), QStringLiteral("b"));
        delete b;
    }

    void addsPhotosOnly()
    {
        ProjectFile project(settings, ProjectFile::TitleSlide::Create);
        const QStringList paths = {QStringLiteral("/p/b.JPG"), QStringLiteral("/p/notes.txt"),
                                   QStringLiteral("/p/../p/a.png")};
        const QVector<ProjectItem *> added = project.addFiles(paths, 6, 13);
        QCOMPARE(added.size(), 2);
        QCOMPARE(project.items().mid(1), added);
        const auto *photo = qobject_cast<ProjectItemSimple *>(added.at(0));
        QCOMPARE(photo->fileName(), QFileInfo(paths.first()).absoluteFilePath());
        QCOMPARE(photo->time(), 6);
        QCOMPARE(photo->transition(), 13);
        QCOMPARE(added.at(1)->title(), QStringLiteral("a.png"));
        QVERIFY(project.addFiles({}, 1, 1).isEmpty());
    }

    /// A dangling one is kept as it is.
    void addsTargetsOfLinks()
    {
        const QTemporaryDir folder;
        const QString target = QDir(folder.path()).canonicalPath() + QStringLiteral("/photo.jpg");
        const QString link = folder.filePath(QStringLiteral("link.lnk"));
        const QString dangling = folder.filePath(QStringLiteral("link.jpg"));
        QVERIFY(QFile(target).open(QIODevice::WriteOnly));
        QVERIFY(QFile::link(target, link));
        QVERIFY(QFile::link(folder.filePath(QStringLiteral("missing.jpg")), dangling));
        ProjectFile project(settings, ProjectFile::TitleSlide::Omit);
        const LogCapture log;
        QStringList files;
        for (const ProjectItem *item : project.addFiles({link, target}, 1, 1))
            files += qobject_cast<const ProjectItemSimple *>(item)->fileName();
        QCOMPARE(files, (QStringList{target, target}));
        QCOMPARE(log.lines(), QStringList{QStringLiteral("File \"%1\" is shortcut").arg(link)});
        QCOMPARE(project.addFiles({dangling}, 1, 1).value(0)->title(), QStringLiteral("link.jpg"));
    }
};

QTEST_GUILESS_MAIN(ProjectSlidesTest)
#include "ProjectSlidesTest.moc"
