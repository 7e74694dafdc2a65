// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/CorDialog.h"

namespace velmora
{

/// Tells that an upload went well; "OPEN", in the service's colours, opens the file's page in the
/// desktop's browser. GUI thread.
class UploadSuccessWindow : public CorDialog
{
    Q_OBJECT
public:
    /// @p serviceKey as in UploadServices.h; without a web address in @p fileUrl there is nothing
    /// to open, and the button is hidden.
    UploadSuccessWindow(const QString &serviceKey, const QString &fileUrl,
                        QWidget *parent = nullptr);
};

} // namespace velmora
