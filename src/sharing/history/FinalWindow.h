// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/CorDialog.h"

#include <QString>
#include <QVector>

class QPushButton;

namespace velmora
{

class FileManager;

/// Shown when a video is finished: offers what can be done with it, and closes with any choice but
/// a folder that cannot be shown. GUI thread.
class FinalWindow : public CorDialog
{
    Q_OBJECT
public:
    /// @p fileManager must outlive the window.
    FinalWindow(const QString &video, FileManager &fileManager, QWidget *parent = nullptr);

    /// Disables the uploads until allowUploads(); their tooltips tell @p reason.
    void refuseUploads(const QString &reason);
    void allowUploads();

signals:
    /// The video shall be uploaded to "youtube", "googledrive" or "dropbox". After closing.
    void uploadService(const QString &serviceKey);
    void burnDvd(); ///< The video shall be burnt. After closing.

private:
    void openFolder();
    void setUploads(bool allowed, const QString &toolTip);

    const QString m_video;
    FileManager &m_fileManager;
    QVector<QPushButton *> m_uploadButtons;
    QString m_uploadToolTip; ///< Of those that are not refused.
};

} // namespace velmora
