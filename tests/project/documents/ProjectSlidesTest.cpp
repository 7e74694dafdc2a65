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

/// The order of a project's slides.
class ProjectSlidesTest : public QObject
{
    Q_OBJECT
private slots:
    void movesSlides_data();
    void movesSlides();
    void moveIsLogged();
    void foreignSlidesAreNotMovedOrTaken();
    void takenSlideBelongsToCaller();
    void addsPhotosOnly();
    void addsTargetsOfLinks();
    void keepsDanglingLinks();
};

namespace
{

const AppSettings settings;

/// Photo slides named by one letter each.
void addSlides(ProjectFile &project, const QString &letters)
{
    for (const QChar letter : letters) {
        project.insertItem(-1, new ProjectItemSimple(letter, 1, 0));
    }
}

QString lettersOf(const ProjectFile &project)
{
    QString letters;
    for (const ProjectItem *item : project.items()) {
        letters += item->title();
    }
    return letters;
}

} // namespace

void ProjectSlidesTest::movesSlides_data()
{
    QTest::addColumn<int>("item");
    QTest::addColumn<int>("anchor");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    const auto row = [](int item, int anchor, const char *before, const char *after) {
        QTest::addRow("%d to %d", item, anchor)
            << item << anchor << QString::fromLatin1(before) << QString::fromLatin1(after);
    };
    row(0, 3, "bcad", "bcda");
    row(3, 0, "dabc", "adbc");
    row(1, 2, "abcd", "acbd");
    row(2, 1, "acbd", "abcd");
    row(2, 2, "abcd", "abcd");
}

void ProjectSlidesTest::movesSlides()
{
    QFETCH(int, item);
    QFETCH(int, anchor);
    ProjectFile project(settings, ProjectFile::TitleSlide::Omit);
    addSlides(project, QStringLiteral("abcd"));
    project.moveItemBefore(project.items().at(item), project.items().at(anchor));
    QTEST(lettersOf(project), "before");

    ProjectFile other(settings, ProjectFile::TitleSlide::Omit);
    addSlides(other, QStringLiteral("abcd"));
    other.moveItemAfter(other.items().at(item), other.items().at(anchor));
    QTEST(lettersOf(other), "after");
}

void ProjectSlidesTest::moveIsLogged()
{
    ProjectFile project(settings, ProjectFile::TitleSlide::Omit);
    addSlides(project, QStringLiteral("abcd"));
    const LogCapture log;
    project.moveItemAfter(project.items().at(0), project.items().at(2));
    project.moveItemBefore(project.items().at(3), project.items().at(1));
    const QStringList expected = {QStringLiteral("move item \"a\" from 0 after 2"),
                                  QStringLiteral("move item \"d\" from 3 before 1")};
    QCOMPARE(log.lines(), expected);
}

void ProjectSlidesTest::foreignSlidesAreNotMovedOrTaken()
{
    ProjectFile project(settings, ProjectFile::TitleSlide::Omit);
    addSlides(project, QStringLiteral("abc"));
    ProjectItemSimple stranger(QStringLiteral("x"), 1, 0);
    project.moveItemBefore(&stranger, project.items().at(0));
    project.moveItemAfter(project.items().at(0), &stranger);
    project.moveItemAfter(nullptr, project.items().at(0));
    QVERIFY(!project.takeItem(&stranger));
    QVERIFY(!project.takeItem(nullptr));
    QCOMPARE(lettersOf(project), QStringLiteral("abc"));
}

void ProjectSlidesTest::takenSlideBelongsToCaller()
{
    auto project = std::make_unique<ProjectFile>(settings, ProjectFile::TitleSlide::Omit);
    addSlides(*project, QStringLiteral("abc"));
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

void ProjectSlidesTest::addsPhotosOnly()
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

void ProjectSlidesTest::addsTargetsOfLinks()
{
    const QTemporaryDir folder;
    const QString target = QDir(folder.path()).canonicalPath() + QStringLiteral("/photo.jpg");
    const QString link = folder.filePath(QStringLiteral("link.lnk"));
    QVERIFY(QFile(target).open(QIODevice::WriteOnly));
    QVERIFY(QFile::link(target, link));
    ProjectFile project(settings, ProjectFile::TitleSlide::Omit);
    const LogCapture log;
    const QVector<ProjectItem *> added = project.addFiles({link, target}, 1, 1);
    QCOMPARE(added.size(), 2);
    for (const ProjectItem *item : added) {
        const auto *photo = qobject_cast<const ProjectItemSimple *>(item);
        QCOMPARE(photo->fileName(), target);
    }
    QCOMPARE(log.lines(), QStringList{QStringLiteral("File \"%1\" is shortcut").arg(link)});
}

void ProjectSlidesTest::keepsDanglingLinks()
{
    const QTemporaryDir folder;
    const QString link = folder.filePath(QStringLiteral("link.jpg"));
    QVERIFY(QFile::link(folder.filePath(QStringLiteral("missing.jpg")), link));
    ProjectFile project(settings, ProjectFile::TitleSlide::Omit);
    const QVector<ProjectItem *> added = project.addFiles({link}, 1, 1);
    QCOMPARE(added.size(), 1);
    QCOMPARE(added.first()->title(), QStringLiteral("link.jpg"));
}

QTEST_GUILESS_MAIN(ProjectSlidesTest)
#include "ProjectSlidesTest.moc"
