// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/MainView.h"

#include "app/AppSettings.h"
#include "app/Paths.h"
#include "chrome/MessageDialog.h"
#include "chrome/TitleBar.h"
#include "platform/DesktopNotification.h"
#include "platform/FileManager.h"
#include "platform/TaskbarProgress.h"
#include "project/documents/HistoryStore.h"
#include "sharing/history/HistoryWidget.h"
#include "ui/UiLog.h"
#include "ui/editor/MainWindowWidget.h"
#include "ui/main/Autosave.h"
#include "ui/main/DocumentActions.h"
#include "ui/main/HelpDialog.h"
#include "ui/main/MainMenu.h"
#include "ui/main/ProjectDocument.h"
#include "ui/main/ProjectResume.h"
#include "ui/main/SamplePhotos.h"
#include "ui/main/StartMessage.h"
#include "ui/main/StartPage.h"
#include "ui/main/ToolRow.h"
#include "ui/main/WindowGeometry.h"
#include "ui/settings/SettingsWidget.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QSettings>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace velmora
{

namespace
{

const QString &openFolderKey()
{
    static const QString key = QStringLiteral("last_open_folder");
    return key;
}

int autosaveInterval(const QSettings &store)
{
    constexpr int kSecond = 1000;
    const int seconds = store.value(QStringLiteral("autosaveSeconds")).toInt();
    return seconds > 0 && seconds <= 3600 ? seconds * kSecond : Autosave::Interval;
}

} // namespace

MainView::MainView(const Parts &parts)
    : m_parts(parts), m_web(parts.services), m_tools(new ToolRow), m_stack(new QStackedWidget),
      m_start(new StartPage), m_editor(new MainWindowWidget(parts.settings, parts.history)),
      m_history(new HistoryWidget(parts.history, parts.settings)), m_settingsPanel(nullptr),
      m_menu(new MainMenu(this)),
      m_document(std::make_unique<ProjectDocument>(*m_editor, parts.settings)),
      m_autosave(std::make_unique<Autosave>(*m_document, m_editor->editor(), Paths::dataFolder(),
                                            autosaveInterval(parts.store))),
      m_actions(new DocumentActions(*m_document, parts.settings, parts.store, this)),
      m_resume(new ProjectResume(parts.settings, this))
{
    setObjectName(QStringLiteral("mainWindow"));
    setMinimumSize(960, 640);
    setUpPages();
    setUpMenu();
    connectStartPage();
    connectEditor();
    connectHistory();
    connect(m_document.get(), &ProjectDocument::stateChanged, this, &MainView::updateTitle);
    connect(m_actions, &DocumentActions::opened, this, [this] { showPage(Editor); });
    connect(m_actions, &DocumentActions::closed, this, [this] { showPage(Start); });
    connect(m_resume, &ProjectResume::ready, this, [this] {
        if (!m_actions->mayLeave())
            return;
        m_document->replace(m_resume->take(), QString());
        showPage(Editor);
    });
    onPageChanged(Start);
    updateTitle();
    updateLastVideo();
    WindowGeometry::restore(this, parts.store);
}

MainView::~MainView()
{
    // The document lets go of the editor page, so it has to end first.
    m_autosave.reset();
    m_document.reset();
}

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
    connect(m_tools, &ToolRow::addPhotoClicked, this, &MainView::onBtnAddPhotoClicked);
    connect(m_tools, &ToolRow::backClicked, this, &MainView::showEditorOrStart);
    connect(m_tools, &ToolRow::addFolderClicked, this, &MainView::onBtnAddFolderClicked);
    connect(m_tools, &ToolRow::historyClicked, this, &MainView::onBtnHistoryClicked);
    connect(m_tools, &ToolRow::settingsClicked, this, &MainView::onBtnSettingsClicked);
    connect(m_tools, &ToolRow::helpClicked, this, &MainView::onBtnHelpClicked);
    connect(m_tools, &ToolRow::lastProjectClicked, this, &MainView::onLblLastProjectClicked);
}

void MainView::setUpMenu()
{
    titleBar()->addWidget(m_menu);
    connect(m_menu->newProject, &QAction::triggered, m_actions, &DocumentActions::onNew);
    connect(m_menu->open, &QAction::triggered, m_actions, &DocumentActions::onOpen);
    connect(m_menu->save, &QAction::triggered, m_actions, &DocumentActions::onSave);
    connect(m_menu->saveAs, &QAction::triggered, m_actions, &DocumentActions::onSaveAs);
    connect(m_menu->title, &QAction::triggered, m_actions, &DocumentActions::onTitle);
    connect(m_menu->addPhoto, &QAction::triggered, this, &MainView::onBtnAddPhotoClicked);
    connect(m_menu->addFolder, &QAction::triggered, this, &MainView::onBtnAddFolderClicked);
    connect(m_menu->history, &QAction::triggered, this, &MainView::onBtnHistoryClicked);
    connect(m_menu->back, &QAction::triggered, this, [this] {
        if (page() == History)
            showEditorOrStart();
    });
    connect(m_menu->settings, &QAction::triggered, this, &MainView::onBtnSettingsClicked);
    connect(m_menu->fullScreen, &QAction::triggered, this, &MainView::onToggleFullScreen);
    connect(m_menu->help, &QAction::triggered, this, &MainView::showHelp);
    connect(m_menu->site, &QAction::triggered, this, &MainView::onBtnSiteClicked);
    connect(m_menu->quit, &QAction::triggered, this, &QWidget::close);
}

void MainView::connectStartPage()
{
    m_start->setSamplesOffered(!samplePhotosFolder().isEmpty());
    connect(m_start, &StartPage::addPhotoClicked, this, &MainView::onBtnAddPhotoClicked);
    connect(m_start, &StartPage::addFolderClicked, this, &MainView::onBtnAddFolderClicked);
    connect(m_start, &StartPage::openClicked, m_actions, &DocumentActions::onOpen);
    connect(m_start, &StartPage::samplesClicked, this,
            [this] { addFiles({samplePhotosFolder()}); });
    connect(m_start, &StartPage::recentClicked, this, [this] {
        if (!m_parts.history.projects().empty())
            m_resume->start(*m_parts.history.projects().back());
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

void MainView::showPage(Page page)
{
    m_stack->setCurrentIndex(page);
}

void MainView::showEditorOrStart()
{
    showPage(m_document->project() ? Editor : Start);
}

void MainView::openFiles(const QStringList &files)
{
    if (m_generating)
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
    showPage(Editor);
    raise();
}

void MainView::offerRestore()
{
    Autosave::Found found = m_autosave->find(m_parts.settings);
    if (!found.project) {
        m_autosave->clear();
        return;
    }
    enum Button { Discard, Restore };
    MessageDialog::Message message;
    message.kind = MessageDialog::Kind::Question;
    message.title = tr("Restore the slideshow");
    message.text = tr("The program ended before \"%1\" was saved. Do you want to restore it?")
                       .arg(found.path.isEmpty() ? found.project->name()
                                                 : QFileInfo(found.path).completeBaseName());
    message.buttons = QStringList{tr("DISCARD"), tr("RESTORE")};
    message.defaultButton = Restore;
    message.cancelButton = Restore;
    qCInfo(lcUi) << "Offer to restore unsaved changes";
    if (MessageDialog::ask(this, message).button == Discard) {
        m_autosave->clear();
        return;
    }
    m_document->replace(std::move(found.project), found.path, true);
    showPage(Editor);
}

void MainView::onMessageReceived(const QString &message)
{
    qCInfo(lcUi).noquote() << QStringLiteral("Message received:'%1'").arg(message);
    bringToFront();
    openFiles(StartMessage::files(message));
}

void MainView::bringToFront()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void MainView::onSettingsHide()
{
    m_settingsPanel->onHide();
}

void MainView::onSettingsHideFinished()
{
    m_tools->setEnabled(true);
    m_stack->setEnabled(true);
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
    const QStringList files = m_dropped;
    m_dropped.clear();
    openFiles(files);
}

void MainView::onFinished(const QString &fileName)
{
    m_document->keptByHistory();
    updateLastVideo();
    onBtnHistoryClicked();
    m_history->select(fileName);
    tellInBackground(tr("The video is ready"), QFileInfo(fileName).fileName());
}

void MainView::onProgressStarted()
{
    m_generating = true;
    m_tools->setProjectButtonsEnabled(false);
    m_menu->setProjectActionsEnabled(false);
    m_parts.taskbar.setValue(0);
    m_parts.taskbar.setVisible(true);
    m_parts.taskbar.setPaused(false);
}

void MainView::onProgressFinished()
{
    qCDebug(lcUi) << "onProgressFinished";
    m_generating = false;
    m_tools->setProjectButtonsEnabled(true);
    m_menu->setProjectActionsEnabled(true);
    m_parts.taskbar.setVisible(false);
}

void MainView::onUploadClicked(const QString &uploadService)
{
    showPage(History);
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
    m_parts.taskbar.setValue(0);
    m_parts.taskbar.setVisible(true);
    m_parts.taskbar.setPaused(false);
}

void MainView::onBurnDvd(const QString &diskTitle, const QString &fileName)
{
    m_history->onBurnProject(fileName, diskTitle);
}

void MainView::onPageChanged(int page)
{
    m_tools->setHistoryShown(page == History);
}

void MainView::onProjectOpen()
{
    if (const ProjectFile *entry = m_history->selectedProject())
        m_resume->start(*entry);
}

void MainView::onBtnAddPhotoClicked()
{
    if (page() == History) {
        if (!m_document->project())
            m_document->begin();
        showPage(Editor);
    }
    const QStringList files = QFileDialog::getOpenFileNames(
        this, tr("Open File"), m_parts.store.value(openFolderKey()).toString(),
        tr("Images (%1)").arg(QStringLiteral("*.png *.jpg *.jpeg *.bmp *.gif")));
    if (files.isEmpty())
        return;
    m_parts.store.setValue(openFolderKey(), QFileInfo(files.first()).absolutePath());
    addFiles(files);
}

void MainView::onBtnAddFolderClicked()
{
    const QString folder = QFileDialog::getExistingDirectory(
        this, tr("Add Folder"), m_parts.store.value(openFolderKey()).toString());
    if (folder.isEmpty())
        return;
    m_parts.store.setValue(openFolderKey(), folder);
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
    showPage(History);
    m_history->reload();
}

void MainView::onBtnHelpClicked()
{
    static const QString places[] = {QStringLiteral("help_splash"), QStringLiteral("help_main"),
                                     QStringLiteral("help_history")};
    if (m_web.hasManual())
        m_web.openManual(places[page()]);
    else
        showHelp();
}

void MainView::showHelp()
{
    HelpDialog dialog(m_web.hasManual(), this);
    connect(&dialog, &HelpDialog::manualClicked, this, &MainView::onBtnHelpClicked);
    dialog.exec();
}

void MainView::onBtnSiteClicked()
{
    if (m_web.hasHomePage())
        m_web.openHomePage();
    else
        MessageDialog::inform(this, tr("Home page"),
                              tr("No home page is set up in this copy of the program."));
}

void MainView::onLblLastProjectClicked()
{
    const QString video = lastVideo();
    if (!m_parts.fileManager.showInFolder(video))
        MessageDialog::inform(this, tr("Open Folder"),
                              tr("The folder \"%1\" does not exist any more.")
                                  .arg(QDir::toNativeSeparators(QFileInfo(video).absolutePath())));
}

QString MainView::lastVideo() const
{
    const auto &projects = m_parts.history.projects();
    return projects.empty() ? QString() : projects.back()->fileName();
}

void MainView::updateLastVideo()
{
    const auto &projects = m_parts.history.projects();
    m_tools->setLastVideoKnown(!lastVideo().isEmpty());
    m_start->setRecentName(projects.empty() ? QString() : projects.back()->name());
}

void MainView::onTextEditingBegan(int)
{
    m_tools->setAddingEnabled(false);
}

void MainView::onTextEditingFinished()
{
    m_tools->setAddingEnabled(true);
}

void MainView::onToggleFullScreen()
{
    toggleFullScreen();
}

void MainView::updateTitle()
{
    const QString program = QCoreApplication::applicationName();
    const QString name = m_document->displayName();
    setWindowTitle(name.isEmpty() ? program : QStringLiteral("%1[*] \u2013 %2").arg(name, program));
    setWindowModified(m_document->isModified());
}

void MainView::tellInBackground(const QString &title, const QString &text)
{
    if (!isActiveWindow())
        m_parts.notification.show(title, text);
}

bool MainView::mayStopWork()
{
    if (!m_generating && !m_history->isUploading())
        return true;
    enum Button { GoOn, Stop };
    MessageDialog::Message message;
    message.kind = MessageDialog::Kind::Warning;
    message.title = tr("Close the program");
    message.text = m_generating
                       ? tr("A video is being made. If you close the program now, it is lost.")
                       : tr("A video is being uploaded. If you close the program now, it is not "
                            "completed.");
    message.buttons = QStringList{tr("GO ON"), tr("STOP AND CLOSE")};
    message.defaultButton = GoOn;
    message.cancelButton = GoOn;
    return MessageDialog::ask(this, message).button == Stop;
}

void MainView::closeEvent(QCloseEvent *event)
{
    if (!mayStopWork() || !m_actions->mayLeave()) {
        event->ignore();
        return;
    }
    m_autosave->clear();
    WindowGeometry::save(*this, &m_parts.store);
    event->accept();
}

void MainView::showEvent(QShowEvent *event)
{
    CorWindow::showEvent(event);
    m_parts.taskbar.setWindow(windowHandle());
}

void MainView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        updateTitle();
    CorWindow::changeEvent(event);
}

void MainView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && isFullScreen())
        toggleFullScreen();
    else
        CorWindow::keyPressEvent(event);
}

} // namespace velmora
