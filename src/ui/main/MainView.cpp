// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/MainView.h"

#include "app/Paths.h"
#include "chrome/TitleBar.h"
#include "platform/DesktopNotification.h"
#include "platform/TaskbarProgress.h"
#include "sharing/burning/BurnDialog.h"
#include "sharing/history/FinalWindow.h"
#include "sharing/history/HistoryWidget.h"
#include "ui/UiLog.h"
#include "ui/editor/MainWindowWidget.h"
#include "ui/main/Autosave.h"
#include "ui/main/DocumentActions.h"
#include "ui/main/HelpPages.h"
#include "ui/main/MainMenu.h"
#include "ui/main/PhotoDialogs.h"
#include "ui/main/ProjectDocument.h"
#include "ui/main/SamplePhotos.h"
#include "ui/main/StartMessage.h"
#include "ui/main/StartPage.h"
#include "ui/main/ToolRow.h"
#include "ui/main/UpdateNotice.h"
#include "ui/main/WindowGeometry.h"
#include "ui/settings/SettingsWidget.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <utility>

namespace velmora
{

MainView::MainView(const Parts &parts)
    : m_parts(parts), m_menu(new MainMenu(this)), m_lastVideo(parts.history, parts.fileManager),
      m_tools(new ToolRow(*m_menu)), m_stack(new QStackedWidget), m_start(new StartPage(*m_menu)),
      m_editor(new MainWindowWidget(parts.settings, parts.history)),
      m_history(new HistoryWidget(parts.history, parts.settings)), m_settingsPanel(nullptr),
      m_help(new HelpPages(parts.services, *m_editor, this)),
      m_updates(new UpdateNotice(parts.services, parts.store, this)),
      m_document(std::make_unique<ProjectDocument>(*m_editor, parts.settings)),
      m_autosave(std::make_unique<Autosave>(*m_document, m_editor->editor(), Paths::dataFolder(),
                                            Autosave::intervalOf(parts.store))),
      m_actions(new DocumentActions(*m_document, parts.settings, parts.store, *m_menu, this))
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
    connect(m_actions, &DocumentActions::opened, this,
            [this] { m_stack->setCurrentIndex(Editor); });
    connect(m_actions, &DocumentActions::closed, this, [this] { m_stack->setCurrentIndex(Start); });
    onPageChanged(Start);
    updateLastVideo();
    WindowGeometry::restore(this, parts.store);
}

MainView::~MainView() = default;

void MainView::setUpPages()
{
    m_stack->setObjectName(QStringLiteral("pages"));
    m_stack->addWidget(m_start);
    m_stack->addWidget(m_editor);
    m_stack->addWidget(m_history);
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_tools);
    layout->addWidget(m_stack, 1);
    setContent(content);
    m_settingsPanel = new SettingsWidget(m_parts.settings, m_parts.store, content);
    connect(m_stack, &QStackedWidget::currentChanged, this, &MainView::onPageChanged);
    connect(m_settingsPanel, &SettingsWidget::saved, this, &MainView::onSettingsUpdate);
    connect(m_settingsPanel, &SettingsWidget::hidden, this, &MainView::onSettingsHideFinished);
}

void MainView::connectTools()
{
    titleBar()->addWidget(m_menu);
    connect(m_tools, &ToolRow::helpClicked, this, &MainView::onBtnHelpClicked);
    connect(m_tools, &ToolRow::lastProjectClicked, this, &MainView::onLblLastProjectClicked);
    connect(m_menu->addPhoto, &QAction::triggered, this, &MainView::onBtnAddPhotoClicked);
    connect(m_menu->addFolder, &QAction::triggered, this, &MainView::onBtnAddFolderClicked);
    connect(m_menu->history, &QAction::triggered, this, &MainView::onBtnHistoryClicked);
    connect(m_menu->back, &QAction::triggered, this, &MainView::leaveHistory);
    connect(m_menu->settings, &QAction::triggered, this, &MainView::onBtnSettingsClicked);
    connect(m_menu->fullScreen, &QAction::triggered, this, &MainView::onToggleFullScreen);
    connect(m_menu->help, &QAction::triggered, this,
            [this] { m_help->showShortcuts(HelpPages::placeOfPage(page())); });
    connect(m_menu->site, &QAction::triggered, this, &MainView::onBtnSiteClicked);
    connect(m_menu->quit, &QAction::triggered, this, &QWidget::close);
}

void MainView::connectStartPage()
{
    m_start->setSamplesOffered(!samplePhotosFolder().isEmpty());
    connect(m_start, &StartPage::samplesClicked, this,
            [this] { addFiles({samplePhotosFolder()}); });
    connect(m_start, &StartPage::recentClicked, this, [this] {
        if (m_lastVideo.project())
            m_actions->resume(*m_lastVideo.project());
    });
    connect(m_start, &StartPage::dropBegin, this, &MainView::onDropBegin);
    connect(m_start, &StartPage::fileDropped, this, &MainView::onFileDropped);
    connect(m_start, &StartPage::dropEnd, this, &MainView::onDropEnd);
}

void MainView::connectEditor()
{
    connect(m_editor, &MainWindowWidget::progressStarted, this, &MainView::onProgressStarted);
    connect(m_editor, &MainWindowWidget::progressFinished, this, &MainView::onProgressFinished);
    connect(m_editor, &MainWindowWidget::progress, this,
            [this](int percent) { m_parts.taskbar.setValue(percent); });
    connect(m_editor, &MainWindowWidget::pausedChanged, this,
            [this](bool paused) { m_parts.taskbar.setPaused(paused); });
    connect(m_editor, &MainWindowWidget::finished, this, &MainView::onFinished);
    connect(m_editor, &MainWindowWidget::textEditingBegan, this, &MainView::onTextEditingBegan);
    connect(m_editor, &MainWindowWidget::textEditingFinished, this,
            &MainView::onTextEditingFinished);
}

void MainView::connectHistory()
{
    m_history->setUploads(&m_parts.uploads);
    connect(m_history, &HistoryWidget::openProject, this, &MainView::onProjectOpen);
    connect(m_history, &HistoryWidget::burnDvd, this, &MainView::onBurnDvd);
    connect(m_history, &HistoryWidget::uploadClicked, this, &MainView::onUploadClicked);
    connect(m_history, &HistoryWidget::uploadProgressStarted, this,
            &MainView::onUploadProgressStarted);
    connect(m_history, &HistoryWidget::progressUpload, this,
            [this](int percent) { m_parts.taskbar.setValue(percent); });
    connect(m_history, &HistoryWidget::uploadProgressFinished, this,
            [this] { m_parts.taskbar.setVisible(false); });
    connect(m_history, &HistoryWidget::uploadFinished, this, &MainView::onUploadFinished);
    connect(m_history, &HistoryWidget::uploadFailed, this, &MainView::onUploadFailed);
}

MainView::Page MainView::page() const
{
    return static_cast<Page>(m_stack->currentIndex());
}

void MainView::leaveHistory()
{
    if (page() == History)
        m_stack->setCurrentIndex(m_document->project() ? Editor : Start);
}

void MainView::openFiles(const QStringList &files)
{
    if (m_editor->isGenerating())
        return;
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
    m_stack->setCurrentIndex(Editor);
    raise();
}

void MainView::offerRestore()
{
    m_actions->offerRestore(*m_autosave);
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
    m_document->keptByHistory();
    updateLastVideo();
    onBtnHistoryClicked();
    m_history->select(fileName);
    tellInBackground(tr("The video is ready"), QFileInfo(fileName).fileName());
    offerNextSteps(fileName);
}

void MainView::offerNextSteps(const QString &video)
{
    auto *window = new FinalWindow(video, m_parts.fileManager, this);
    window->setAttribute(Qt::WA_DeleteOnClose);
    connect(window, &FinalWindow::uploadService, this, &MainView::onUploadClicked);
    connect(window, &FinalWindow::burnDvd, m_history, &HistoryWidget::on_btnBurn_clicked);
    window->open();
}

void MainView::runUpdateChecker()
{
    m_updates->check();
}

void MainView::onNewVersion(const QString &version)
{
    m_updates->show(version);
}

void MainView::showTaskbarProgress()
{
    m_parts.taskbar.setValue(0);
    m_parts.taskbar.setVisible(true);
    m_parts.taskbar.setPaused(false);
}

void MainView::onProgressStarted()
{
    m_menu->setGenerating(true);
    showTaskbarProgress();
}

void MainView::onProgressFinished()
{
    qCDebug(lcUi) << "onProgressFinished";
    m_menu->setGenerating(false);
    m_parts.taskbar.setVisible(false);
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
    showTaskbarProgress();
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
        m_stack->setCurrentIndex(Editor);
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
    if (m_settingsPanel->isOpen())
        onSettingsHide();
    else
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
    if (!isActiveWindow())
        m_parts.notification.show(title, text);
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
