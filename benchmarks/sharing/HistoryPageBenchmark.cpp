// SPDX-License-Identifier: GPL-3.0-or-later
// Run it with QT_QPA_PLATFORM=offscreen, or on a display.
#include "chrome/Theme.h"
#include "project/SavedHistory.h"
#include "sharing/history/HistoryRowWidget.h"
#include "sharing/history/HistoryWidget.h"

#include <QApplication>

#include <benchmark/benchmark.h>

using namespace velmora;

namespace
{

/// From the click on "History" to the first rows on the screen. The page shall open within half a
/// second.
void openHistoryPage(benchmark::State &state)
{
    SavedHistory saved(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        auto page = std::make_unique<HistoryWidget>(saved.store(), saved.settings());
        page->resize(1280, 800);
        page->show();
        page->reload();
        benchmark::DoNotOptimize(page->grab());
        if (!page->findChild<HistoryRowWidget *>()) {
            state.SkipWithError("No row was shown.");
            break;
        }
        state.PauseTiming();
        page.reset();
        state.ResumeTiming();
    }
}

BENCHMARK(openHistoryPage)->Arg(100)->Arg(2000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Theme::install(application);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
