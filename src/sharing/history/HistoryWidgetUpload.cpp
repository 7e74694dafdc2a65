// SPDX-License-Identifier: GPL-3.0-or-later
// The pages that an upload shows.
#include "sharing/history/HistoryWidget.h"

#include "project/documents/ProjectFile.h"
#include "sharing/SharingLog.h"
#include "sharing/history/HistoryRemoval.h"
#include "sharing/upload/UploadController.h"
#include "sharing/upload/UploadFailWindow.h"
#include "sharing/upload/UploadServices.h"
#include "sharing/upload/UploadSuccessWindow.h"
#include "ui_HistoryWidget.h"

#include <QFileInfo>

namespace velmora
{

bool HistoryWidget::isUploading() const
{
    return !m_service.isEmpty();
}

void HistoryWidget::onStartUpload(const QString &uploadService)
{
    if (const ProjectFile *project = selectedProject())
        startUpload(project->fileName(), project->shownName(), uploadService);
}

void HistoryWidget::startUpload(const QString &fileName, const QString &title,
                                const QString &uploadService)
{
    if (isUploading())
        return;
    if (!findUploadService(uploadService) || !m_uploads) {
        qCWarning(lcSharing) << "IS NULL UPLOADER";
        return;
    }
    m_service = uploadService;
    m_uploadedFile = QFileInfo(fileName).fileName();
    m_started = false;
    m_ui->progressBar->setValue(0);
    m_ui->btnCancel->setEnabled(true);
    updateUploadTexts();
    showUpload();
    emit beginUpload();
    m_uploads->upload(uploadService, fileName, title, window());
}

void HistoryWidget::showUpload()
{
    m_ui->pages->setCurrentWidget(m_ui->pgUpload);
    m_ui->btnCancel->setFocus();
}

void HistoryWidget::updateUploadTexts()
{
    const UploadService *service = findUploadService(m_service);
    if (!service)
        return;
    m_ui->labelUploadText->setText(
        tr("Uploading %1 to %2").arg(m_uploadedFile, service->progressName));
    m_ui->lblWaitingTitle->setText(tr("Connect to %1").arg(service->progressName));
    showElapsed();
}

void HistoryWidget::onSignInStarted()
{
    m_ui->lblWaitingInfo->hide();
    m_ui->pages->setCurrentWidget(m_ui->Oauth2Waiting);
    m_ui->btnCancelWaiting->setFocus();
}

void HistoryWidget::onBrowserOpened()
{
    m_ui->lblWaitingInfo->show();
}

void HistoryWidget::onSignInEnded()
{
    showUpload();
}

void HistoryWidget::onUploadStarted()
{
    if (m_started)
        return;
    m_started = true;
    showUpload();
    m_elapsed.start();
    m_timer.start();
    showElapsed();
    emit uploadProgressStarted();
}

void HistoryWidget::showElapsed()
{
    QString time = QStringLiteral("--:--:--");
    if (m_started) {
        const qint64 seconds = m_elapsed.elapsed() / 1000;
        const QLatin1Char zero('0');
        time = QStringLiteral("%1:%2:%3")
                   .arg(seconds / 3600, 2, 10, zero)
                   .arg(seconds / 60 % 60, 2, 10, zero)
                   .arg(seconds % 60, 2, 10, zero);
    }
    m_ui->labelUploadTime->setText(tr("Elapsed: %1").arg(time));
}

void HistoryWidget::uploadProgress(int percent)
{
    m_ui->progressBar->setValue(percent);
    emit progressUpload(percent);
}

/// Back to the list.
void HistoryWidget::endUpload()
{
    m_timer.stop();
    m_service.clear();
    m_ui->pages->setCurrentWidget(m_ui->pgHistory);
    m_ui->listHistory->setFocus();
    m_started = false;
    emit uploadProgressFinished();
}

void HistoryWidget::onUploadFinished(const QString &fileId, const QString &fileUrl)
{
    const QString service = m_service;
    endUpload();
    emit uploadFinished(fileId, fileUrl);
    UploadSuccessWindow(service, fileUrl, window()).exec();
}

void HistoryWidget::onUploadFailed(const QString &error)
{
    endUpload();
    emit uploadFailed(error);
    UploadFailWindow(error, window()).exec();
}

void HistoryWidget::onUploadCanceled()
{
    endUpload();
}

void HistoryWidget::on_btnCancel_clicked()
{
    m_ui->btnCancel->setEnabled(false);
    if (m_uploads)
        m_uploads->cancel();
}

} // namespace velmora
