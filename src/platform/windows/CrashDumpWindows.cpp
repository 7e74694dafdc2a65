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

constexpr ULONG kHandlerStack = 64 * 1024; // Bytes that the handler has when the stack is used up.

// Found at installation: a crashing process should load no library any more.
WriteFunction writeFunction = nullptr;
std::wstring dumpFile;
LPTOP_LEVEL_EXCEPTION_FILTER previousFilter = nullptr;

bool writeFile(DWORD threadId, EXCEPTION_POINTERS *pointers)
{
    const HANDLE file = CreateFileW(dumpFile.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    MINIDUMP_EXCEPTION_INFORMATION information = {};
    information.ThreadId = threadId;
    information.ExceptionPointers = pointers;
    const BOOL ok = writeFunction(GetCurrentProcess(), GetCurrentProcessId(), file, MiniDumpNormal,
                                  pointers ? &information : nullptr, nullptr, nullptr);
    CloseHandle(file);
    return ok != FALSE;
}

// A thread that has used up its stack has no room to write a dump, so one that waits does it.
struct Writer {
    HANDLE thread = nullptr;
    DWORD threadId = 0;
    HANDLE wanted = nullptr; // Signalled with an order, or with quit.
    HANDLE done = nullptr;
    bool quit = false;
    DWORD crashedId = 0;
    EXCEPTION_POINTERS *pointers = nullptr;
    bool succeeded = false;
};
Writer writer;
SRWLOCK writerLock = SRWLOCK_INIT; // Several threads may crash at once.

void tellAboutDump()
{
    qCCritical(lcPlatform) << "Mini dump is inside";
}

bool isStackOverflow(const EXCEPTION_POINTERS *pointers)
{
    return pointers && pointers->ExceptionRecord->ExceptionCode == EXCEPTION_STACK_OVERFLOW;
}

DWORD WINAPI writeWhenWanted(void *)
{
    while (WaitForSingleObject(writer.wanted, INFINITE) == WAIT_OBJECT_0 && !writer.quit) {
        writer.succeeded = writeFile(writer.crashedId, writer.pointers);
        if (isStackOverflow(writer.pointers)) {
            // The thread has no room for what would follow either.
            if (writer.succeeded)
                tellAboutDump();
            TerminateProcess(GetCurrentProcess(), EXCEPTION_STACK_OVERFLOW);
        }
        SetEvent(writer.done);
    }
    return 0;
}

void startWriter()
{
    writer.wanted = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    writer.done = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    writer.thread = CreateThread(nullptr, 0, writeWhenWanted, nullptr, 0, &writer.threadId);
}

void stopWriter()
{
    writer.quit = true;
    SetEvent(writer.wanted);
    WaitForSingleObject(writer.thread, INFINITE);
    for (const HANDLE handle : {writer.thread, writer.wanted, writer.done})
        CloseHandle(handle);
    writer = {};
}

/// Whether the dump was left to the writer. At its end the program has no other threads any more.
bool orderDump(EXCEPTION_POINTERS *pointers)
{
    if (!writer.thread)
        return false;
    writer.crashedId = GetCurrentThreadId();
    writer.pointers = pointers;
    SetEvent(writer.wanted);
    const HANDLE ends[] = {writer.done, writer.thread};
    return WaitForMultipleObjects(2, ends, FALSE, INFINITE) == WAIT_OBJECT_0;
}

bool writeDump(EXCEPTION_POINTERS *pointers)
{
    if (!writeFunction)
        return false;
    if (GetCurrentThreadId() == writer.threadId)
        return writeFile(writer.threadId, pointers);
    AcquireSRWLockExclusive(&writerLock);
    const bool succeeded =
        orderDump(pointers) ? writer.succeeded : writeFile(GetCurrentThreadId(), pointers);
    ReleaseSRWLockExclusive(&writerLock);
    return succeeded;
}

LONG WINAPI onException(EXCEPTION_POINTERS *pointers)
{
    if (writeDump(pointers))
        tellAboutDump();
    return previousFilter ? previousFilter(pointers) : EXCEPTION_CONTINUE_SEARCH;
}

// abort(), which also ends a process whose exception nobody catches, is no exception of the system.
void onAbort(int)
{
    if (writeDump(nullptr))
        tellAboutDump();
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
    startWriter();
    ULONG stack = kHandlerStack;
    SetThreadStackGuarantee(&stack);
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
    stopWriter();
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
