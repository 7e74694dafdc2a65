// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/upload/ServiceSetup.h"

#include "app/ServicesConfig.h"
#include "sharing/SharingLog.h"

#include <QHostAddress>

#include <algorithm>

namespace velmora
{

namespace
{

struct ServiceFacts {
    const char *key;
    const char *tokenKey;
    const char *authorizationPath;
    const char *tokenPath;
    const char *scopePath;
    const char *uploadKey;
    bool needsWeb;
    bool needsFolder;
    quint16 port;
};

constexpr ServiceFacts kServices[] = {
    {"youtube", "yt", "/o/oauth2/v2/auth", "/oauth2/v4/token", "/auth/youtube", "upload", true,
     false, 15674},
    {"googledrive", "gd", "/o/oauth2/v2/auth", "/oauth2/v4/token", "/auth/drive.file", "upload",
     false, false, 15674},
    {"dropbox", "db", "/1/oauth2/authorize", "/oauth2/token", "", "content", true, true, 8673},
};

constexpr int kShortestStall = 1;    // s
constexpr int kLongestStall = 3600;  // s
constexpr int kLongestDelay = 60000; // ms

class Section
{
public:
    Section(const ServicesConfig &config, const QString &name) : m_config(config), m_name(name) {}

    QString text(const char *key) const { return m_config.value(path(key)); }

    int number(const char *key, int fallback, int lowest, int highest) const
    {
        bool ok = false;
        const int value = text(key).toInt(&ok);
        return ok && value >= lowest && value <= highest ? value : fallback;
    }

    QUrl address(const char *key) const
    {
        const QString configured = text(key);
        const QUrl url(configured, QUrl::StrictMode);
        if (configured.isEmpty() || isUsable(url))
            return url;
        qCWarning(lcSharing).noquote()
            << QStringLiteral("The address of '%1' is not secure or no address").arg(path(key));
        return {};
    }

private:
    QString path(const char *key) const { return m_name + QLatin1Char('/') + QLatin1String(key); }

    static bool isUsable(const QUrl &url)
    {
        const QString host = url.host();
        const bool local = host == QLatin1String("localhost") || QHostAddress(host).isLoopback();
        const bool secure = url.scheme() == QLatin1String("https") ||
                            (url.scheme() == QLatin1String("http") && local);
        return secure && url.isValid() && !host.isEmpty() && !url.hasQuery() &&
               !url.hasFragment() && url.userInfo().isEmpty();
    }

    const ServicesConfig &m_config;
    const QString m_name;
};

NetworkOptions readNetwork(const ServicesConfig &config)
{
    const Section section(config, QStringLiteral("network"));
    NetworkOptions options;
    options.caFile = section.text("ca_file");
    options.stallMs =
        1000 * section.number("timeout", options.stallMs / 1000, kShortestStall, kLongestStall);
    options.retryMs = section.number("retry_delay", options.retryMs, 0, kLongestDelay);
    return options;
}

} // namespace

ServiceSetup ServiceSetup::read(const ServicesConfig &config, const QString &serviceKey)
{
    ServiceSetup setup;
    const auto *facts =
        std::find_if(std::begin(kServices), std::end(kServices), [&](const ServiceFacts &service) {
            return serviceKey == QLatin1String(service.key);
        });
    if (facts == std::end(kServices))
        return setup;
    const Section section(config, serviceKey);
    const QUrl accounts = section.address("accounts");
    setup.serviceKey = serviceKey;
    setup.tokenKey = QLatin1String(facts->tokenKey);
    setup.clientId = section.text("client_id");
    setup.clientSecret = section.text("client_secret");
    setup.folder = section.text("folder");
    setup.apiUrl = section.address("api");
    setup.uploadUrl = section.address(facts->uploadKey);
    setup.webUrl = section.address("web");
    setup.port = static_cast<quint16>(section.number("port", facts->port, 1, 65535));
    setup.network = readNetwork(config);
    setup.authorizationUrl = serviceUrl(accounts, QLatin1String(facts->authorizationPath));
    setup.tokenUrl = serviceUrl(setup.apiUrl, QLatin1String(facts->tokenPath));
    if (*facts->scopePath != '\0')
        setup.scope = serviceUrl(setup.apiUrl, QLatin1String(facts->scopePath)).toString();
    setup.m_complete = !setup.clientId.isEmpty() && !setup.clientSecret.isEmpty() &&
                       !accounts.isEmpty() && !setup.apiUrl.isEmpty() &&
                       !setup.uploadUrl.isEmpty() &&
                       (!facts->needsWeb || !setup.webUrl.isEmpty()) &&
                       (!facts->needsFolder || !setup.folder.isEmpty());
    return setup;
}

QUrl serviceUrl(const QUrl &base, const QString &path, const QString &query)
{
    if (base.isEmpty())
        return {};
    QUrl url = base;
    QString folder = base.path(QUrl::FullyEncoded);
    if (folder.endsWith(QLatin1Char('/')))
        folder.chop(1);
    url.setPath(folder + path, QUrl::TolerantMode);
    if (!query.isEmpty())
        url.setQuery(query, QUrl::StrictMode);
    return url;
}

QString queryValue(const QString &value)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(value));
}

} // namespace velmora
