// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "services/UpdateChecker.h"

#include <QObject>
#include <QString>

class QWidget;

namespace velmora
{

/// The check for a newer version and the dialog that tells of it. "update/download" and
/// "update/notes" of the configuration are the pages that the dialog offers. GUI thread.
class UpdateNotice : public QObject
{
    Q_OBJECT
public:
    /// The references must outlive the object; the dialog is shown above @p window, the parent.
    UpdateNotice(const ServicesConfig &services, QSettings &store, QWidget *window);

    /// Asks the service once, unless that is switched off or not configured.
    void check() { m_checker.checkUpdates(); }
    /// Shows the dialog, and returns at once.
    void show(const QString &version);

signals:
    void newVersion(const QString &version); ///< At most once per check().

private:
    const ServicesConfig &m_services;
    QWidget *m_window;
    UpdateChecker m_checker;
};

} // namespace velmora
