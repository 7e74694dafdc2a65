// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/burning/BurnDialog.h"

#include "chrome/MessageDialog.h"
#include "chrome/Theme.h"
#include "sharing/burning/BurnController.h"
#include "sharing/burning/DiscFileName.h"
#include "ui_BurnDialog.h"

#include <QFileInfo>
#include <QValidator>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr qint64 kMegabyte = 1048576;

/// Takes off what a disc's title has no room for.
class TitleValidator : public QValidator
{
public:
    TitleValidator(const BurnController &controller, QObject *parent)
        : QValidator(parent), m_controller(controller)
    {
    }

    State validate(QString &title, int &place) const override
    {
        title = m_controller.fittingTitle(title);
        place = std::min(place, title.size());
        return Acceptable;
    }

private:
    const BurnController &m_controller;
};

QString deviceText(const BurnDevice &device)
{
    QStringList volumes;
    for (const QString &volume : device.recorder.volumes)
        volumes.append(QStringLiteral("[%1]").arg(volume));
    return BurnDialog::tr("%1 (%2 - %3 %4)")
        .arg(volumes.join(QLatin1Char(' ')), device.recorder.productId,
             BurnDialog::tr("%1 MB").arg(device.media.freeBytes / kMegabyte),
             BurnDialog::tr("Free"));
}

} // namespace

BurnDialog::BurnDialog(BurnController &controller, const QString &video, const QString &diskTitle,
                       QWidget *parent)
    : CorDialog(parent), m_controller(controller), m_video(video),
      m_ui(std::make_unique<Ui::BurnDialog>())
{
    setObjectName(QStringLiteral("burnDialog"));
    m_ui->setupUi(content());
    setWindowTitle(tr("Burn DVD"));
    setUpFields(diskTitle);
    connectController();
    findDevices();
}

BurnDialog::~BurnDialog() = default;

void BurnDialog::setUpFields(const QString &diskTitle)
{
    const QString title = diskTitle.simplified();
    m_ui->leDiskTitle->setValidator(new TitleValidator(m_controller, this));
    m_ui->leDiskTitle->setText(title.isEmpty() ? tr("My slideshow") : title);
    m_ui->leFileName->setText(QFileInfo(m_video).fileName());
    m_ui->btnBurn->setIcon(Theme::icon(QStringLiteral("disc-white")));
    m_ui->btnRefresh->setIcon(Theme::icon(QStringLiteral("repeat")));
    m_ui->lbQuestionPicture->setPixmap(Theme::icon(QStringLiteral("question")).pixmap(40, 40));
    m_ui->pages->setCurrentWidget(m_ui->pgSettings);
    m_ui->lbProblem->hide();
    for (QWidget *field :
         {static_cast<QWidget *>(m_ui->leDiskTitle), static_cast<QWidget *>(m_ui->leFileName)})
        connect(qobject_cast<QLineEdit *>(field), &QLineEdit::textChanged, this,
                &BurnDialog::updateBurnButton);
    connect(m_ui->cbDevices, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &BurnDialog::updateBurnButton);
    QMetaObject::connectSlotsByName(this);
}

void BurnDialog::connectController()
{
    connect(&m_controller, &BurnController::devicesChanged, this, &BurnDialog::onDevicesChanged);
    connect(&m_controller, &BurnController::mediaChecked, this, &BurnDialog::onMediaChecked);
    connect(&m_controller, &BurnController::burnProgress, m_ui->progressBar,
            &QProgressBar::setValue);
    connect(&m_controller, &BurnController::elapsedTime, m_ui->lbElapsedTime, &QLabel::setText);
    connect(&m_controller, &BurnController::burnFinished, this, &BurnDialog::onBurnFinished);
}

void BurnDialog::run(const QString &video, const QString &diskTitle, QWidget *parent)
{
    BurnController controller(createDiscWriter());
    BurnDialog dialog(controller, video, diskTitle, parent);
    dialog.exec();
}

void BurnDialog::findDevices()
{
    setBusy(tr("Looking for drives…"));
    m_controller.findDevices();
}

void BurnDialog::onDevicesChanged()
{
    const QString selected = m_ui->cbDevices->currentData().toString();
    m_ui->cbDevices->clear();
    const auto &devices = m_controller.devices();
    for (const BurnDevice &device : devices)
        m_ui->cbDevices->addItem(deviceText(device), device.recorder.id);
    const int index = m_ui->cbDevices->findData(selected);
    if (index >= 0)
        m_ui->cbDevices->setCurrentIndex(index);
    setBusy(QString());
    if (devices.isEmpty())
        showProblem(m_controller.hindrance().isEmpty()
                        ? tr("No drive that can write discs was found.")
                        : m_controller.hindrance());
}

void BurnDialog::setBusy(const QString &text)
{
    m_ui->lbBusy->setText(text);
    m_ui->lbBusy->setVisible(!text.isEmpty());
    m_ui->lbProblem->hide();
    m_ui->cbDevices->setEnabled(text.isEmpty() && m_ui->cbDevices->count() > 0);
    m_ui->btnRefresh->setEnabled(text.isEmpty());
    updateBurnButton();
}

void BurnDialog::showProblem(const QString &text)
{
    m_ui->lbProblem->setText(text);
    m_ui->lbProblem->show();
}

void BurnDialog::updateBurnButton()
{
    const QString error = discFileNameError(m_ui->leFileName->text());
    m_ui->lbNameError->setText(error);
    m_ui->lbNameError->setVisible(!error.isEmpty());
    m_ui->btnBurn->setEnabled(m_ui->lbBusy->isHidden() && m_ui->cbDevices->currentIndex() >= 0 &&
                              !m_ui->leDiskTitle->text().trimmed().isEmpty() && error.isEmpty());
}

void BurnDialog::on_btnRefresh_clicked()
{
    findDevices();
}

void BurnDialog::on_btnBurn_clicked()
{
    m_checking = true;
    setBusy(tr("Looking at the disc…"));
    m_controller.checkMedia(m_ui->cbDevices->currentIndex());
}

void BurnDialog::onMediaChecked(const DiscMedia &media)
{
    if (!m_checking)
        return;
    m_checking = false;
    setBusy(QString());
    const int index = m_ui->cbDevices->currentIndex();
    if (index >= 0)
        m_ui->cbDevices->setItemText(index, deviceText(m_controller.devices().at(index)));
    if (!media.present)
        MessageDialog::inform(this, windowTitle(), tr("Media disk is not ready"));
    else if (QFileInfo(m_video).size() > media.freeBytes)
        MessageDialog::inform(this, windowTitle(),
                              tr("There is not enough disc space for the slideshow"));
    else if (!media.blank)
        askAboutContent(media);
    else
        start(false);
}

void BurnDialog::askAboutContent(const DiscMedia &media)
{
    const bool mayAdd = media.appendable;
    m_ui->lbDiskName->setText(media.volumeName);
    m_ui->lbDiskName->setVisible(!media.volumeName.isEmpty());
    m_ui->lbButtonsInfo->setText(
        mayAdd ? tr("Disc is not empty. Do you want to erase disc before burning?\n"
                    "Press \"Yes\" if you want to erase disc before burning.\n"
                    "Press \"No\" if you want just to burn (add) new files to the disc.\n"
                    "Press \"Cancel\" to cancel the operation.")
               : tr("Disc is not empty. Do you want to erase disc before burning?\n"
                    "Press \"Yes\" if you want to erase disc before burning.\n"
                    "Press \"Cancel\" to cancel the operation."));
    m_ui->btnNo->setVisible(mayAdd);
    m_ui->btnYes->setEnabled(media.erasable);
    m_ui->pages->setCurrentWidget(m_ui->pgNotEmpty);
    (mayAdd ? m_ui->btnNo : m_ui->btnCancelTwo)->setFocus();
}

void BurnDialog::on_btnYes_clicked()
{
    start(true);
}

void BurnDialog::on_btnNo_clicked()
{
    start(false);
}

void BurnDialog::on_btnCancelTwo_clicked()
{
    m_ui->pages->setCurrentWidget(m_ui->pgSettings);
    m_ui->btnBurn->setFocus();
}

void BurnDialog::start(bool erase)
{
    BurnJob job;
    job.recorderId = m_ui->cbDevices->currentData().toString();
    job.video = m_video;
    job.fileName = m_ui->leFileName->text().trimmed();
    job.volumeName = m_ui->leDiskTitle->text().trimmed();
    job.erase = erase;
    job.finalize = m_ui->cbFinalizeDisk->isChecked();
    m_ui->progressBar->setValue(0);
    m_ui->btnCancel->setEnabled(true);
    m_ui->pages->setCurrentWidget(m_ui->pgProgress);
    m_controller.burn(job);
}

void BurnDialog::on_btnCancel_clicked()
{
    MessageDialog::Message message;
    message.kind = MessageDialog::Kind::Warning;
    message.title = windowTitle();
    message.text = tr("A disc whose writing is stopped can become unusable. Stop writing?");
    message.buttons = QStringList{tr("STOP"), tr("GO ON")};
    message.defaultButton = 1;
    if (MessageDialog::ask(this, message).button != 0 || !m_controller.isBurning())
        return;
    m_ui->btnCancel->setEnabled(false);
    m_controller.cancel();
}

void BurnDialog::onBurnFinished(bool succeeded)
{
    // The two pictures are drawn alike.
    const QString picture =
        succeeded ? QStringLiteral("done") : QStringLiteral("oauth2_not_connected");
    m_ui->lbResultPicture->setPixmap(Theme::icon(picture).pixmap(64, 64));
    m_ui->lbResult->setText(succeeded ? tr("Succeeded") : tr("Error"));
    m_ui->lbResultInfo->setText(
        succeeded ? tr("The video is on the disc.")
                  : tr("The video was not written to the disc. The file on your computer is as it "
                       "was."));
    m_ui->pages->setCurrentWidget(m_ui->pgResult);
    m_ui->btnClose->setFocus();
}

void BurnDialog::on_btnClose_clicked()
{
    accept();
}

void BurnDialog::reject()
{
    if (m_controller.isBurning())
        on_btnCancel_clicked();
    else
        CorDialog::reject();
}

} // namespace velmora
