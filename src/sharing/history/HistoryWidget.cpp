// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/history/HistoryWidget.h"

#include "chrome/MessageDialog.h"
#include "chrome/Theme.h"
#include "project/documents/HistoryStore.h"
#include "sharing/history/HistoryModel.h"
#include "sharing/history/HistoryRemoval.h"
#include "sharing/history/HistoryRowWidget.h"
#include "sharing/history/UploadServiceMenu.h"
#include "sharing/playback/VideoDialog.h"
#include "sharing/upload/UploadController.h"
#include "ui_HistoryWidget.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QUrl>

namespace velmora
{

HistoryWidget::HistoryWidget(HistoryStore &history, const AppSettings &settings, QWidget *parent)
    : QWidget(parent), m_history(history), m_ui(std::make_unique<Ui::HistoryWidget>()),
      m_model(new HistoryModel(history, settings, this)),
      m_removal(new HistoryRemoval(history, this))
{
    m_ui->setupUi(this);
    setUpList();
    setUpPages();
    setUpUndoBar();
    m_timer.setInterval(1000);
    connect(&m_timer, &QTimer::timeout, this, &HistoryWidget::showElapsed);
    reload();
    m_ui->listHistory->setFocus();
}

HistoryWidget::~HistoryWidget() = default;

void HistoryWidget::setUpList()
{
    HistoryListView *list = m_ui->listHistory;
    list->setHistory(m_model);
    connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &HistoryWidget::onSelectionChanged);
    connect(list, &QAbstractItemView::doubleClicked, this, &HistoryWidget::onRowDoubleClicked);
    connect(list, &HistoryListView::openProject, this, &HistoryWidget::openProject);
    connect(list, &HistoryListView::previewProject, this, &HistoryWidget::playVideo);
    connect(list, &HistoryListView::deleteProject, this, &HistoryWidget::onDeleteProject);
    connect(list, &HistoryListView::burnProject, this, &HistoryWidget::onBurnProject);
    connect(m_model, &QAbstractItemModel::dataChanged, this, &HistoryWidget::updateButtons);
    connect(list, &HistoryListView::freeSpaceChanged, m_ui->header, &HistoryHeader::setFreeSpace);
    connect(m_ui->header, &HistoryHeader::dateClicked, this, &HistoryWidget::onBtnDateClicked);
    connect(m_ui->header, &HistoryHeader::fileNameClicked, this,
            &HistoryWidget::onBtnFileNameClicked);
}

void HistoryWidget::setUpPages()
{
    const auto on = [this](QPushButton *button, void (HistoryWidget::*slot)()) {
        connect(button, &QPushButton::clicked, this, slot);
    };
    on(m_ui->btnClearHistory, &HistoryWidget::on_btnClearHistory_clicked);
    on(m_ui->btnResumeProject, &HistoryWidget::on_btnResumeProject_clicked);
    on(m_ui->btnBurn, &HistoryWidget::on_btnBurn_clicked);
    on(m_ui->btnUpload, &HistoryWidget::onButtonUploadClicked);
    on(m_ui->btnCancel, &HistoryWidget::on_btnCancel_clicked);
    on(m_ui->btnCancelWaiting, &HistoryWidget::on_btnCancel_clicked);
    m_ui->btnClearHistory->setIcon(Theme::icon(QStringLiteral("clear")));
    m_ui->btnResumeProject->setIcon(Theme::icon(QStringLiteral("edit")));
    m_ui->btnBurn->setIcon(Theme::icon(QStringLiteral("disc")));
    m_ui->btnUpload->setIcon(Theme::icon(QStringLiteral("burgerdrop")));
    m_ui->pages->setCurrentWidget(m_ui->pgHistory);
}

void HistoryWidget::setUploads(UploadController *uploads)
{
    if (m_uploads)
        m_uploads->disconnect(this);
    m_uploads = uploads;
    if (!uploads)
        return;
    connect(uploads, &UploadController::signInStarted, this, &HistoryWidget::onSignInStarted);
    connect(uploads, &UploadController::browserOpened, this, &HistoryWidget::onBrowserOpened);
    connect(uploads, &UploadController::signInEnded, this, &HistoryWidget::onSignInEnded);
    connect(uploads, &UploadController::started, this, &HistoryWidget::onUploadStarted);
    connect(uploads, &UploadController::progress, this, &HistoryWidget::uploadProgress);
    connect(uploads, &UploadController::finished, this, &HistoryWidget::onUploadFinished);
    connect(uploads, &UploadController::failed, this, &HistoryWidget::onUploadFailed);
    connect(uploads, &UploadController::canceled, this, &HistoryWidget::onUploadCanceled);
}

const ProjectFile *HistoryWidget::selectedProject() const
{
    const QModelIndexList selected = m_ui->listHistory->selectionModel()->selectedIndexes();
    return selected.isEmpty() ? nullptr : m_model->project(selected.first().row());
}

QString HistoryWidget::selectedFile() const
{
    const ProjectFile *project = selectedProject();
    return project ? project->fileName() : QString();
}

bool HistoryWidget::select(const ProjectFile *entry)
{
    const int row = m_model->rowOf(entry);
    if (row < 0)
        return false;
    const QModelIndex index = m_model->index(row);
    m_ui->listHistory->setCurrentIndex(index);
    m_ui->listHistory->scrollTo(index);
    return true;
}

bool HistoryWidget::select(const QString &fileName)
{
    return select(m_model->project(m_model->rowOf(fileName)));
}

void HistoryWidget::reload()
{
    const QModelIndex current = m_ui->listHistory->currentIndex();
    const ProjectFile *selected = selectedProject();
    m_model->reload();
    if (!select(selected) && m_model->rowCount() > 0)
        select(m_model->project(qBound(0, current.row(), m_model->rowCount() - 1)));
    showSortArrow();
    updateButtons();
}

void HistoryWidget::showSortArrow()
{
    m_ui->header->showArrow(m_model->sortKey() == HistoryModel::Key::Date, m_model->isAscending());
}

void HistoryWidget::onSelectionChanged(const QItemSelection &, const QItemSelection &)
{
    updateButtons();
}

void HistoryWidget::updateButtons()
{
    const QModelIndexList selected = m_ui->listHistory->selectionModel()->selectedIndexes();
    const HistoryEntry entry =
        selected.isEmpty() ? HistoryEntry() : m_model->entry(selected.first().row());
    const bool video = entry.project && (!entry.facts.known || entry.facts.exists);
    m_ui->btnResumeProject->setEnabled(entry.project);
    m_ui->btnUpload->setEnabled(video);
    m_ui->btnBurn->setEnabled(video);
    m_ui->btnClearHistory->setEnabled(m_model->rowCount() > 0 && !m_removal->isSaving());
}

void HistoryWidget::onBtnDateClicked()
{
    m_model->sortBy(HistoryModel::Key::Date);
    showSortArrow();
}

void HistoryWidget::onBtnFileNameClicked()
{
    m_model->sortBy(HistoryModel::Key::FileName);
    showSortArrow();
}

void HistoryWidget::onRowDoubleClicked(const QModelIndex &index)
{
    playVideo(m_model->entry(index.row()).fileName);
}

void HistoryWidget::playVideo(const QString &fileName)
{
    const QString path = QDir::toNativeSeparators(fileName);
    if (!QFileInfo(fileName).isFile()) {
        MessageDialog::inform(this, tr("Open file Error"), tr("File '%1' not found").arg(path));
        return;
    }
    if (m_player)
        return; // It is still loading.
    m_player = new VideoDialog(fileName, window());
    m_player->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_player, &VideoDialog::failed, this, [this, fileName] { playElsewhere(fileName); });
    m_player->play();
}

/// By the desktop's player, which may have codecs that this system lacks otherwise.
void HistoryWidget::playElsewhere(const QString &fileName)
{
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(fileName)))
        MessageDialog::inform(this, tr("Open file Error"),
                              tr("There is no program to play the file '%1'.")
                                  .arg(QDir::toNativeSeparators(fileName)));
}

void HistoryWidget::focusInEvent(QFocusEvent *event)
{
    // Not a focus proxy: Tab would then go to the list past the headings that stand before it.
    m_ui->listHistory->setFocus(event->reason());
}

void HistoryWidget::keyPressEvent(QKeyEvent *event)
{
    const bool list = m_ui->pages->currentWidget() == m_ui->pgHistory && selectedProject();
    if (list && event->key() == Qt::Key_Delete)
        onDeleteProject(selectedFile());
    else if (list && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        playVideo(selectedFile());
    else if (m_removal->canUndo() && event->matches(QKeySequence::Undo))
        undoRemoval();
    else
        QWidget::keyPressEvent(event);
}

void HistoryWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        updateUndoBar();
        updateUploadTexts();
        m_ui->listHistory->viewport()->update();
    }
    QWidget::changeEvent(event);
}

void HistoryWidget::on_btnResumeProject_clicked()
{
    if (selectedProject())
        emit openProject(selectedFile());
}

void HistoryWidget::on_btnBurn_clicked()
{
    if (const ProjectFile *project = selectedProject())
        onBurnProject(project->fileName(), starterText(*project));
}

void HistoryWidget::onBurnProject(const QString &fileName, const QString &diskTitle)
{
    emit burnDvd(diskTitle, fileName);
}

void HistoryWidget::onButtonUploadClicked()
{
    auto *menu = new UploadServiceMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu, &UploadServiceMenu::uploadService, this, [this](const QString &key) {
        static const QHash<QString, void (HistoryWidget::*)()> choices = {
            {QStringLiteral("youtube"), &HistoryWidget::on_btnUpload_Youtube},
            {QStringLiteral("googledrive"), &HistoryWidget::on_btnUpload_GoogleDrive},
            {QStringLiteral("dropbox"), &HistoryWidget::on_btnUpload_Dropbox}};
        (this->*choices.value(key))();
    });
    menu->popUp(*m_ui->btnUpload);
}

void HistoryWidget::on_btnUpload_Youtube()
{
    emit uploadClicked(QStringLiteral("youtube"));
}

void HistoryWidget::on_btnUpload_Dropbox()
{
    emit uploadClicked(QStringLiteral("dropbox"));
}

void HistoryWidget::on_btnUpload_GoogleDrive()
{
    emit uploadClicked(QStringLiteral("googledrive"));
}

} // namespace velmora
