// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Secrets.h"

#include <windows.h>

#include <dpapi.h>

namespace velmora
{

namespace
{

DATA_BLOB blobOf(const QByteArray &bytes)
{
    // The functions take blobs for reading that are not const.
    auto *data = reinterpret_cast<BYTE *>(const_cast<char *>(bytes.constData()));
    return {static_cast<DWORD>(bytes.size()), data};
}

QByteArray take(const DATA_BLOB &blob)
{
    const QByteArray bytes(reinterpret_cast<const char *>(blob.pbData),
                           static_cast<int>(blob.cbData));
    SecureZeroMemory(blob.pbData, blob.cbData);
    LocalFree(blob.pbData);
    return bytes;
}

class UserSecrets : public Secrets
{
public:
    std::optional<QByteArray> protect(const QByteArray &plain) override
    {
        DATA_BLOB in = blobOf(plain);
        DATA_BLOB out = {};
        return result(CryptProtectData(&in, nullptr, nullptr, nullptr, nullptr, 0, &out), out);
    }

    std::optional<QByteArray> unprotect(const QByteArray &sealed) override
    {
        DATA_BLOB in = blobOf(sealed);
        DATA_BLOB out = {};
        return result(CryptUnprotectData(&in, nullptr, nullptr, nullptr, nullptr, 0, &out), out);
    }

    unsigned long lastError() const override { return m_error; }

private:
    std::optional<QByteArray> result(BOOL ok, const DATA_BLOB &out)
    {
        if (ok)
            return take(out);
        m_error = GetLastError();
        return std::nullopt;
    }

    unsigned long m_error = 0;
};

} // namespace

std::unique_ptr<Secrets> createSecrets(const QString &dataFolder, SecretKeyPlace place)
{
    Q_UNUSED(dataFolder)
    Q_UNUSED(place)
    return std::make_unique<UserSecrets>();
}

} // namespace velmora
