// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QSettings;

namespace velmora
{

class Secrets;

/// The services' tokens in the settings: hexadecimal text of what the platform's protection makes
/// of them. Refers to both, which must outlive it. GUI thread.
class TokenStore
{
public:
    TokenStore(QSettings &settings, Secrets &secrets) : m_settings(settings), m_secrets(secrets) {}

    /// Empty if none is stored, or if it cannot be read here, which is logged.
    QString load(const QString &key);
    /// A token that cannot be protected is not stored, with a log line: the user then has to sign
    /// in each time.
    void save(const QString &key, const QString &token);

private:
    void logFailure(const QString &key) const;

    QSettings &m_settings;
    Secrets &m_secrets;
};

} // namespace velmora
