// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helpers/Files.h"
#include "sharing/burning/BurnController.h"
#include "sharing/burning/BurnDialog.h"
#include "sharing/burning/FakeDiscWriter.h"
#include "sharing/history/FinalWindow.h"
#include "ui/audio/AudioListWidget.h"
#include "ui/editor/CreatePanel.h"
#include "ui/main/DocumentActions.h"
#include "ui/main/MainViewFixture.h"
#include "ui/main/ProjectResume.h"
#include "ui/update/UpdateDialog.h"

#include <QAction>

#include <functional>

namespace velmora
{

/// Has the main window, which shows a slideshow in the editor, open every dialog that needs no
/// service, and closes it again.
class DialogTour
{
public:
    using Look = std::function<void(const QString &name, QWidget &dialog)>;

    /// Each dialog is shown for @p settle ms before @p look.
    DialogTour(MainViewFixture &fixture, int settle, Look look)
        : m_fixture(fixture), m_settle(settle), m_look(std::move(look))
    {
    }

    void run()
    {
        lookAtSharing();
        lookAtDocument();
        lookAtCreation();
        lookAtRefusedFiles();
        lookAtResume();
    }

private:
    void look(const char *name, QWidget &dialog)
    {
        QTest::qWait(m_settle);
        m_look(QLatin1String(name), dialog);
    }

    /// A dialog that does not block.
    void show(const char *name, QDialog &dialog)
    {
        dialog.show();
        look(name, dialog);
        dialog.hide();
    }

    /// The modal dialog that @p open brings about, at once or a little later.
    template <typename Open> void lookAtNext(const char *name, Open open)
    {
        bool seen = false;
        m_fixture.dialogs.expect([&](QDialog *dialog) {
            look(name, *dialog);
            dialog->reject();
            seen = true;
        });
        open();
        QTRY_VERIFY2(seen, name);
    }

    void lookAtSharing()
    {
        const QString video = m_fixture.folder.filePath(QStringLiteral("Summer at the lake.mp4"));
        QVERIFY(writeFile(video, QByteArray(3000000, 'x')));
        FinalWindow final(video, m_fixture.fileManager, m_fixture.view.get());
        show("final", final);
        FakeDiscWriter::State state;
        BurnController controller(std::make_unique<FakeDiscWriter>(state));
        BurnDialog burn(controller, video, QStringLiteral("Summer"), m_fixture.view.get());
        show("burn-settings", burn);
        UpdateDialog update(
            QStringLiteral("4.0.1"), QUrl(QStringLiteral("https://example.org/get")),
            QUrl(QStringLiteral("https://example.org/notes")), m_fixture.view.get());
        show("update", update);
    }

    void lookAtDocument()
    {
        auto *actions = m_fixture.view->findChild<DocumentActions *>();
        lookAtNext("video-title", [&] { m_fixture.child<QAction>("actTitle")->trigger(); });
        lookAtNext("unsaved-changes", [&] { QVERIFY(!actions->mayLeave()); });
        lookAtNext("close-during-render", [&] { QVERIFY(!actions->mayClose(true, false)); });
        QJsonObject project;
        m_fixture.view->document().toJson(project);
        QVERIFY(
            writeFile(m_fixture.folder.filePath(QStringLiteral("autosave.json")),
                      QJsonDocument(QJsonObject{{QStringLiteral("project"), project}}).toJson()));
        lookAtNext("restore", [&] { m_fixture.view->offerRestore(); });
    }

    void lookAtCreation()
    {
        auto *name = m_fixture.child<QLineEdit>("txtProjName");
        const QString format = m_fixture.view->document().project()->format();
        name->setText(QStringLiteral("Summer"));
        const QString old = m_fixture.folder.filePath(QStringLiteral("Summer.") + format);
        QVERIFY(writeFile(old));
        lookAtNext("replace-video", [&] { m_fixture.click("btnCreate"); });
        QVERIFY(QFile::remove(old));
        Composer &composer = m_fixture.view->editorPage().createPanel().composer();
        composer.setProgram(m_fixture.folder.filePath(QStringLiteral("none")));
        lookAtNext("creation-error", [&] { m_fixture.click("btnCreate"); });
    }

    void lookAtRefusedFiles()
    {
        const QString notes = m_fixture.folder.filePath(QStringLiteral("notes.txt"));
        QVERIFY(writeFile(notes));
        const QStringList files = {notes, m_fixture.folder.filePath(QStringLiteral("gone.jpg"))};
        lookAtNext("photos-not-added", [&] { m_fixture.view->openFiles(files); });
        lookAtNext("audio-not-added", [&] {
            m_fixture.view->findChild<AudioListWidget *>()->onAudioFilesDropped(files, -1);
        });
    }

    void lookAtResume()
    {
        ProjectFile project(m_fixture.settings, ProjectFile::TitleSlide::Create);
        project.addFiles({QStringLiteral("/home/anna/Pictures/Harbour/Beach.jpg")}, 4, 1);
        ProjectResume resume(m_fixture.settings, m_fixture.view.get());
        QObject::connect(&resume, &ProjectResume::ready, &resume, &ProjectResume::take);
        lookAtNext("resume", [&] { resume.start(project); });
    }

    MainViewFixture &m_fixture;
    int m_settle;
    Look m_look;
};

} // namespace velmora
