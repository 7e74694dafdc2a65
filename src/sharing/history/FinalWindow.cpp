// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/history/FinalWindow.h"

#include "chrome/MessageDialog.h"
#include "chrome/Theme.h"
#include "platform/FileManager.h"
#include "sharing/upload/UploaderFactory.h"
#include "ui_FinalWindow.h"

#include <QDir>
#include <QFileInfo>

namespace velmora
{

FinalWindow::FinalWindow(const QString &video, FileManager &fileManager, QWidget *parent)
    : CorDialog(parent), m_video(video), m_fileManager(fileManager)
{
    setObjectName(QStringLiteral("finalWindow"));
    Ui::FinalWindow form;
    form.setupUi(content());
    setWindowTitle(form.lblTitle->text());
    setAccessibleDescription(form.lblText->text());
    form.lblPicture->setPixmap(Theme::icon(QStringLiteral("done")).pixmap(72, 72));
    form.lblFile->setText(form.lblFile->fontMetrics().elidedText(
        QFileInfo(video).fileName(), Qt::ElideMiddle, form.lblFile->minimumWidth()));
    form.lblFile->setToolTip(QDir::toNativeSeparators(video));
    form.btnOpen->setIcon(Theme::icon(QStringLiteral("folder-open-white")));
    form.btnUploadYoutube->setIcon(Theme::icon(QStringLiteral("service-video")));
    form.btnUploadGoogleDrive->setIcon(Theme::icon(QStringLiteral("service-drive")));
    form.btnUploadDropBox->setIcon(Theme::icon(QStringLiteral("service-box")));
    form.btnBurnDvd->setIcon(Theme::icon(QStringLiteral("disc")));
    connect(form.btnOpen, &QPushButton::clicked, this, &FinalWindow::openFolder);
    connect(form.btnClose, &QPushButton::clicked, this, &QDialog::reject);
    connect(form.btnBurnDvd, &QPushButton::clicked, this, [this] {
        accept();
        emit burnDvd();
    });
    const auto offer = [this](QPushButton *button, const char *key) {
        m_uploadButtons.append(button);
        connect(button, &QPushButton::clicked, this, [this, key] {
            accept();
            emit uploadService(QLatin1String(key));
        });
    };
    offer(form.btnUploadYoutube, "youtube");
    offer(form.btnUploadGoogleDrive, "googledrive");
    offer(form.btnUploadDropBox, "dropbox");
    m_uploadToolTip =
        uploadHindrance().isEmpty() ? form.btnUploadYoutube->toolTip() : uploadHindrance();
    allowUploads();
    form.btnOpen->setFocus();
}

void FinalWindow::refuseUploads(const QString &reason)
{
    setUploads(false, reason);
}

void FinalWindow::allowUploads()
{
    setUploads(true, m_uploadToolTip);
}

void FinalWindow::setUploads(bool allowed, const QString &toolTip)
{
    for (QPushButton *button : qAsConst(m_uploadButtons)) {
        button->setEnabled(allowed);
        button->setToolTip(toolTip);
    }
}

void FinalWindow::openFolder()
{
    const QString path = QDir::toNativeSeparators(m_video);
    if (!QFileInfo(m_video).isFile())
        MessageDialog::inform(this, tr("Open file Error"), tr("File '%1' not found").arg(path));
    else if (!m_fileManager.showInFolder(m_video))
        MessageDialog::inform(this, tr("Open file Error"),
                              tr("There is no program to show the folder of '%1'.").arg(path));
    else
        accept();
}

} // namespace velmora
