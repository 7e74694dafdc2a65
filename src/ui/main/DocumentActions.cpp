// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/DocumentActions.h"

#include "app/AppSettings.h"
#include "chrome/MessageDialog.h"
#include "project/documents/ProjectFile.h"
#include "ui/UiLog.h"
#include "ui/main/Autosave.h"
#include "ui/main/MainMenu.h"
#include "ui/main/ProjectDocument.h"
#include "ui/main/QuietMoment.h"
#include "ui/settings/SetNameDialog.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QPointer>
#include <QSettings>

namespace velmora
{

namespace
{

const QString &folderKey()
{
    static const QString key = QStringLiteral("last_project_folder");
    return key;
}

const QString &suffix()
{
    static const QString text = QStringLiteral(".json");
    return text;
}

} // namespace

DocumentActions::DocumentActions(ProjectDocument &document, const AppSettings &settings,
                                 QSettings &store, const MainMenu &menu, QuietMoment &quiet,
                                 QWidget *window)
    : QObject(window), m_document(document), m_settings(settings), m_store(store), m_window(window),
      m_resume(settings, window)
{
    connect(menu.newProject, &QAction::triggered, this, &DocumentActions::onNew);
    connect(menu.open, &QAction::triggered, this, &DocumentActions::onOpen);
    connect(menu.save, &QAction::triggered, this, &DocumentActions::onSave);
    connect(menu.saveAs, &QAction::triggered, this, &DocumentActions::onSaveAs);
    connect(menu.title, &QAction::triggered, this, &DocumentActions::onTitle);
    connect(&m_resume, &ProjectResume::ready, this,
            [this, &quiet] { quiet.run([this] { onResumed(); }); });
    connect(&document, &ProjectDocument::replaced, this, &DocumentActions::forgetResume);
    connect(&document, &ProjectDocument::stateChanged, this, &DocumentActions::updateTitle);
    updateTitle();
}

void DocumentActions::updateTitle()
{
    const QString program = QCoreApplication::applicationName();
    const QString name = m_document.displayName();
    m_window->setWindowTitle(name.isEmpty() ? program
                                            : QStringLiteral("%1[*] \u2013 %2").arg(name, program));
    m_window->setWindowModified(m_document.isModified());
}

void DocumentActions::onResumed()
{
    std::unique_ptr<ProjectFile> project = m_resume.isReady() ? m_resume.take() : nullptr;
    if (!project || !mayLeave())
        return;
    m_document.replace(std::move(project), QString());
    emit opened();
}

bool DocumentActions::mayClose(bool generating, bool uploading)
{
    return mayStopWork(generating, uploading) && mayLeave();
}

bool DocumentActions::isDocument(const QString &path)
{
    return path.endsWith(suffix(), Qt::CaseInsensitive);
}

bool DocumentActions::mayLeave()
{
    if (!m_document.isModified())
        return true;
    enum Button { Cancel, Discard, Save };
    MessageDialog::Message message;
    message.kind = MessageDialog::Kind::Question;
    message.title = tr("Unsaved changes");
    message.text = tr("Do you want to save the changes to \"%1\"?").arg(m_document.displayName());
    message.buttons = QStringList{tr("CANCEL"), tr("DON'T SAVE"), tr("SAVE")};
    message.defaultButton = Save;
    message.cancelButton = Cancel;
    switch (MessageDialog::ask(m_window, message).button) {
    case Save:
        return onSave();
    case Discard:
        return true;
    default:
        return false;
    }
}

bool DocumentActions::mayStopWork(bool generating, bool uploading)
{
    if (!generating && !uploading)
        return true;
    MessageDialog::Message message;
    message.kind = MessageDialog::Kind::Warning;
    message.title = tr("Close the program");
    message.text =
        generating
            ? tr("A video is being made. If you close the program now, it is lost.")
            : tr("A video is being uploaded. If you close the program now, it is not completed.");
    message.buttons = QStringList{tr("STOP AND CLOSE"), tr("GO ON")};
    message.defaultButton = 1;
    return MessageDialog::ask(m_window, message).button == 0;
}

void DocumentActions::offerRestore(Autosave &autosave)
{
    Autosave::Found found = autosave.find(m_settings);
    if (!found.project)
        return;
    const QString name = found.path.isEmpty() ? found.project->shownName()
                                              : QFileInfo(found.path).completeBaseName();
    enum Button { Discard, Restore };
    MessageDialog::Message message;
    message.kind = MessageDialog::Kind::Question;
    message.title = tr("Restore the slideshow");
    message.text =
        tr("The program ended before \"%1\" was saved. Do you want to restore it?").arg(name);
    message.buttons = QStringList{tr("DISCARD"), tr("RESTORE")};
    message.defaultButton = Restore;
    message.cancelButton = Restore;
    qCInfo(lcUi) << "Offer to restore unsaved changes";
    if (MessageDialog::ask(m_window, message).button == Discard) {
        autosave.clear();
        return;
    }
    m_document.replace(std::move(found.project), found.path, true);
    emit opened();
}

std::unique_ptr<ProjectFile> DocumentActions::read(const QString &path)
{
    QString error;
    std::unique_ptr<ProjectFile> project = ProjectFile::loadFromFile(path, m_settings, &error);
    if (project)
        return project;
    qCWarning(lcUi).noquote() << "Cannot open" << path << ':' << error;
    MessageDialog::Message message;
    message.kind = MessageDialog::Kind::Warning;
    message.title = tr("Open a slideshow");
    message.text =
        tr("The file \"%1\" cannot be opened as a slideshow.").arg(QDir::toNativeSeparators(path));
    message.details = error;
    message.buttons = QStringList{tr("CLOSE")};
    MessageDialog::ask(m_window, message);
    return nullptr;
}

bool DocumentActions::openFile(const QString &path)
{
    std::unique_ptr<ProjectFile> project = read(path);
    const bool modified = m_document.isModified();
    if (project && !mayLeave())
        return false;
    // The answer may have been to save to this very file.
    if (project && modified)
        project = read(path);
    if (!project)
        return true;
    m_document.replace(std::move(project), path);
    m_store.setValue(folderKey(), QFileInfo(path).absolutePath());
    emit opened();
    return true;
}

void DocumentActions::onNew()
{
    if (!mayLeave())
        return;
    m_document.close();
    emit closed();
}

void DocumentActions::onOpen()
{
    const QString folder = m_store.value(folderKey(), m_settings.folder).toString();
    const QString path = QFileDialog::getOpenFileName(m_window, tr("Open a slideshow"), folder,
                                                      tr("Slideshows (*.json)"));
    if (!path.isEmpty())
        openFile(path);
}

bool DocumentActions::onSave()
{
    if (!m_document.project())
        return false;
    return m_document.path().isEmpty() ? onSaveAs() : saveTo(m_document.path());
}

bool DocumentActions::onSaveAs()
{
    if (!m_document.project())
        return false;
    QFileDialog dialog(m_window, tr("Save the slideshow"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilter(tr("Slideshows (*.json)"));
    dialog.setDefaultSuffix(suffix().mid(1));
    const QFileInfo proposed(proposedPath());
    dialog.setDirectory(proposed.absolutePath());
    dialog.selectFile(proposed.fileName());
    return dialog.exec() == QDialog::Accepted && saveTo(dialog.selectedFiles().value(0));
}

QString DocumentActions::proposedPath() const
{
    if (!m_document.path().isEmpty())
        return m_document.path();
    QString name = m_document.displayName();
    for (const char letter : {'/', '\\', ':', '*', '?', '"', '<', '>', '|'})
        name.replace(QLatin1Char(letter), QLatin1Char('_'));
    const QString folder = m_store.value(folderKey(), m_settings.folder).toString();
    return QDir(folder).filePath(name + suffix());
}

bool DocumentActions::saveTo(const QString &path)
{
    QString error;
    if (!path.isEmpty() && m_document.save(path, &error)) {
        m_store.setValue(folderKey(), QFileInfo(path).absolutePath());
        return true;
    }
    MessageDialog::Message message;
    message.kind = MessageDialog::Kind::Warning;
    message.title = tr("Save the slideshow");
    message.text =
        tr("The slideshow cannot be saved to \"%1\".").arg(QDir::toNativeSeparators(path));
    message.details = error;
    message.buttons = QStringList{tr("CLOSE")};
    MessageDialog::ask(m_window, message);
    return false;
}

void DocumentActions::onTitle()
{
    if (!m_document.project())
        return;
    const QPointer<ProjectFile> project = m_document.project();
    const QString shown = project->shownName();
    SetNameDialog dialog(shown, m_window);
    const bool isGiven = dialog.exec() == QDialog::Accepted && dialog.name() != shown;
    if (isGiven && project && project == m_document.project())
        m_document.setName(dialog.name());
}

} // namespace velmora
