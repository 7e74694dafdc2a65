// SPDX-License-Identifier: GPL-3.0-or-later
// An external program that does what its arguments say, one after another: the words of ToolActs.h,
// and "-version" to print what a file beside it says, named like it with ".version" behind.
#include "fakes/ToolActs.h"

#include <iostream>
#include <vector>

int main(int argc, char **argv)
{
    const std::vector<std::string> words(argv + 1, argv + argc);
    for (size_t i = 0; i < words.size(); ++i) {
        if (words[i] == "-version")
            std::cout << std::ifstream(std::string(argv[0]) + ".version").rdbuf() << std::endl;
        else if (!velmora::act(words[i]) && i + 1 < words.size() &&
                 velmora::act(words[i], words[i + 1]))
            ++i;
    }
    return 0;
}
