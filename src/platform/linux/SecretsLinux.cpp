// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Secrets.h"

#include "platform/PlatformLog.h"
#include "platform/linux/DesktopKeyRing.h"
#include "platform/linux/SecretKeyFile.h"

#include <cerrno>
#include <sodium.h>

namespace velmora
{

namespace
{

constexpr int kKeySize = crypto_secretbox_KEYBYTES;
constexpr int kNonceSize = crypto_secretbox_NONCEBYTES;
constexpr int kMacSize = crypto_secretbox_MACBYTES;

unsigned char *bytesOf(QByteArray &array)
{
    return reinterpret_cast<unsigned char *>(array.data());
}

const unsigned char *bytesOf(const QByteArray &array)
{
    return reinterpret_cast<const unsigned char *>(array.constData());
}

void wipe(QByteArray &array)
{
    sodium_memzero(array.data(), static_cast<size_t>(array.size()));
}

// Sealed bytes are the nonce followed by what secretbox makes. The key is fetched for each call
// and wiped afterwards.
class SecretBox : public Secrets
{
public:
    SecretBox(const QString &dataFolder, SecretKeyPlace place)
        : m_file(dataFolder + QStringLiteral("/secrets.key"), kKeySize), m_place(place),
          m_ready(sodium_init() >= 0)
    {
    }

    std::optional<QByteArray> protect(const QByteArray &plain) override
    {
        QByteArray key = m_ready ? fetchKey(true) : QByteArray();
        if (key.size() != kKeySize)
            return fail(keyError());
        QByteArray sealed(kNonceSize + kMacSize + plain.size(), '\0');
        randombytes_buf(sealed.data(), kNonceSize);
        crypto_secretbox_easy(bytesOf(sealed) + kNonceSize, bytesOf(plain),
                              static_cast<unsigned long long>(plain.size()), bytesOf(sealed),
                              bytesOf(qAsConst(key)));
        wipe(key);
        return sealed;
    }

    std::optional<QByteArray> unprotect(const QByteArray &sealed) override
    {
        const int size = sealed.size() - kNonceSize - kMacSize;
        if (size < 0)
            return fail(EBADMSG);
        QByteArray key = m_ready ? fetchKey(false) : QByteArray();
        if (key.size() != kKeySize)
            return fail(keyError());
        QByteArray plain(size, '\0');
        const int result =
            crypto_secretbox_open_easy(bytesOf(plain), bytesOf(sealed) + kNonceSize,
                                       static_cast<unsigned long long>(sealed.size() - kNonceSize),
                                       bytesOf(sealed), bytesOf(qAsConst(key)));
        wipe(key);
        if (result != 0)
            return fail(EBADMSG);
        return plain;
    }

    unsigned long lastError() const override { return m_error; }

private:
    std::nullopt_t fail(int error)
    {
        m_error = static_cast<unsigned long>(error);
        return std::nullopt;
    }

    int keyError() const { return m_file.lastError() == 0 ? EACCES : m_file.lastError(); }

    // Once there is a key file it stays the key's place: what it protects must remain readable
    // when the same user later works within a desktop.
    QByteArray fetchKey(bool create)
    {
        if (m_place == SecretKeyPlace::File || m_file.exists())
            return keyOfFile(create);
        QByteArray key;
        switch (m_keyRing.read(key)) {
        case DesktopKeyRing::Answer::Found:
            if (key.size() == kKeySize || !create)
                return key;
            break;
        case DesktopKeyRing::Answer::Missing:
            break;
        case DesktopKeyRing::Answer::Refused:
            return {};
        case DesktopKeyRing::Answer::Unavailable:
            return keyOfFile(create);
        }
        if (!create)
            return {};
        key = newKey();
        return m_keyRing.write(key) ? key : keyOfFile(true);
    }

    QByteArray keyOfFile(bool create)
    {
        QByteArray key = m_file.exists() ? m_file.read() : QByteArray();
        if (!key.isEmpty() || !create)
            return key;
        QByteArray fresh = newKey();
        key = m_file.create(fresh);
        wipe(fresh);
        return key;
    }

    static QByteArray newKey()
    {
        QByteArray key(kKeySize, '\0');
        crypto_secretbox_keygen(bytesOf(key));
        return key;
    }

    SecretKeyFile m_file;
    DesktopKeyRing m_keyRing;
    const SecretKeyPlace m_place;
    const bool m_ready;
    unsigned long m_error = 0;
};

} // namespace

std::unique_ptr<Secrets> createSecrets(const QString &dataFolder, SecretKeyPlace place)
{
    return std::make_unique<SecretBox>(dataFolder, place);
}

} // namespace velmora
