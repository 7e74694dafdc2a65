// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace velmora
{

/// One upload of one file, whatever the service. After startUpload() it ends with exactly one of
/// failed() and finished(), and emits nothing afterwards. GUI thread.
class BaseUploader : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

signals:
    void failed(QString error); ///< A text for the user.
    void progress(int percent); ///< 0 to 100.
    /// The service's identifier of the file, and the address of the page that shows it.
    void finished(QString fileId, QString fileUrl);
    void started(); ///< The first bytes are sent; once.
    /// The user is asked to sign in: before started(), or again when the service has come to refuse
    /// what it took before.
    void signInStarted();
    void browserOpened(); ///< The page for that is shown in the system's browser.
    void signInEnded();   ///< The user has signed in, and the upload goes on.

public slots:
    virtual void startUpload(QString fileName, QString title) = 0;
    /// Cancels whatever runs, which ends with failed().
    virtual void abort() = 0;
};

} // namespace velmora
