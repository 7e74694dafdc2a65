// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/ProcessControl.h"

#include <memory>

#include <windows.h>

#include <tlhelp32.h>

namespace velmora
{

namespace
{

struct HandleCloser {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<void, HandleCloser>;

Handle open(qint64 pid, DWORD rights)
{
    return Handle(OpenProcess(rights, FALSE, static_cast<DWORD>(pid)));
}

/// When the process began, in units of 100 ns; 0 for one that is not accessible.
quint64 startOf(qint64 pid)
{
    const Handle process = open(pid, PROCESS_QUERY_LIMITED_INFORMATION);
    FILETIME start = {};
    FILETIME unused;
    if (process)
        GetProcessTimes(process.get(), &start, &unused, &unused, &unused);
    return quint64(start.dwHighDateTime) << 32 | start.dwLowDateTime;
}

} // namespace

bool ProcessControl::isAlive(qint64 pid)
{
    const Handle process = open(pid, SYNCHRONIZE);
    return process && WaitForSingleObject(process.get(), 0) == WAIT_TIMEOUT;
}

QVector<qint64> ProcessControl::childrenOf(qint64 pid)
{
    QVector<qint64> children;
    // Numbers are used again: what is older than its parent belongs to an earlier one.
    const quint64 parentStart = startOf(pid);
    const Handle all(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
    PROCESSENTRY32W entry = {};
    entry.dwSize = sizeof(entry);
    for (BOOL more = Process32FirstW(all.get(), &entry); more;
         more = Process32NextW(all.get(), &entry)) {
        if (entry.th32ParentProcessID == pid && startOf(entry.th32ProcessID) >= parentStart)
            children.append(entry.th32ProcessID);
    }
    return children;
}

bool ProcessControl::kill(qint64 pid)
{
    const Handle process = open(pid, PROCESS_TERMINATE);
    return process && TerminateProcess(process.get(), 1);
}

bool ProcessControl::crash(qint64 pid)
{
    const Handle process = open(pid, PROCESS_ALL_ACCESS);
    // A thread that begins where no code is.
    const Handle thread(
        CreateRemoteThread(process.get(), nullptr, 0, nullptr, nullptr, 0, nullptr));
    return thread != nullptr;
}

// Ctrl-C reaches all programs of a console: this one and those that it starts get their own.
void ProcessControl::allowInterrupts()
{
    FreeConsole();
    AllocConsole();
}

bool ProcessControl::interrupt(qint64)
{
    SetConsoleCtrlHandler(nullptr, TRUE); // not this process
    return GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0);
}

bool ProcessControl::interruptGroup(qint64 pid)
{
    return interrupt(pid);
}

bool ProcessControl::freeze(qint64 pid)
{
    using Suspend = LONG(WINAPI *)(HANDLE);
    const auto suspend = reinterpret_cast<Suspend>(reinterpret_cast<void *>(
        GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtSuspendProcess")));
    const Handle process = open(pid, PROCESS_SUSPEND_RESUME);
    return suspend && process && suspend(process.get()) >= 0;
}

} // namespace velmora
