// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/CrashDump.h"

#include "platform/linux/StackDumpFile.h"

#include <QFile>

#include <boost/stacktrace/safe_dump_to.hpp>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <unistd.h>

namespace velmora
{

namespace
{

constexpr std::array<int, 5> kSignals = {SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL};

// The handler may neither allocate nor lock: all that it needs lies in these from install() on.
std::array<char, 4096> dumpFile;
std::array<struct sigaction, kSignals.size()> previousActions;
alignas(16) std::array<char, 64 * 1024> handlerStack;
std::atomic_bool installed{false};
std::atomic_flag dumping = ATOMIC_FLAG_INIT;
std::atomic<pid_t> dumper{0}; ///< The thread that writes; 0 without one.

void writeText(int file, const char *text)
{
    if (::write(file, text, std::strlen(text)) < 0)
        return; // A full disk: the frames are already in the file.
}

void writeNumber(int file, int number)
{
    std::array<char, 12> digits = {};
    size_t position = digits.size() - 1;
    do {
        digits[--position] = static_cast<char>('0' + number % 10);
        number /= 10;
    } while (number > 0 && position > 0);
    writeText(file, &digits[position]);
}

// The addresses of the frames mean nothing to a later process without the places of the modules.
void copyMaps(int file)
{
    const int maps = ::open("/proc/self/maps", O_RDONLY | O_CLOEXEC);
    if (maps < 0)
        return;
    std::array<char, 4096> buffer;
    ssize_t count = 0;
    while ((count = ::read(maps, buffer.data(), buffer.size())) > 0) {
        if (::write(file, buffer.data(), static_cast<size_t>(count)) < 0)
            break;
    }
    ::close(maps);
}

bool writeDump(int signalNumber)
{
    if (boost::stacktrace::safe_dump_to(dumpFile.data()) == 0)
        return false;
    const int file = ::open(dumpFile.data(), O_WRONLY | O_APPEND | O_CLOEXEC);
    if (file < 0)
        return false;
    writeText(file, StackDumpFile::kSignalTag);
    writeNumber(file, signalNumber);
    writeText(file, "\n");
    copyMaps(file);
    ::close(file);
    return true;
}

void onSignal(int signalNumber)
{
    const int savedError = errno;
    // A thread that crashes while another one writes waits for that; one that crashes while it
    // writes itself just ends the process.
    const pid_t self = ::gettid();
    constexpr timespec pause = {0, 10'000'000};
    while (dumper != self && dumping.test_and_set())
        ::nanosleep(&pause, nullptr);
    if (dumper.exchange(self) != self)
        writeDump(signalNumber);
    errno = savedError;
    // SA_RESETHAND brought the default action back; the signal, blocked until this handler returns,
    // then ends the process the way it would have without the handler.
    ::raise(signalNumber);
}

} // namespace

bool CrashDump::install(const QString &file, QString *error)
{
    const QByteArray name = QFile::encodeName(file);
    if (name.isEmpty() || static_cast<size_t>(name.size()) >= dumpFile.size()) {
        *error = QStringLiteral("unusable file name '%1'").arg(file);
        return false;
    }
    std::memcpy(dumpFile.data(), name.constData(), static_cast<size_t>(name.size()) + 1);

    // The first walk over the stack loads what the unwinder needs; later ones do not allocate.
    std::array<void *, 8> frames;
    boost::stacktrace::safe_dump_to(frames.data(), sizeof(frames));

    stack_t stack = {};
    stack.ss_sp = handlerStack.data();
    stack.ss_size = handlerStack.size();
    struct sigaction action = {};
    action.sa_handler = onSignal;
    action.sa_flags = SA_ONSTACK | static_cast<int>(SA_RESETHAND);
    sigemptyset(&action.sa_mask);
    bool ok = ::sigaltstack(&stack, nullptr) == 0;
    for (size_t i = 0; ok && i < kSignals.size(); ++i)
        ok = ::sigaction(kSignals[i], &action, installed ? nullptr : &previousActions[i]) == 0;
    if (!ok)
        *error = QString::fromLocal8Bit(std::strerror(errno));
    installed = ok;
    return ok;
}

void CrashDump::uninstall()
{
    if (!installed.exchange(false))
        return;
    for (size_t i = 0; i < kSignals.size(); ++i)
        ::sigaction(kSignals[i], &previousActions[i], nullptr);
}

bool CrashDump::write()
{
    if (!installed || dumping.test_and_set())
        return false;
    dumper = ::gettid();
    const bool ok = writeDump(0);
    dumper = 0;
    dumping.clear();
    return ok;
}

QStringList CrashDump::describe(const QString &file)
{
    return StackDumpFile::describe(file);
}

} // namespace velmora
