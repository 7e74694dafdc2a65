// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ServicesConfig.h"

#include "app/AppSettings.h"

#include <QSettings>

namespace velmora
{

ServicesConfig ServicesConfig::fromFile(const QString &fileName)
{
    ServicesConfig config;
    const std::unique_ptr<QSettings> file = openSettings(fileName);
    const QStringList keys = file->allKeys();
    for (const QString &key : keys) {
        // An unquoted comma makes QSettings read a list; in an address it is just a comma.
        const QStringList parts = file->value(key).toStringList();
        config.m_values.insert(key, parts.join(QLatin1Char(',')).trimmed());
    }
    return config;
}

QString ServicesConfig::value(const QString &key) const
{
    const QByteArray variable = variableName(key);
    if (qEnvironmentVariableIsSet(variable.constData()))
        return qEnvironmentVariable(variable.constData()).trimmed();
    return m_values.value(key);
}

QByteArray ServicesConfig::variableName(const QString &key)
{
    QByteArray name = "VELMORA_" + key.toUpper().toLatin1();
    for (char &c : name) {
        const bool plain = (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
        if (!plain)
            c = '_';
    }
    return name;
}

} // namespace velmora
