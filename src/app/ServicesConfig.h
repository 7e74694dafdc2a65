// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QString>

namespace velmora
{

/// Addresses, client identifiers and secrets of the services, from "services.ini" beside
/// settings.ini. Keys are "section/name", for example "metrics/address". An environment variable
/// VELMORA_SECTION_NAME overrides its key, with an empty value too. Plain value, read once.
class ServicesConfig
{
public:
    /// Nothing configured but what the environment says.
    ServicesConfig() = default;
    /// Reads @p fileName; a missing or unreadable file configures nothing.
    static ServicesConfig fromFile(const QString &fileName);

    /// The value of @p key; empty means that it is not configured.
    QString value(const QString &key) const;
    bool isConfigured(const QString &key) const { return !value(key).isEmpty(); }

    /// "metrics/address" as "VELMORA_METRICS_ADDRESS".
    static QByteArray variableName(const QString &key);

private:
    QHash<QString, QString> m_values;
};

} // namespace velmora
