// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/MetricSetup.h"

#include "app/Identity.h"
#include "app/ServicesConfig.h"
#include "services/InstallationId.h"
#include "services/MetricSender.h"

#include <QSettings>

namespace velmora
{

namespace
{

constexpr int kDefaultBatch = 10;

} // namespace

void setUpMetrics(MetricSender &sender, const ServicesConfig &services, bool agreed,
                  QSettings &store)
{
    const QString address = services.value(QStringLiteral("metrics/address"));
    if (address.isEmpty() || !agreed) {
        sender.configure(QUrl(), QString(), kDefaultBatch, false);
        return;
    }
    bool ok = false;
    const int batch = services.value(QStringLiteral("metrics/batch")).toInt(&ok);
    const QString common =
        QStringLiteral("ver=%1&id=%2").arg(programVersion(), installationId(store));
    sender.configure(QUrl(address), common, ok ? batch : kDefaultBatch, true);
}

} // namespace velmora
