// SPDX-License-Identifier: GPL-3.0-or-later
// The removal of entries, and the bar that takes it back.
#include "sharing/history/HistoryWidget.h"

#include "chrome/MessageDialog.h"
#include "chrome/Theme.h"
#include "project/documents/HistoryStore.h"
#include "sharing/history/HistoryModel.h"
#include "sharing/history/HistoryRemoval.h"
#include "ui_HistoryWidget.h"

#include <QFileInfo>

namespace velmora
{

void HistoryWidget::setUpUndoBar()
{
    m_ui->undoBar->hide();
    m_ui->btnCloseUndo->setIcon(Theme::icon(QStringLiteral("close")));
    connect(m_ui->btnUndo, &QPushButton::clicked, this, &HistoryWidget::undoRemoval);
    connect(m_removal, &HistoryRemoval::saved, this, &HistoryWidget::onRemovalSaved);
    connect(m_removal, &HistoryRemoval::failed, this, &HistoryWidget::onRemovalFailed);
    connect(m_removal, &HistoryRemoval::trashed, this, &HistoryWidget::onVideosTrashed);
    connect(m_removal, &HistoryRemoval::restored, this, &HistoryWidget::onVideosRestored);
    connect(m_ui->btnCloseUndo, &QToolButton::clicked, this, [this] {
        m_removal->forget();
        m_ui->undoBar->hide();
    });
}

void HistoryWidget::onDeleteProject(const QString &fileName)
{
    const ProjectFile *project = selectedProject();
    if (!project || project->fileName() != fileName)
        project = m_model->project(m_model->rowOf(fileName));
    if (!project || m_removal->isSaving())
        return;
    MessageDialog::Message message;
    message.kind = MessageDialog::Kind::Question;
    message.title = tr("Remove from the history");
    message.text = tr("Remove \"%1\" from the history?").arg(QFileInfo(fileName).fileName());
    if (QFileInfo(fileName).isFile())
        message.checkText = tr("Also move the video file to the trash");
    message.buttons = QStringList{tr("CANCEL"), tr("REMOVE")};
    message.defaultButton = 1;
    message.cancelButton = 0;
    message.dangerous = true;
    const MessageDialog::Answer answer = MessageDialog::ask(this, message);
    if (answer.button == 1)
        remove({project}, answer.checked);
}

void HistoryWidget::on_btnClearHistory_clicked()
{
    MessageDialog::Message message;
    message.kind = MessageDialog::Kind::Question;
    message.title = tr("Clear the history");
    message.text = tr("Remove all videos (%n) from the history?", nullptr, m_model->rowCount());
    message.checkText = tr("Also move the video files to the trash");
    message.buttons = QStringList{tr("CANCEL"), tr("REMOVE ALL")};
    message.defaultButton = 1;
    message.cancelButton = 0;
    message.dangerous = true;
    const MessageDialog::Answer answer = MessageDialog::ask(this, message);
    if (answer.button != 1)
        return;
    QVector<const ProjectFile *> all;
    for (const auto &project : m_history.projects())
        all.append(project.get());
    remove(all, answer.checked);
}

void HistoryWidget::remove(const QVector<const ProjectFile *> &projects, bool trashVideos)
{
    m_removal->remove(projects,
                      trashVideos ? HistoryRemoval::Videos::Trash : HistoryRemoval::Videos::Keep);
    m_ui->undoBar->hide();
    reload();
    emit historyChanged();
    updateUndoBar(); // It cannot be pressed any more.
    m_ui->listHistory->setFocus();
}

void HistoryWidget::updateUndoBar()
{
    m_ui->lblUndo->setText(tr("Videos removed from the history: %n", nullptr, m_removal->count()));
    m_ui->btnUndo->setEnabled(m_removal->canUndo());
}

void HistoryWidget::onRemovalSaved()
{
    updateButtons();
    if (m_removal->count() == 0) {
        reload(); // The videos that are back.
        return;
    }
    updateUndoBar();
    m_ui->undoBar->show();
    m_ui->btnUndo->setFocus(); // If it is enabled already.
}

void HistoryWidget::onRemovalFailed(const QString &error)
{
    reload();
    emit historyChanged();
    updateUndoBar();
    m_ui->undoBar->setVisible(m_removal->canUndo());
    MessageDialog::inform(this, tr("History"),
                          tr("The history could not be changed: %1").arg(error));
}

void HistoryWidget::onVideosTrashed(const QStringList &kept)
{
    updateUndoBar();
    if (!kept.isEmpty())
        tellAboutVideos(
            tr("Some video files could not be moved to the trash. They are where they were."),
            kept);
}

void HistoryWidget::onVideosRestored(const QStringList &lost)
{
    reload();
    updateUndoBar();
    if (!lost.isEmpty())
        tellAboutVideos(tr("Some video files could not be taken out of the trash."), lost);
}

void HistoryWidget::tellAboutVideos(const QString &text, const QStringList &videos)
{
    MessageDialog::Message message;
    message.title = tr("History");
    message.text = text;
    QStringList names;
    for (const QString &video : videos)
        names.append(QFileInfo(video).fileName());
    message.details = names.join(QLatin1Char('\n'));
    message.buttons = QStringList{MessageDialog::tr("CLOSE")};
    MessageDialog::ask(this, message);
}

void HistoryWidget::undoRemoval()
{
    if (!m_removal->canUndo())
        return;
    m_removal->undo();
    m_ui->undoBar->hide();
    reload();
    emit historyChanged();
    m_ui->listHistory->setFocus();
}

} // namespace velmora
