// SPDX-License-Identifier: GPL-3.0-or-later
// An external program that does what its arguments say, one after another:
//   -version               print what a file beside it says, named like it with ".version" behind
//   out TEXT, err TEXT     print a line
//   flood BYTES            fill standard error
//   touch FILE             make a file, to tell that this point was reached
//   pid FILE               write the process id to the file
//   deaf                   ignore requests to end
//   hang                   sleep until killed
//   crash                  end as the system ends a program that crashes
//   exit CODE              end
#include "helpers/Crash.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

namespace
{

void hang()
{
    for (;;)
        std::this_thread::sleep_for(std::chrono::seconds(1));
}

void flood(long bytes)
{
    const std::string line(99, 'x');
    for (long written = 0; written < bytes; written += 100)
        std::fprintf(stderr, "%s\n", line.c_str());
}

/// True when @p command was one with an argument, which is @p value.
bool runWithValue(const std::string &command, const std::string &value)
{
    if (command == "out")
        std::printf("%s\n", value.c_str());
    else if (command == "err")
        std::fprintf(stderr, "%s\n", value.c_str());
    else if (command == "flood")
        flood(std::stol(value));
    else if (command == "touch")
        std::ofstream{value};
    else if (command == "pid")
        std::ofstream{value} << getpid();
    else if (command == "exit")
        std::exit(std::stoi(value));
    else
        return false;
    std::fflush(stdout);
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    const std::vector<std::string> commands(argv + 1, argv + argc);
    for (size_t i = 0; i < commands.size(); ++i) {
        if (commands[i] == "deaf")
            std::signal(SIGTERM, SIG_IGN);
        else if (commands[i] == "hang")
            hang();
        else if (commands[i] == "crash")
            velmora::crash();
        else if (commands[i] == "-version")
            std::cout << std::ifstream(std::string(argv[0]) + ".version").rdbuf() << std::endl;
        else if (i + 1 < commands.size() && runWithValue(commands[i], commands[i + 1]))
            ++i;
    }
    return 0;
}
