// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/UpdateNotice.h"

#include "ui/update/UpdateDialog.h"

#include <QWidget>

namespace velmora
{

UpdateNotice::UpdateNotice(const ServicesConfig &services, QSettings &store, QWidget *window)
    : QObject(window), m_services(services), m_window(window), m_checker(services, store)
{
    connect(&m_checker, &UpdateChecker::newVersionAvalible, this, &UpdateNotice::newVersion);
}

void UpdateNotice::show(const QString &version)
{
    auto *dialog =
        new UpdateDialog(version, QUrl(m_services.value(QStringLiteral("update/download"))),
                         QUrl(m_services.value(QStringLiteral("update/notes"))), m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

} // namespace velmora
