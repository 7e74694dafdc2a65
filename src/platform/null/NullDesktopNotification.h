// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DesktopNotification.h"

namespace velmora
{

/// For desktops without notifications.
class NullDesktopNotification : public DesktopNotification
{
public:
    using DesktopNotification::DesktopNotification;
    void show(const QString &, const QString &) override {}
};

} // namespace velmora
