// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helpers/Crash.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <thread>
#include <unistd.h>

namespace velmora
{

/// What fake programs do on request. True when @p word is one of
///   deaf     ignore requests to end
///   hang     sleep until killed
///   crash    end as the system ends a program that crashes
inline bool act(const std::string &word)
{
    if (word == "deaf")
        std::signal(SIGTERM, SIG_IGN);
    else if (word == "hang")
        std::this_thread::sleep_for(std::chrono::hours(24));
    else if (word == "crash")
        crash();
    else
        return false;
    return true;
}

/// The same for words with a value:
///   out TEXT, err TEXT     print a line
///   flood BYTES            fill standard error
///   touch FILE             make a file, to tell that this point was reached
///   pid FILE               write the process id to the file
///   exit CODE              end
inline bool act(const std::string &word, const std::string &value)
{
    if (word == "out")
        std::printf("%s\n", value.c_str());
    else if (word == "err")
        std::fprintf(stderr, "%s\n", value.c_str());
    else if (word == "flood")
        for (long written = 0; written < std::stol(value); written += 100)
            std::fprintf(stderr, "%s\n", std::string(99, 'x').c_str());
    else if (word == "touch")
        std::ofstream{value};
    else if (word == "pid")
        std::ofstream{value} << getpid();
    else if (word == "exit")
        std::exit(std::stoi(value));
    else
        return false;
    std::fflush(stdout);
    return true;
}

} // namespace velmora
