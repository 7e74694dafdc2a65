// SPDX-License-Identifier: GPL-3.0-or-later
// The time of one frame of each transition effect, as the mean over the whole transition and for
// its slowest moment, at the two large output sizes. The transition is played several times, and
// each of its moments counts with its best time, because other programs disturb single frames.
#include "generator/transitions/Transition.h"

#include <benchmark/benchmark.h>

#include <QImage>

#include <algorithm>
#include <array>
#include <ctime>
#include <limits>

using namespace velmora;

namespace
{

constexpr int kFrames = 50;
constexpr int kRounds = 3;

QImage picture(const QSize &size, int seed)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x)
            row[x] = qRgb((x * seed) & 255, (y * seed) & 255, (x ^ y) & 255);
    }
    return image;
}

void renderEffect(benchmark::State &state, TransitionType type, QSize size)
{
    const QImage from = picture(size, 1);
    const QImage to = picture(size, 3);
    QImage target(size, QImage::Format_RGB32);
    target.fill(Qt::black);
    int frame = 0;
    std::array<double, kFrames> best;
    best.fill(std::numeric_limits<double>::max());
    for (auto iteration : state) {
        (void)iteration;
        frame = frame % (kFrames - 1) + 1;
        const std::clock_t begin = std::clock();
        renderTransitionFrame(type, from, to, {frame, kFrames}, target);
        const double time = 1000.0 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
        best[static_cast<size_t>(frame)] = std::min(best[static_cast<size_t>(frame)], time);
        benchmark::DoNotOptimize(target.constBits());
    }
    state.counters["slowest_ms"] = *std::max_element(best.begin() + 1, best.end());
}

void registerAll()
{
    for (const QSize &size : {QSize(1920, 1080), QSize(3840, 2160)}) {
        for (int type = 0; type < kTransitionCount; ++type) {
            if (static_cast<TransitionType>(type) == TransitionType::Random)
                continue;
            const QString name = QStringLiteral("%1/%2x%3")
                                     .arg(transitionName(type))
                                     .arg(size.width())
                                     .arg(size.height());
            benchmark::RegisterBenchmark(qPrintable(name),
                                         [type, size](benchmark::State &state) {
                                             renderEffect(state, static_cast<TransitionType>(type),
                                                          size);
                                         })
                ->Unit(benchmark::kMillisecond)
                ->Iterations(kRounds * (kFrames - 1));
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    registerAll();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
