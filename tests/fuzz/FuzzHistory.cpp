// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppSettings.h"
#include "project/documents/HistoryStore.h"

#include <cstdint>
#include <cstdlib>

using namespace velmora;

/// Any bytes: a refused history is empty, and an accepted one can be taken apart.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const AppSettings settings;
    const auto *bytes = reinterpret_cast<const char *>(data);
    HistoryStore history(QString(), settings);
    const bool loaded = history.loadContent(QByteArray(bytes, static_cast<int>(size)));
    if (!loaded && !history.projects().empty()) {
        std::abort();
    }
    while (!history.projects().empty()) {
        const ProjectFile *first = history.projects().front().get();
        if (!history.take(first) || history.take(first)) {
            std::abort();
        }
    }
    return 0;
}
