// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/ServicesConfig.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

class QSettings;
class QWidget;

namespace velmora
{

class BaseUploader;
class Secrets;

/// Runs one upload at a time for whoever shows it: makes the service's uploader, signs the user in
/// where that is needed and hands its signals on. Services are named by their keys "youtube",
/// "googledrive" and "dropbox". Every upload ends in exactly one of finished(), failed() and
/// canceled(), never before upload() has returned. GUI thread.
class UploadController : public QObject
{
    Q_OBJECT
public:
    /// @p store keeps the protected tokens and must outlive the controller.
    UploadController(const ServicesConfig &services, QSettings &store, QObject *parent = nullptr);
    /// The same with @p secrets in place of the platform's.
    UploadController(const ServicesConfig &services, QSettings &store,
                     std::unique_ptr<Secrets> secrets, QObject *parent = nullptr);
    ~UploadController() override;

    /// Whether the service's addresses and client identifier are configured. Without them an upload
    /// fails with a text that says so.
    bool isConfigured(const QString &serviceKey) const;
    bool isRunning() const;

    /// Starts to upload @p videoFile. A key that names no service is logged, and nothing else
    /// happens; so it is while another upload runs. @p parent is the window above which a sign-in
    /// page may be shown.
    void upload(const QString &serviceKey, const QString &videoFile, const QString &title,
                QWidget *parent);
    /// Ends the upload or the sign-in; nothing happens if none runs.
    void cancel();

signals:
    /// The user is being asked to sign in, before started() or in the middle of the upload.
    void signInStarted();
    void browserOpened();       ///< The page for that is shown in the system's browser.
    void signInEnded();         ///< The user has signed in, and the upload goes on.
    void started();             ///< The first bytes are on their way; once.
    void progress(int percent); ///< 0 to 100.
    void finished(const QString &fileId, const QString &fileUrl);
    void failed(const QString &error); ///< A text for the user; not after cancel().
    void canceled();                   ///< After cancel().

private:
    void connectUploader();
    void endUnconfigured(const QString &serviceKey);
    void releaseUploader();

    ServicesConfig m_services;
    QSettings &m_store;
    std::unique_ptr<Secrets> m_secrets;
    QPointer<BaseUploader> m_uploader;
    bool m_running = false;
    bool m_canceling = false;
};

} // namespace velmora
