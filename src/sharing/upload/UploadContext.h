// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sharing/upload/ServiceSetup.h"
#include "sharing/upload/TokenStore.h"

#include <QPointer>
#include <QWidget>

namespace velmora
{

/// What an uploader is given.
struct UploadContext {
    ServiceSetup setup;
    TokenStore tokens;
    QPointer<QWidget> window; ///< Above which a sign-in page may be shown.
};

} // namespace velmora
