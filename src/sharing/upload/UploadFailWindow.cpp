// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/UploadFailWindow.h"

#include "services/MetricSender.h"
#include "ui_UploadFailWindow.h"

namespace velmora
{

UploadFailWindow::UploadFailWindow(const QString &error, QWidget *parent) : CorDialog(parent)
{
    setObjectName(QStringLiteral("uploadFailWindow"));
    Ui::UploadFailWindow form;
    form.setupUi(content());
    setWindowTitle(form.lblTitle->text());
    setAccessibleDescription(error);
    form.lblPicture->setPixmap(QIcon(QStringLiteral(":/images/images/warning.png")).pixmap(40, 40));
    form.lblError->setText(error);
    form.lblError->setVisible(!error.isEmpty());
    connect(form.btnClose, &QPushButton::clicked, this, &QDialog::reject);
    MetricSender::instance().record(QStringLiteral("upld"), QStringLiteral("failed"));
    form.btnClose->setDefault(true);
    form.btnClose->setFocus();
}

} // namespace velmora
