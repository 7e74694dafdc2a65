// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/MainView.h"

#include "app/Paths.h"
#include "platform/DesktopNotification.h"
#include "platform/TaskbarProgress.h"
#include "project/documents/ProjectFile.h"
#include "sharing/burning/BurnDialog.h"
#include "sharing/history/FinalWindow.h"
#include "sharing/history/HistoryRowWidget.h"
#include "sharing/history/HistoryWidget.h"
#include "ui/UiLog.h"
#include "ui/editor/MainWindowWidget.h"
#include "ui/main/Autosave.h"
#include "ui/main/DocumentActions.h"
#include "ui/main/HelpPages.h"
#include "ui/main/MainMenu.h"
#include "ui/main/PhotoDialogs.h"
#include "ui/main/ProjectDocument.h"
#include "ui/main/QuietMoment.h"
#include "ui/main/StartMessage.h"
#include "ui/main/StartPage.h"
#include "ui/main/ToolRow.h"
#include "ui/main/UpdateNotice.h"
#include "ui/main/WindowGeometry.h"
#include "ui/settings/SettingsWidget.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QSettings>
#include <QStackedWidget>

#include <utility>

namespace velmora
{

MainView::MainView(const Parts &parts)
    : m_parts(parts), m_menu(new MainMenu(this)), m_lastVideo(parts.history, parts.fileManager),
      m_taskbar(parts.taskbar), m_tools(new ToolRow(*m_menu)), m_stack(new QStackedWidget),
      m_start(new StartPage(*m_menu)),
      m_editor(new MainWindowWidget(parts.settings, parts.history)),
      m_history(new HistoryWidget(parts.history, parts.settings)), m_settingsPanel(nullptr),
      m_help(new HelpPages(parts.services, *m_editor, this)),
      m_updates(new UpdateNotice(parts.services, parts.store, this)),
      m_document(std::make_unique<ProjectDocument>(*m_editor, parts.settings)),
      m_autosave(std::make_unique<Autosave>(*m_document, m_editor->editor(), Paths::dataFolder(),
                                            Autosave::intervalOf(parts.store))),
      m_quiet(new QuietMoment(this)),
      m_actions(
          new DocumentActions(*m_document, parts.settings, parts.store, *m_menu, *m_quiet, this))
{
    setObjectName(QStringLiteral("mainWindow"));
    setMinimumSize(960, 640);
    setUpPages();
    connectTools();
    connectStartPage();
    connectEditor();
    connectHistory();
    connect(m_updates, &UpdateNotice::newVersion, this, &MainView::onNewVersion);
    connect(&parts.notification, &DesktopNotification::activated, this, &CorWindow::bringToFront);
    connect(m_document.get(), &ProjectDocument::replaced, this,
            [this] { m_menu->setProjectOpen(m_document->project() != nullptr); });
    connect(m_actions, &DocumentActions::opened, this, &MainView::showEditor);
    connect(m_actions, &DocumentActions::closed, this, [this] { m_stack->setCurrentIndex(Start); });
    onPageChanged(Start);
    updateLastVideo();
    WindowGeometry::restore(this, parts.store);
}

MainView::~MainView() = default;

MainView::Page MainView::page() const
{
    return static_cast<Page>(m_stack->currentIndex());
}

void MainView::leaveHistory()
{
    if (page() != History)
        return;
    if (m_document->project())
        showEditor();
    else
        m_stack->setCurrentIndex(Start);
}

/// The keys go to the slides, wherever the click was that led here.
void MainView::showEditor()
{
    m_stack->setCurrentIndex(Editor);
    m_editor->focusSlides();
}

void MainView::openFiles(const QStringList &files)
{
    m_quiet->run([this, files] { openNow(files); });
}

void MainView::openNow(const QStringList &files)
{
    QStringList photos;
    for (const QString &file : files) {
        if (!DocumentActions::isDocument(file))
            photos.append(file);
        else if (!m_actions->openFile(file))
            return;
    }
    addFiles(photos);
}

void MainView::addFiles(const QStringList &files)
{
    if (files.isEmpty())
        return;
    if (!m_document->project())
        m_document->begin();
    m_editor->onFilesDropped(files, -1);
    showEditor();
    raise();
}

void MainView::offerRestore()
{
    m_actions->offerRestore(*m_autosave);
}

void MainView::letGo()
{
    m_autosave->letGo();
    m_parts.store.sync();
}

void MainView::onMessageReceived(const QString &message)
{
    qCInfo(lcUi).noquote() << QStringLiteral("Message received:'%1'").arg(message);
    bringToFront();
    openFiles(StartMessage::files(message));
}

void MainView::onSettingsHide()
{
    m_settingsPanel->onHide();
}

void MainView::onSettingsHideFinished()
{
    m_stack->currentWidget()->setFocus();
    if (m_focusBeforeSettings && m_focusBeforeSettings->isVisible())
        m_focusBeforeSettings->setFocus();
    else if (page() == Editor)
        m_editor->focusSlides();
}

void MainView::onSettingsUpdate()
{
    m_editor->updateFromSettings();
    emit settingsSaved();
}

void MainView::onDropBegin()
{
    m_dropped.clear();
}

void MainView::onFileDropped(const QString &fileName)
{
    m_dropped.append(fileName);
}

void MainView::onDropEnd()
{
    openFiles(std::exchange(m_dropped, {}));
}

void MainView::onFinished(const QString &fileName)
{
    updateLastVideo();
    onBtnHistoryClicked();
    const bool listed = m_history->select(fileName);
    tellInBackground(tr("The video is ready"), QFileInfo(fileName).fileName());
    offerNextSteps(fileName, listed ? m_history->selectedProject() : nullptr);
}

/// @p entry is the video's in the history, if it got one. Until the user has chosen, another one
/// may be selected there, so nothing relies on it.
void MainView::offerNextSteps(const QString &video, const ProjectFile *entry)
{
    const QString title = entry ? entry->shownName() : QFileInfo(video).completeBaseName();
    const QString diskTitle = entry ? starterText(*entry) : QString();
    auto *window = new FinalWindow(video, m_parts.fileManager, this);
    window->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_history, &HistoryWidget::uploadProgressFinished, window, &FinalWindow::allowUploads);
    if (m_history->isUploading())
        window->refuseUploads(tr("Another video is being uploaded."));
    connect(window, &FinalWindow::uploadService, this, [this, video, title](const QString &key) {
        m_stack->setCurrentIndex(History);
        m_history->startUpload(video, title, key);
    });
    connect(window, &FinalWindow::burnDvd, this,
            [this, video, diskTitle] { onBurnDvd(diskTitle, video); });
    window->open();
}

void MainView::runUpdateChecker()
{
    m_updates->check();
}

void MainView::onNewVersion(const QString &version)
{
    m_quiet->run([this, version] { m_updates->show(version); });
}

void MainView::onProgressStarted()
{
    m_actions->forgetResume();
    m_menu->setGenerating(true);
    m_quiet->setGenerating(true);
    m_taskbar.begin(TaskbarShare::Video);
}

void MainView::onProgressFinished()
{
    qCDebug(lcUi) << "onProgressFinished";
    m_menu->setGenerating(false);
    m_quiet->setGenerating(false);
    m_taskbar.end(TaskbarShare::Video);
}

void MainView::onUploadClicked(const QString &uploadService)
{
    m_stack->setCurrentIndex(History);
    m_history->onStartUpload(uploadService);
}

void MainView::onUploadFailed(const QString &error)
{
    tellInBackground(tr("The upload has failed"), error);
}

void MainView::onUploadFinished(const QString &videoId, const QString &previewUrl)
{
    qCInfo(lcUi).noquote() << "Uploaded" << videoId << previewUrl;
    tellInBackground(tr("The upload is complete"), previewUrl);
}

void MainView::onUploadProgressStarted()
{
    m_taskbar.begin(TaskbarShare::Upload);
}

void MainView::onBurnDvd(const QString &diskTitle, const QString &fileName)
{
    BurnDialog::run(fileName, diskTitle, this);
}

void MainView::onPageChanged(int page)
{
    m_tools->setHistoryShown(page == History);
}

void MainView::onProjectOpen()
{
    if (const ProjectFile *entry = m_history->selectedProject())
        m_actions->resume(*entry);
}

void MainView::onBtnAddPhotoClicked()
{
    if (page() == History) {
        if (!m_document->project())
            m_document->begin();
        showEditor();
    }
    addFiles(PhotoDialogs::askForPhotos(this, &m_parts.store));
}

void MainView::onBtnAddFolderClicked()
{
    const QString folder = PhotoDialogs::askForFolder(this, &m_parts.store);
    if (!folder.isEmpty())
        addFiles({folder});
}

void MainView::onBtnSettingsClicked()
{
    if (m_settingsPanel->isOpen()) {
        onSettingsHide();
        return;
    }
    // Opened again while it slides out, it still has the keys itself.
    if (!m_settingsPanel->isVisible())
        m_focusBeforeSettings = focusWidget();
    m_settingsPanel->open();
}

void MainView::onBtnHistoryClicked()
{
    m_stack->setCurrentIndex(History);
    m_history->reload();
}

void MainView::onBtnHelpClicked()
{
    m_help->showManual(HelpPages::placeOfPage(page()));
}

void MainView::onBtnSiteClicked()
{
    m_help->showHomePage();
}

void MainView::onLblLastProjectClicked()
{
    m_lastVideo.showFolder(this);
}

void MainView::updateLastVideo()
{
    m_tools->setLastVideoKnown(!m_lastVideo.path().isEmpty());
    m_start->setRecentName(m_lastVideo.name());
}

void MainView::onTextEditingBegan(int)
{
    m_menu->setTextEditing(true);
}

void MainView::onTextEditingFinished()
{
    m_menu->setTextEditing(false);
}

void MainView::onToggleFullScreen()
{
    toggleFullScreen();
}

void MainView::tellInBackground(const QString &title, const QString &text)
{
    // Dialogs of the program are in front of this window as well.
    if (!QApplication::activeWindow())
        m_parts.notification.show(title, text);
}

bool MainView::event(QEvent *event)
{
    if (event->type() == QEvent::WindowUnblocked)
        m_quiet->lookSoon();
    if (event->type() == QEvent::LanguageChange)
        m_actions->updateTitle();
    return CorWindow::event(event);
}

void MainView::closeEvent(QCloseEvent *event)
{
    event->setAccepted(m_actions->mayClose(m_editor->isGenerating(), m_history->isUploading()));
    if (!event->isAccepted())
        return;
    m_autosave->clear();
    WindowGeometry::save(*this, &m_parts.store);
}

void MainView::showEvent(QShowEvent *event)
{
    CorWindow::showEvent(event);
    m_parts.taskbar.setWindow(windowHandle());
}

} // namespace velmora
