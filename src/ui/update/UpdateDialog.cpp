// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/update/UpdateDialog.h"

#include "chrome/Theme.h"
#include "services/MetricSender.h"
#include "ui_UpdateDialog.h"

#include <QDesktopServices>
#include <QTimer>
#include <QtConcurrent>

namespace velmora
{

namespace
{

bool isWebAddress(const QUrl &address)
{
    return address.isValid() && !address.host().isEmpty() &&
           (address.scheme() == QLatin1String("https") ||
            address.scheme() == QLatin1String("http"));
}

} // namespace

UpdateDialog::UpdateDialog(const QString &version, const QUrl &download, const QUrl &notes,
                           QWidget *parent)
    : CorDialog(parent), m_download(download), m_notes(notes)
{
    setObjectName(QStringLiteral("updateDialog"));
    Ui::UpdateDialog form;
    form.setupUi(content());
    setWindowTitle(tr("Update available!"));
    form.lblPicture->setPixmap(Theme::applicationIcon().pixmap(64, 64));
    form.lblText->setText(tr("New version of the programm is avalible:"));
    form.lblVersion->setText(version);
    form.lblNotes->setText(
        QStringLiteral("%1 <a href=\"notes\">%2</a>")
            .arg(tr("Read about").toHtmlEscaped(), tr("new feauters").toHtmlEscaped()));
    form.lblNotes->setVisible(isWebAddress(notes));
    form.btnDownload->setEnabled(isWebAddress(download));
    connect(form.lblNotes, &QLabel::linkActivated, this, [this] { openLater(m_notes); });
    connect(form.btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(form.btnDownload, &QPushButton::clicked, this, [this] {
        QtConcurrent::run([] { MetricSender::instance().record(QStringLiteral("updt"), 1); });
        openLater(m_download);
        accept();
    });
    form.btnDownload->setFocus();
}

/// Starting a browser may take a moment, which the dialog does not wait for.
void UpdateDialog::openLater(const QUrl &address)
{
    QTimer::singleShot(0, qApp, [address] { QDesktopServices::openUrl(address); });
}

} // namespace velmora
