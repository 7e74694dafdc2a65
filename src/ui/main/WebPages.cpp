// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main/WebPages.h"

#include "app/ServicesConfig.h"
#include "services/MetricSender.h"
#include "ui/UiLog.h"

#include <QDesktopServices>
#include <QUrl>

namespace velmora
{

namespace
{

QString manualKey()
{
    return QStringLiteral("site/manual");
}

QString homeKey()
{
    return QStringLiteral("site/home");
}

void open(const QString &address, const QString &word)
{
    if (QDesktopServices::openUrl(QUrl(address)))
        return;
    qCWarning(lcUi).noquote() << "Cannot open in a browser:" << address;
    MetricSender::instance().record(QStringLiteral("err0"), word);
}

} // namespace

bool WebPages::hasManual() const
{
    return m_services.isConfigured(manualKey());
}

bool WebPages::hasHomePage() const
{
    return m_services.isConfigured(homeKey());
}

void WebPages::openManual(const QString &place) const
{
    QString address = m_services.value(manualKey());
    address.replace(QLatin1String("%1"), place);
    open(address, place);
}

void WebPages::openHomePage() const
{
    open(m_services.value(homeKey()), QStringLiteral("websiate_url"));
}

} // namespace velmora
