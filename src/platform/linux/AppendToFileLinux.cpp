// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/AppendToFile.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace velmora
{

bool appendToFile(const QString &path, const QByteArray &bytes)
{
    const QByteArray name = QFile::encodeName(path);
    const int file = ::open(name.constData(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
    if (file < 0)
        return false;
    ssize_t written = 0;
    do {
        written = ::write(file, bytes.constData(), static_cast<size_t>(bytes.size()));
    } while (written < 0 && errno == EINTR);
    ::close(file);
    return written == bytes.size();
}

} // namespace velmora
