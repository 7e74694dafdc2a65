// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

#include <memory>

namespace velmora
{

/// Short messages that the desktop shows outside the program's windows. GUI thread.
class DesktopNotification : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    /// Shows a message in place of the one before; both texts are plain. Returns at once, and says
    /// nothing where the desktop has no place for messages.
    virtual void show(const QString &title, const QString &text) = 0;

signals:
    /// The user clicked the message that is shown.
    void activated();
};

/// The notifications of this desktop, or an object that shows nothing.
std::unique_ptr<DesktopNotification> createDesktopNotification();

} // namespace velmora
