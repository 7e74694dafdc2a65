// SPDX-License-Identifier: GPL-3.0-or-later
// PreviewBenchmark [WIDTH HEIGHT [MUSIC]]: plays the preview of a slideshow of two large photos
// with each transition, on a real window and in real time, and prints per transition how long one
// frame takes to render and to paint, how many of the frames were dropped, how often the clock
// waited, and the most pictures that were held. With MUSIC the sound plays meanwhile. One core:
// "taskset 1".
#include "app/AppSettings.h"
#include "generator/transitions/Transition.h"
#include "project/documents/ProjectFile.h"
#include "project/slides/ProjectItemSimple.h"
#include "ui/preview/PreviewScript.h"
#include "ui/preview/SlidePictures.h"
#include "ui/preview/SoundOutput.h"
#include "ui/preview/VideoPlayer.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLoggingCategory>
#include <QPainter>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

using namespace velmora;

namespace
{

constexpr QSize kPhoto(6000, 4000);
constexpr int kWarmUp = 600; // ms, in which the first photo is decoded

QString makePhoto(const QTemporaryDir &folder, int variant)
{
    QImage image(kPhoto, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient gradient(0, 0, kPhoto.width(), kPhoto.height());
    gradient.setColorAt(0, QColor::fromHsv(variant * 90 % 360, 120, 230));
    gradient.setColorAt(1, QColor::fromHsv((variant * 90 + 120) % 360, 160, 80));
    painter.fillRect(image.rect(), gradient);
    QRandomGenerator random(static_cast<quint32>(variant));
    for (int i = 0; i < 3000; ++i) {
        painter.setBrush(QColor::fromRgb(random.generate()));
        painter.drawEllipse(random.bounded(kPhoto.width()), random.bounded(kPhoto.height()), 120,
                            90);
    }
    painter.end();
    const QString path = folder.filePath(QStringLiteral("photo%1.jpg").arg(variant));
    if (!image.save(path, nullptr, 92))
        qFatal("The photo cannot be saved.");
    return path;
}

/// A player that measures what painting it takes.
class MeasuredPlayer : public VideoPlayer
{
public:
    double slowestPaint = 0; ///< ms
    double paintTime = 0;    ///< ms
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QElapsedTimer timer;
        timer.start();
        VideoPlayer::paintEvent(event);
        const double time = static_cast<double>(timer.nsecsElapsed()) / 1e6;
        slowestPaint = std::max(slowestPaint, time);
        paintTime += time;
        ++paints;
    }
};

struct Result {
    double frame = 0;   ///< ms, mean
    double slowest = 0; ///< ms
    double paint = 0;   ///< ms, mean
    double slowestPaint = 0;
    int frames = 0;
    int dropped = 0;
    int waits = 0;
    int held = 0;
};

void measureRendering(const PreviewScript::Pointer &script, Result &result)
{
    SlidePictures pictures;
    pictures.paint(script, 0, 0);
    const int count = script->frameCount(1);
    pictures.paint(script, 1, count - 1);
    for (int i = 0; i + 1 < count; ++i) {
        QElapsedTimer timer;
        timer.start();
        pictures.paint(script, 1, i);
        const double time = static_cast<double>(timer.nsecsElapsed()) / 1e6;
        result.frame += time / (count - 1);
        result.slowest = std::max(result.slowest, time);
    }
    result.frames = count;
}

void measurePlaying(const PreviewScript::Pointer &script, const QString &music, Result &result)
{
    MeasuredPlayer player;
    player.resize(script->format().size);
    player.show();
    player.setScript(script);
    SoundOutput sound;
    if (!music.isEmpty() && !sound.load(music))
        std::fprintf(stderr, "The music cannot be played.\n");
    QEventLoop loop;
    QTimer::singleShot(kWarmUp, &loop, &QEventLoop::quit);
    loop.exec();
    QObject::connect(&player, &VideoPlayer::generatingStarted, &loop, [&] { ++result.waits; });
    QObject::connect(&player, &VideoPlayer::stopped, &loop, &QEventLoop::quit);
    QObject::connect(&player, &VideoPlayer::positionChanged, &loop, [&] {
        int held = 0;
        for (int i = 0; i < VideoPlayer::kBuffers; ++i) {
            for (const FrameBuffer::Frame &frame : player.buffer(i).frames)
                held += frame.picture.isNull() ? 0 : 1;
        }
        result.held = std::max(result.held, held);
    });
    sound.play(0);
    player.play();
    loop.exec();
    result.dropped = player.droppedFrames();
    result.paint = player.paintTime / std::max(player.paints, 1);
    result.slowestPaint = player.slowestPaint;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("velmora.*=false"));
    const QStringList arguments = QApplication::arguments();
    const QSize size(arguments.value(1, QStringLiteral("1280")).toInt(),
                     arguments.value(2, QStringLiteral("720")).toInt());
    const QString music = arguments.value(3);
    const QTemporaryDir folder;
    const QStringList photos = {makePhoto(folder, 1), makePhoto(folder, 2)};
    AppSettings settings;
    std::printf("%-22s %8s %8s %8s %8s %7s %7s %6s %5s\n", "transition", "frame ms", "slowest",
                "paint ms", "slowest", "frames", "dropped", "waits", "held");
    int lost = 0;
    for (int type = 0; type < kTransitionCount; ++type) {
        if (static_cast<TransitionType>(type) == TransitionType::Random)
            continue;
        ProjectFile project(settings, ProjectFile::TitleSlide::Omit);
        project.setResolution(size);
        for (const QString &photo : photos)
            project.insertItem(-1, new ProjectItemSimple(photo, 1, type));
        const auto script = PreviewScript::slideshow(project, settings, size);
        Result result;
        measureRendering(script, result);
        measurePlaying(script, music, result);
        lost += result.dropped + result.waits;
        std::printf("%-22s %8.2f %8.2f %8.2f %8.2f %7d %7d %6d %5d\n",
                    qPrintable(transitionName(type)), result.frame, result.slowest, result.paint,
                    result.slowestPaint, result.frames, result.dropped, result.waits, result.held);
        std::fflush(stdout);
    }
    std::printf("dropped frames and waits in all: %d\n", lost);
    return EXIT_SUCCESS;
}
