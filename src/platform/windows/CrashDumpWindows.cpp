// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/CrashDump.h"

#include "platform/PlatformLog.h"

#include <QDir>
#include <QFileInfo>

#include <windows.h>

#include <dbghelp.h>

#include <csignal>

namespace velmora
{

namespace
{

using WriteFunction = BOOL(WINAPI *)(HANDLE, DWORD, HANDLE, MINIDUMP_TYPE,
                                     PMINIDUMP_EXCEPTION_INFORMATION,
                                     PMINIDUMP_USER_STREAM_INFORMATION,
                                     PMINIDUMP_CALLBACK_INFORMATION);

// Found at installation: a crashing process should load no library any more.
WriteFunction writeFunction = nullptr;
std::wstring dumpFile;
LPTOP_LEVEL_EXCEPTION_FILTER previousFilter = nullptr;

bool writeDump(EXCEPTION_POINTERS *pointers)
{
    if (!writeFunction)
        return false;
    const HANDLE file = CreateFileW(dumpFile.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    MINIDUMP_EXCEPTION_INFORMATION information = {};
    information.ThreadId = GetCurrentThreadId();
    information.ExceptionPointers = pointers;
    const BOOL ok = writeFunction(GetCurrentProcess(), GetCurrentProcessId(), file, MiniDumpNormal,
                                  pointers ? &information : nullptr, nullptr, nullptr);
    CloseHandle(file);
    return ok != FALSE;
}

LONG WINAPI onException(EXCEPTION_POINTERS *pointers)
{
    if (writeDump(pointers))
        qCCritical(lcPlatform) << "Mini dump is inside";
    return previousFilter ? previousFilter(pointers) : EXCEPTION_CONTINUE_SEARCH;
}

// abort(), which also ends a process whose exception nobody catches, is no exception of the system.
void onAbort(int)
{
    if (writeDump(nullptr))
        qCCritical(lcPlatform) << "Mini dump is inside";
}

WriteFunction findWriteFunction(QString *error)
{
    const HMODULE library = LoadLibraryW(L"Dbghelp.dll");
    if (!library) {
        *error = QStringLiteral("Cannot find Dbghelp.dll");
        return nullptr;
    }
    const FARPROC found = GetProcAddress(library, "MiniDumpWriteDump");
    if (!found)
        *error = QStringLiteral("Cannot find MiniDumpWriteDump in Dbghelp.dll");
    return reinterpret_cast<WriteFunction>(reinterpret_cast<void *>(found));
}

} // namespace

bool CrashDump::install(const QString &file, QString *error)
{
    writeFunction = findWriteFunction(error);
    if (!writeFunction) {
        qCWarning(lcPlatform).noquote() << *error;
        return false;
    }
    dumpFile = QDir::toNativeSeparators(file).toStdWString();
    previousFilter = SetUnhandledExceptionFilter(onException);
    std::signal(SIGABRT, onAbort);
    return true;
}

void CrashDump::uninstall()
{
    if (!writeFunction)
        return;
    SetUnhandledExceptionFilter(previousFilter);
    std::signal(SIGABRT, SIG_DFL);
    writeFunction = nullptr;
}

bool CrashDump::write()
{
    return writeDump(nullptr);
}

QStringList CrashDump::describe(const QString &file)
{
    const QFileInfo info(file);
    if (!info.isFile() || info.size() == 0)
        return {};
    return {QStringLiteral("Mini dump of %1 bytes").arg(info.size())};
}

} // namespace velmora
