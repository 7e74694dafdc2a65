// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <csignal>

namespace velmora
{

/// Keeps SIGPIPE from the calling thread, and from threads that it starts meanwhile, while it
/// lives: a drive that vanishes is an error of the write and must not end the program.
class PipeSignalBlock
{
public:
    PipeSignalBlock()
    {
        sigset_t set;
        sigemptyset(&set);
        sigaddset(&set, SIGPIPE);
        pthread_sigmask(SIG_BLOCK, &set, &m_before);
    }
    ~PipeSignalBlock() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }
    Q_DISABLE_COPY(PipeSignalBlock)

private:
    sigset_t m_before;
};

} // namespace velmora
