// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/SecretKeyFile.h"

#include "platform/PlatformLog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velmora
{

namespace
{

constexpr mode_t kOwnerOnly = S_IRUSR | S_IWUSR;

bool isOwnFile(const struct stat &status)
{
    return S_ISREG(status.st_mode) && status.st_uid == geteuid();
}

} // namespace

bool SecretKeyFile::exists() const
{
    return QFileInfo::exists(m_path);
}

QByteArray SecretKeyFile::read()
{
    const int descriptor =
        open(QFile::encodeName(m_path).constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
    if (descriptor < 0) {
        m_error = errno;
        if (m_error != ENOENT)
            qCWarning(lcPlatform).noquote()
                << QStringLiteral("Cannot read key file '%1'").arg(m_path) << m_error;
        return {};
    }
    const QByteArray key = readFrom(descriptor);
    close(descriptor);
    return key;
}

QByteArray SecretKeyFile::readFrom(int descriptor)
{
    struct stat status = {};
    if (fstat(descriptor, &status) != 0 || !isOwnFile(status) ||
        ((status.st_mode & 07777) != kOwnerOnly && fchmod(descriptor, kOwnerOnly) != 0)) {
        m_error = EPERM;
        qCWarning(lcPlatform).noquote()
            << QStringLiteral("Key file '%1' is not the user's own").arg(m_path);
        return {};
    }
    QByteArray key(m_keySize + 1, '\0'); // One more shows a file that is too long.
    const ssize_t count = ::read(descriptor, key.data(), static_cast<size_t>(key.size()));
    if (count != m_keySize) {
        m_error = EINVAL;
        qCWarning(lcPlatform).noquote() << QStringLiteral("Key file '%1' is damaged").arg(m_path);
        return {};
    }
    key.chop(1);
    return key;
}

QByteArray SecretKeyFile::create(const QByteArray &key)
{
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    const QByteArray name = QFile::encodeName(m_path);
    QByteArray scratch = name + ".XXXXXX";
    const int descriptor = mkostemp(scratch.data(), O_CLOEXEC); // Makes it with mode 0600.
    if (!writeTo(descriptor, key)) {
        if (descriptor >= 0)
            unlink(scratch.constData());
        return {};
    }
    // A link, unlike a rename, does not replace what another process has made meanwhile.
    bool made = link(scratch.constData(), name.constData()) == 0;
    if (!made && errno == EEXIST && read().isEmpty())
        made = rename(scratch.constData(), name.constData()) == 0;
    unlink(scratch.constData());
    return read();
}

bool SecretKeyFile::writeTo(int descriptor, const QByteArray &key)
{
    const bool ok =
        descriptor >= 0 &&
        write(descriptor, key.constData(), static_cast<size_t>(key.size())) == key.size() &&
        fsync(descriptor) == 0;
    if (!ok) {
        m_error = errno;
        qCWarning(lcPlatform).noquote()
            << QStringLiteral("Cannot write key file '%1'").arg(m_path) << m_error;
    }
    if (descriptor >= 0)
        close(descriptor);
    return ok;
}

} // namespace velmora
