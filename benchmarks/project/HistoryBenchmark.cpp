// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/SavedHistory.h"

#include <QFileInfo>

#include <benchmark/benchmark.h>

using namespace velmora;

namespace
{

void loadHistory(benchmark::State &state)
{
    const SavedHistory saved(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        HistoryStore history(saved.path(), saved.settings());
        history.load();
        if (history.projects().size() != saved.store().projects().size()) {
            state.SkipWithError("The history was not read whole.");
            break;
        }
        state.PauseTiming();
        history.clear();
        state.ResumeTiming();
    }
    state.counters["MB"] = static_cast<double>(QFileInfo(saved.path()).size()) / 1e6;
}

void saveHistory(benchmark::State &state)
{
    const SavedHistory saved(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        if (!saved.store().save()) {
            state.SkipWithError("The history was not saved.");
            break;
        }
    }
}

BENCHMARK(loadHistory)->Arg(100)->Arg(2000)->Unit(benchmark::kMillisecond);
BENCHMARK(saveHistory)->Arg(100)->Arg(2000)->Unit(benchmark::kMillisecond);

} // namespace
