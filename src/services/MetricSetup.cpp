// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/MetricSetup.h"

#include "app/Identity.h"
#include "app/ServicesConfig.h"
#include "services/MetricSender.h"

#include <QSettings>
#include <QUuid>

namespace velmora
{

namespace
{

constexpr int kDefaultBatch = 10;

QString installationId(QSettings &store)
{
    const QString key = QStringLiteral("installation_id");
    const QUuid stored = QUuid::fromString(store.value(key).toString());
    const QUuid id = stored.isNull() ? QUuid::createUuid() : stored;
    if (stored.isNull())
        store.setValue(key, id.toString(QUuid::WithoutBraces));
    return id.toString(QUuid::WithoutBraces);
}

} // namespace

void setUpMetrics(MetricSender &sender, const ServicesConfig &services, QSettings &store)
{
    const QString address = services.value(QStringLiteral("metrics/address"));
    const bool agreed = store.value(QStringLiteral("sendStatistics"), false).toBool();
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
