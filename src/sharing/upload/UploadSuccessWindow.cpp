// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/UploadSuccessWindow.h"

#include "services/MetricSender.h"
#include "sharing/SharingLog.h"
#include "sharing/upload/UploadServices.h"
#include "ui_UploadSuccessWindow.h"

#include <QDesktopServices>
#include <QUrl>

namespace velmora
{

namespace
{

// What a service answers as an address must not start anything but a browser.
QUrl webAddress(const QString &text)
{
    const QUrl url(text, QUrl::StrictMode);
    const bool web =
        url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http");
    return web && !url.host().isEmpty() ? url : QUrl();
}

} // namespace

UploadSuccessWindow::UploadSuccessWindow(const QString &serviceKey, const QString &fileUrl,
                                         QWidget *parent)
    : CorDialog(parent)
{
    setObjectName(QStringLiteral("uploadSuccessWindow"));
    Ui::UploadSuccessWindow form;
    form.setupUi(content());
    const UploadService *service = findUploadService(serviceKey);
    setWindowTitle(form.lblTitle->text());
    form.lblPicture->setPixmap(QIcon(QStringLiteral(":/images/images/done.png")).pixmap(40, 40));
    form.lblText->setText(form.lblText->text().arg(service ? service->successName : serviceKey));
    setAccessibleDescription(form.lblText->text());

    MetricSender::instance().record(QStringLiteral("upld"), QStringLiteral("ok"));

    const QUrl address = webAddress(fileUrl);
    form.btnOpen->setProperty("service", serviceKey);
    form.btnOpen->setVisible(!address.isEmpty());
    form.btnOpen->setToolTip(tr("Shows the file in the browser"));
    connect(form.btnOpen, &QPushButton::clicked, this, [this, address] {
        if (!QDesktopServices::openUrl(address))
            qCWarning(lcSharing) << "There is no browser to show the uploaded file";
        accept();
    });
    connect(form.btnClose, &QPushButton::clicked, this, &QDialog::reject);
    QPushButton *first = address.isEmpty() ? form.btnClose : form.btnOpen;
    first->setDefault(true);
    first->setFocus();
}

} // namespace velmora
