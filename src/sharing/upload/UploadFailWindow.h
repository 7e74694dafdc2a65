// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/CorDialog.h"

namespace velmora
{

/// Tells that an upload failed, and why. GUI thread.
class UploadFailWindow : public CorDialog
{
    Q_OBJECT
public:
    /// @p error is plain text, as UploadController::failed() hands it over.
    explicit UploadFailWindow(const QString &error, QWidget *parent = nullptr);
};

} // namespace velmora
