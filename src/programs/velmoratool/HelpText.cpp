// SPDX-License-Identifier: GPL-3.0-or-later
#include "programs/velmoratool/HelpText.h"

#include "app/Identity.h"

namespace velmora
{

QString helpText()
{
    return QStringLiteral(
        "Usage: velmoratool make --photos FILE_OR_FOLDER... --output FILE [OPTION...]\n"
        "       velmoratool make --project FILE [OPTION...]\n"
        "Makes a slideshow video of photos and music.\n"
        "\n"
        "Input and output\n"
        "  --photos FILE_OR_FOLDER...  photos, and folders whose photos are all taken\n"
        "  --music FILE_OR_FOLDER...   sound files, played one after the other\n"
        "  --output FILE               the video; its suffix chooses the format: mp4, avi,\n"
        "                              mov, wmv, webm or mkv\n"
        "  --project FILE              render a saved project instead of --photos\n"
        "  --dump-project FILE         write the project to FILE and render nothing\n"
        "\n"
        "Slides\n"
        "  --sort ORDER                given (as named, folders by name), name or date\n"
        "  --time SECONDS              how long each photo stays\n"
        "  --transition NAME           the effect between photos, such as \"Cross fade\";\n"
        "                              a wrong name lists them all\n"
        "  --transition-length SECONDS how long the effect takes\n"
        "  --title TEXT                open with a title slide\n"
        "  --captions-from-names       show each photo's file name as its caption\n"
        "  --stretch                   stretch photos to the whole picture\n"
        "  --original-size             show photos at their own size, cut at the edges\n"
        "\n"
        "Sound\n"
        "  --fade SECONDS              fade the sound in and out\n"
        "  --offset SECONDS            skip the beginning of the music; below 0: start late\n"
        "  --loop                      repeat the music until the video ends\n"
        "\n"
        "Making\n"
        "  --size WIDTHxHEIGHT         the size of the picture, such as 1920x1080\n"
        "  --profile NAME              original (best quality) or everywhere (also plays on\n"
        "                              televisions, phones and in browsers)\n"
        "  --parallel                  work on two slides at a time\n"
        "  --json                      report progress as one JSON object per line\n"
        "\n"
        "  --help                      show this text\n"
        "  --version                   show the version\n"
        "\n"
        "What is left out is taken from the settings of the editor.\n"
        "Exit codes: 0 done, 1 failed, 2 wrong arguments, 3 cancelled.\n");
}

QString versionText()
{
    return QStringLiteral("velmoratool %1\n").arg(programVersion());
}

} // namespace velmora
