// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/UploadController.h"

#include "app/Paths.h"
#include "platform/Secrets.h"
#include "sharing/SharingLog.h"
#include "sharing/upload/UploadServices.h"
#include "sharing/upload/UploaderFactory.h"

namespace velmora
{

UploadController::UploadController(const ServicesConfig &services, QSettings &store,
                                   QObject *parent)
    : UploadController(services, store, createSecrets(Paths::dataFolder()), parent)
{
}

UploadController::UploadController(const ServicesConfig &services, QSettings &store,
                                   std::unique_ptr<Secrets> secrets, QObject *parent)
    : QObject(parent), m_services(services), m_store(store), m_secrets(std::move(secrets))
{
}

UploadController::~UploadController()
{
    delete m_uploader; // Before the secrets, which it uses.
}

bool UploadController::isConfigured(const QString &serviceKey) const
{
    return ServiceSetup::read(m_services, serviceKey).isComplete();
}

bool UploadController::isRunning() const
{
    return m_running;
}

void UploadController::upload(const QString &serviceKey, const QString &videoFile,
                              const QString &title, QWidget *parent)
{
    if (m_running) {
        qCWarning(lcSharing) << "An upload runs already";
        return;
    }
    const UploadContext context{ServiceSetup::read(m_services, serviceKey),
                                TokenStore(m_store, *m_secrets), parent};
    std::unique_ptr<BaseUploader> uploader = createUploader(context);
    if (!uploader) {
        qCWarning(lcSharing) << "IS NULL UPLOADER";
        return;
    }
    m_running = true;
    m_canceling = false;
    m_uploader = uploader.release();
    m_uploader->setParent(this);
    connectUploader();
    // What no configuration helps against is said first.
    const bool complete = context.setup.isComplete() || !uploadHindrance().isEmpty();
    QMetaObject::invokeMethod(
        m_uploader,
        [this, made = m_uploader, complete, serviceKey, videoFile, title] {
            if (m_uploader != made)
                return; // Cancelled before it began.
            if (complete)
                m_uploader->startUpload(videoFile, title);
            else
                endUnconfigured(serviceKey);
        },
        Qt::QueuedConnection);
}

void UploadController::connectUploader()
{
    connect(m_uploader, &BaseUploader::signInStarted, this, &UploadController::signInStarted);
    connect(m_uploader, &BaseUploader::browserOpened, this, &UploadController::browserOpened);
    connect(m_uploader, &BaseUploader::signInEnded, this, &UploadController::signInEnded);
    connect(m_uploader, &BaseUploader::started, this, &UploadController::started);
    connect(m_uploader, &BaseUploader::progress, this, &UploadController::progress);
    connect(m_uploader, &BaseUploader::finished, this,
            [this](const QString &fileId, const QString &fileUrl) {
                releaseUploader();
                emit finished(fileId, fileUrl);
            });
    connect(m_uploader, &BaseUploader::failed, this, [this](const QString &error) {
        releaseUploader();
        if (m_canceling)
            emit canceled();
        else
            emit failed(error);
    });
}

void UploadController::endUnconfigured(const QString &serviceKey)
{
    releaseUploader();
    const UploadService *service = findUploadService(serviceKey);
    emit failed(tr("Uploading to %1 is not configured. The addresses and the registration of the "
                   "service belong into the file '%2'.")
                    .arg(service ? service->successName : serviceKey, Paths::servicesFile()));
}

void UploadController::cancel()
{
    if (!m_running)
        return;
    m_canceling = true;
    m_uploader->abort();
}

void UploadController::releaseUploader()
{
    m_running = false;
    m_uploader->disconnect(this);
    m_uploader->deleteLater();
    m_uploader.clear();
}

} // namespace velmora
