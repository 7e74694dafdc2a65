// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/CorDialog.h"

#include <QUrl>

namespace velmora
{

/// Tells of a newer version. "DOWNLOAD" and the link open pages in the desktop's browser, after the
/// dialog has returned. GUI thread.
class UpdateDialog : public CorDialog
{
    Q_OBJECT
public:
    /// Addresses that are not of the web are left out: without @p notes there is no link, without
    /// @p download nothing to download.
    UpdateDialog(const QString &version, const QUrl &download, const QUrl &notes,
                 QWidget *parent = nullptr);

private:
    void openLater(const QUrl &address);

    QUrl m_download;
    QUrl m_notes;
};

} // namespace velmora
