// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>

namespace velmora
{

/// Protects short texts that are kept on disk, so that only the same user on the same machine can
/// read them: CryptProtectData on Windows; elsewhere an authenticated cipher whose key lies in the
/// desktop's Secret Service, or where there is none in a file that only the owner may read. GUI
/// thread; the first call may wait for the desktop's key ring, with the event loop running.
class Secrets
{
public:
    virtual ~Secrets() = default;
    /// Nothing when it fails; then lastError() says why.
    virtual std::optional<QByteArray> protect(const QByteArray &plain) = 0;
    /// Nothing for bytes that were damaged, or protected by another user or on another machine.
    virtual std::optional<QByteArray> unprotect(const QByteArray &sealed) = 0;
    /// The system's error code of the last call that failed.
    virtual unsigned long lastError() const = 0;
};

/// Where the key lies. Windows keeps its own, and does not look at this.
enum class SecretKeyPlace {
    Desktop, ///< The desktop's Secret Service if it answers and no key file exists yet.
    File,    ///< "secrets.key" in the data folder, with mode 0600.
};

std::unique_ptr<Secrets> createSecrets(const QString &dataFolder,
                                       SecretKeyPlace place = SecretKeyPlace::Desktop);

} // namespace velmora
