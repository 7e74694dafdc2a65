// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/documents/ProjectName.h"
#include "ui/editor/EditorPage.h"

#include <QLineEdit>
#include <QStackedWidget>

using namespace velmora;

/// The names of the slideshow and of its video.
class VideoNameTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<EditorPage> m;

private slots:
    void init() { m = std::make_unique<EditorPage>(); }
    void cleanup() { m.reset(); }

    void nameIsChecked_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("allowed");
        for (const char symbol : QByteArray("*:[]{}\\/"))
            QTest::newRow(QByteArray(1, symbol).constData())
                << (QStringLiteral("a") + QLatin1Char(symbol)) << false;
        QTest::newRow("!") << "a!" << true;
        QTest::newRow("hyphen") << "a-b" << true;
    }
    void nameIsChecked()
    {
        QFETCH(QString, name);
        QFETCH(bool, allowed);
        QSignalSpy started(m->page.get(), &MainWindowWidget::progressStarted);
        QSignalSpy ended(m->page.get(), &MainWindowWidget::progressFinished);
        QSignalSpy failed(m->page.get(), &MainWindowWidget::failed);
        m->nameVideo(name);
        m->createInVain();
        QCOMPARE(m->message(), allowed
                                   ? QStringLiteral("Creation error")
                                   : QStringLiteral("Project name should not contain any of these "
                                                    "symbols: *:[]{}\\/!"));
        QCOMPARE(started.count(), allowed ? 1 : 0);
        QCOMPARE(ended.count(), started.count());
        QCOMPARE(failed.count(), started.count());
        if (allowed)
            QCOMPARE(failed.first().first().toString(), m->details());
        QCOMPARE(m->details().isEmpty(), !allowed);
        QCOMPARE(m->child<QStackedWidget>("tcCreate")->currentIndex(), 0);
    }

    void titleAndFileNameAreTwo_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<QString>("kept");
        const auto row = [](const char *name, const char *title, const char *fileName,
                            const char *kept) {
            QTest::newRow(name) << QString::fromLatin1(title) << QString::fromLatin1(fileName)
                                << kept;
        };
        row("no title", "", "video", "video");
        row("blank title", " ", "video", "video");
        row("no title in German", "Neues Projekt", "video", "video");
        row("title", "Trip", "", "Trip");
        row("both", "Trip", "video", "Trip");
        row("no file name", "1:0", "", "1:0");
    }
    void titleAndFileNameAreTwo()
    {
        QFETCH(QString, title);
        QFETCH(QString, fileName);
        if (!title.isEmpty())
            m->page->editor().setName(title);
        if (!fileName.isEmpty())
            m->nameVideo(fileName);
        m->createInVain();
        QTEST(m->project->name(), "kept");
        const QString made = QFileInfo(m->project->fileName()).completeBaseName();
        QCOMPARE(made, m->child<QLineEdit>("txtProjName")->text());
        QCOMPARE(made == title, title == QLatin1String("Trip") && fileName.isEmpty());
        // A name that a render gave gives way to the next one.
        m->nameVideo(QStringLiteral("other"));
        m->createInVain();
        const bool isOwn = title == QLatin1String("Trip") || title == QLatin1String("1:0");
        QCOMPARE(m->project->name(), isOwn ? title : QStringLiteral("other"));
    }

    void nextSlideshowHasItsOwnName_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<bool>("isTaken");
        QTest::newRow("Trip") << "Trip" << true;
        QTest::newRow("none") << "" << false;
        QTest::newRow("not allowed") << "1:0" << false;
        QTest::newRow("of an earlier video") << "sshow_2020-01-01_120000" << false;
    }
    void nextSlideshowHasItsOwnName()
    {
        QFETCH(QString, title);
        QFETCH(bool, isTaken);
        const auto *field = m->child<QLineEdit>("txtProjName");
        m->page->editor().setName(QStringLiteral("Anna's wedding"));
        m->nameVideo(QStringLiteral("typed"));
        m->page->setProject(m->project.get());
        QCOMPARE(field->text(), QStringLiteral("typed"));
        m->page->setProject(nullptr);
        m->project = std::make_unique<ProjectFile>(m->settings, ProjectFile::TitleSlide::Create);
        if (!title.isEmpty())
            m->project->setName(title);
        m->page->setProject(m->project.get());
        QCOMPARE(field->text() == title, isTaken);
        QCOMPARE(ProjectName::isProposal(field->text()), !isTaken);
    }
};

QTEST_MAIN(VideoNameTest)
#include "VideoNameTest.moc"
