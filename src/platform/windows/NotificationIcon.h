// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DesktopNotification.h"

namespace velmora
{

/// Balloons of an icon in the notification area, which is there from the first message on.
class NotificationIcon : public DesktopNotification
{
    Q_OBJECT
public:
    NotificationIcon();
    ~NotificationIcon() override;

    void show(const QString &title, const QString &text) override;
    /// A message of the icon's hidden window; only for its window procedure.
    void onIconMessage(unsigned int message);

private:
    void *m_window = nullptr; ///< HWND
    bool m_added = false;
};

} // namespace velmora
