// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/DesktopKeyRing.h"

#include "platform/PlatformLog.h"

#include <QEventLoop>
#include <QPointer>
#include <QTimer>

#include <qt5keychain/keychain.h>

namespace velmora
{

namespace
{

constexpr int kPatience = 60000; // ms
const QString kService = QStringLiteral("Corvel Velmora");
const QString kEntry = QStringLiteral("token key");

// The job deletes itself when it ends, which may be after this gave up on it.
template <typename Job, typename Take> QKeychain::Error run(Job *job, Take take)
{
    QEventLoop loop;
    QKeychain::Error error = QKeychain::OtherError;
    QObject::connect(job, &QKeychain::Job::finished, &loop, [&](QKeychain::Job *ended) {
        error = ended->error();
        take(*static_cast<Job *>(ended));
        loop.quit();
    });
    QTimer::singleShot(kPatience, &loop, &QEventLoop::quit);
    job->setKey(kEntry);
    job->setInsecureFallback(false);
    job->start();
    // A window must not be closed, nor a second upload begun, while the key is on its way.
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    return error;
}

} // namespace

DesktopKeyRing::Answer DesktopKeyRing::read(QByteArray &value)
{
    const QKeychain::Error error =
        run(new QKeychain::ReadPasswordJob(kService),
            [&value](const QKeychain::ReadPasswordJob &job) { value = job.binaryData(); });
    switch (error) {
    case QKeychain::NoError:
        return Answer::Found;
    case QKeychain::EntryNotFound:
        return Answer::Missing;
    case QKeychain::AccessDenied:
    case QKeychain::AccessDeniedByUser:
        return Answer::Refused;
    default:
        return Answer::Unavailable;
    }
}

bool DesktopKeyRing::write(const QByteArray &value)
{
    auto *job = new QKeychain::WritePasswordJob(kService);
    job->setBinaryData(value);
    const QKeychain::Error error = run(job, [](const QKeychain::WritePasswordJob &) {});
    if (error != QKeychain::NoError)
        qCInfo(lcPlatform) << "The desktop's key ring does not take the key, error" << error;
    return error == QKeychain::NoError;
}

} // namespace velmora
