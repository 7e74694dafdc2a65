// SPDX-License-Identifier: GPL-3.0-or-later
// How the window's parts are connected. The rest of MainView is in MainView.cpp.
#include "ui/main/MainView.h"

#include "app/AppSettings.h"
#include "chrome/TitleBar.h"
#include "sharing/history/HistoryWidget.h"
#include "ui/editor/MainWindowWidget.h"
#include "ui/main/DocumentActions.h"
#include "ui/main/HelpPages.h"
#include "ui/main/MainMenu.h"
#include "ui/main/ProjectDocument.h"
#include "ui/main/SamplePhotos.h"
#include "ui/main/StartPage.h"
#include "ui/main/ToolRow.h"
#include "ui/settings/SettingsWidget.h"

#include <QCoreApplication>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace velmora
{

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
    connect(m_menu->help, &QAction::triggered, this, &MainView::onBtnHelpClicked);
    connect(m_menu->shortcuts, &QAction::triggered, this,
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
            [this](int percent) { m_taskbar.setValue(TaskbarShare::Video, percent); });
    connect(m_editor, &MainWindowWidget::pausedChanged, this,
            [this](bool paused) { m_taskbar.setPaused(TaskbarShare::Video, paused); });
    connect(m_editor, &MainWindowWidget::failed, this, [this](const QString &reason) {
        tellInBackground(QCoreApplication::translate("Conversion", "Creation error"), reason);
    });
    connect(m_editor, &MainWindowWidget::recorded, m_document.get(),
            &ProjectDocument::keptByHistory);
    connect(m_editor, &MainWindowWidget::finished, this, &MainView::onFinished);
    connect(&m_editor->editor(), &ProjectEditor::totalsChanged, this,
            [this] { m_parts.settings.saveTransitionTime(m_parts.store); });
    connect(m_editor, &MainWindowWidget::textEditingBegan, this, &MainView::onTextEditingBegan);
    connect(m_editor, &MainWindowWidget::textEditingFinished, this,
            &MainView::onTextEditingFinished);
}

void MainView::connectHistory()
{
    m_history->setUploads(&m_parts.uploads);
    connect(m_history, &HistoryWidget::openProject, this, &MainView::onProjectOpen);
    connect(m_history, &HistoryWidget::historyChanged, this, &MainView::updateLastVideo);
    connect(m_history, &HistoryWidget::burnDvd, this, &MainView::onBurnDvd);
    connect(m_history, &HistoryWidget::uploadClicked, this, &MainView::onUploadClicked);
    connect(m_history, &HistoryWidget::uploadProgressStarted, this,
            &MainView::onUploadProgressStarted);
    connect(m_history, &HistoryWidget::progressUpload, this,
            [this](int percent) { m_taskbar.setValue(TaskbarShare::Upload, percent); });
    connect(m_history, &HistoryWidget::uploadProgressFinished, this,
            [this] { m_taskbar.end(TaskbarShare::Upload); });
    connect(m_history, &HistoryWidget::uploadFinished, this, &MainView::onUploadFinished);
    connect(m_history, &HistoryWidget::uploadFailed, this, &MainView::onUploadFailed);
}

} // namespace velmora
