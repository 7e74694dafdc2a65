// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/frames/FrameFitter.h"
#include "project/images/ImageLoader.h"
#include "project/images/Thumbnail.h"

#include <QRandomGenerator>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace velmora;

namespace
{

/// A JPEG of 24 megapixels with smooth areas, soft edges and some grain, as cameras write it.
class Photo
{
public:
    Photo()
    {
        constexpr QSize kSize(6000, 4000);
        QRandomGenerator random(24);
        QImage shapes(kSize / 50, QImage::Format_RGB32);
        for (int y = 0; y < shapes.height(); ++y) {
            for (int x = 0; x < shapes.width(); ++x) {
                shapes.setPixel(x, y, random.generate());
            }
        }
        QImage photo = shapes.scaled(kSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        for (int y = 0; y < kSize.height(); ++y) {
            auto *line = reinterpret_cast<QRgb *>(photo.scanLine(y));
            for (int x = 0; x < kSize.width(); ++x) {
                line[x] ^= random.generate() & 0x030303;
            }
        }
        photo.save(path(), "jpg", 90);
    }
    QString path() const { return m_folder.filePath(QStringLiteral("photo.jpg")); }

private:
    QTemporaryDir m_folder;
};

const Photo &photo()
{
    static const Photo photo;
    return photo;
}

/// As the thumbnail thread does for each photo.
void thumbnail(benchmark::State &state)
{
    const QString path = photo().path();
    for (auto _ : state) {
        benchmark::DoNotOptimize(makeThumbnail(path));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(thumbnail)->Unit(benchmark::kMillisecond);

/// As the render does for each slide, for frames of the given width.
void frame(benchmark::State &state)
{
    const QString path = photo().path();
    const int width = static_cast<int>(state.range(0));
    const FrameFormat format{QSize(width, width * 9 / 16), true, true};
    for (auto _ : state) {
        benchmark::DoNotOptimize(fitPhoto(ImageLoader::loadForSize(path, format.size), 0, format));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(frame)->Arg(1280)->Arg(1920)->Arg(3840)->Unit(benchmark::kMillisecond);

/// As the render does for each photo before it begins.
void check(benchmark::State &state)
{
    const QString path = photo().path();
    for (auto _ : state) {
        benchmark::DoNotOptimize(ImageLoader::check(path));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(check)->Unit(benchmark::kMillisecond);

} // namespace
