// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/AppendToFile.h"

#include <QDir>

#include <windows.h>

namespace velmora
{

bool appendToFile(const QString &path, const QByteArray &bytes)
{
    const std::wstring name = QDir::toNativeSeparators(path).toStdWString();
    const HANDLE file = CreateFileW(name.c_str(), FILE_APPEND_DATA | FILE_READ_DATA,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    // Without FILE_WRITE_DATA the system finds the end of the file and writes in one step, except
    // on the disks of other machines. The lock lies far behind all bytes, so nobody else meets it.
    OVERLAPPED lock = {};
    lock.OffsetHigh = 0x40000000;
    LockFileEx(file, LOCKFILE_EXCLUSIVE_LOCK, 0, 1, 0, &lock);
    DWORD written = 0;
    const BOOL ok =
        WriteFile(file, bytes.constData(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    UnlockFileEx(file, 0, 1, 0, &lock);
    CloseHandle(file);
    return ok != FALSE && written == static_cast<DWORD>(bytes.size());
}

} // namespace velmora
