// SPDX-License-Identifier: GPL-3.0-or-later
// RemainingTimeBenchmark [--record FOLDER] [--size WxH] [--slides N] PHOTO...: renders slideshows
// of these photos with the worker beside this program, in both profiles, in order and in parallel,
// and prints what total time (elapsed and remaining) was foretold on the way, as a share of what it
// really took, and from which share of the render on it stayed within 10 %. The second line of each
// counts in processor time, which other programs disturb less. With --record the progress of each
// render is kept as lines of "milliseconds processor-milliseconds frame count".
#include "app/AppSettings.h"
#include "generator/pipeline/RenderRequest.h"
#include "generator/worker/RemainingTime.h"
#include "generator/worker/WorkerOutputReader.h"
#include "project/slides/ProjectItemSimple.h"
#include "project/slides/TransitionType.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <cmath>
#include <cstdio>

#include <unistd.h>

using namespace velmora;

namespace
{

constexpr double kTolerance = 0.1;
constexpr int kCrossFade = 27;

struct Report {
    qint64 time;      // ms since the start of the worker
    qint64 processor; // ms of processor time that it and its children used
    qint64 frame;
    qint64 count;
};

struct Options {
    QStringList photos;
    QSize size;
    int slides;
    QString recordFolder;
};

struct Case {
    const char *name;
    bool mixed; // Slides and effects of all kinds instead of alike ones.
};

void addSlides(ProjectFile &project, const Options &options, bool mixed)
{
    const int times[] = {1, 10, 3, 2, 20, 5, 1, 4};
    for (int i = 0; i < options.slides; ++i) {
        const QString photo = options.photos.at(i % options.photos.size());
        const int effect = mixed ? i * 5 % kTransitionCount : kCrossFade;
        auto *slide =
            new ProjectItemSimple(photo, mixed ? times[i % std::size(times)] : 3,
                                  effect == int(TransitionType::Random) ? kCrossFade : effect);
        if (mixed && i % 3 == 0) {
            CaptionStyle caption;
            caption.text = QStringLiteral("Slide %1").arg(i);
            slide->setCaption(caption);
        }
        project.insertItem(-1, slide);
    }
}

/// The processor time in ms of a process and, with @p ended, of the children that it waited for.
qint64 processorTime(qint64 pid, bool ended)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray text = file.readAll();
    const QList<QByteArray> fields = text.mid(text.lastIndexOf(')') + 2).split(' ');
    qint64 ticks = 0;
    for (int field = 11; field < (ended ? 15 : 13) && field < fields.size(); ++field)
        ticks += fields.at(field).toLongLong();
    return ticks * 1000 / sysconf(_SC_CLK_TCK);
}

qint64 processorTimeOfAll(qint64 pid)
{
    qint64 time = processorTime(pid, true);
    const QString tasks = QStringLiteral("/proc/%1/task").arg(pid);
    for (const QString &task : QDir(tasks).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile children(tasks + QLatin1Char('/') + task + QStringLiteral("/children"));
        if (!children.open(QIODevice::ReadOnly))
            continue;
        for (const QByteArray &child : children.readAll().split(' '))
            time += processorTime(child.toLongLong(), false);
    }
    return time;
}

QVector<Report> render(const QString &request, const QString &cache)
{
    QVector<Report> reports;
    WorkerOutputReader reader;
    QProcess worker;
    QElapsedTimer clock;
    clock.start();
    worker.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    worker.start(QCoreApplication::applicationDirPath() + QStringLiteral("/velmoratool"),
                 {QStringLiteral("--session_id"), QStringLiteral("benchmark"),
                  QStringLiteral("--cache"), cache, QStringLiteral("--request"), request});
    while (worker.waitForReadyRead(-1)) {
        const qint64 now = clock.elapsed();
        const qint64 processor = processorTimeOfAll(worker.processId());
        for (const WorkerMessage &message : reader.feed(worker.readAllStandardOutput())) {
            if (message.kind == WorkerMessage::Kind::Progress)
                reports.append({now, processor, message.frame, message.count});
        }
    }
    worker.waitForFinished(-1);
    if (worker.exitCode() != 0 || reports.isEmpty())
        qFatal("The render failed.");
    reports.last().time = clock.elapsed();
    return reports;
}

void record(const QVector<Report> &reports, const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("The record cannot be written.");
    QTextStream text(&file);
    for (const Report &report : reports)
        text << report.time << ' ' << report.processor << ' ' << report.frame << ' ' << report.count
             << '\n';
}

/// Plays the reports back with a look at the estimate every half second, as the page does.
void judge(const QVector<Report> &reports, qint64 Report::*clock)
{
    const qint64 total = reports.last().*clock;
    RemainingTime estimate;
    double settled = 0;
    double ratios[4] = {};
    int next = 0;
    for (qint64 now = 0; now < total; now += 500) {
        for (; next < reports.size() && reports.at(next).*clock <= now; ++next)
            estimate.update(reports.at(next).*clock, reports.at(next).frame,
                            reports.at(next).count);
        const double share = static_cast<double>(now) / static_cast<double>(total);
        const qint64 left = estimate.remaining(now);
        const double ratio =
            left < 0 ? 0 : static_cast<double>(now + left) / static_cast<double>(total);
        if (std::abs(ratio - 1) > kTolerance)
            settled = share;
        for (int fifth = 0; fifth < 4; ++fifth) {
            if (share <= 0.2 * (fifth + 1))
                ratios[fifth] = ratio;
        }
    }
    std::printf("%7.1f s  %5.2f %5.2f %5.2f %5.2f  settled at %3.0f %%\n",
                static_cast<double>(total) / 1000, ratios[0], ratios[1], ratios[2], ratios[3],
                settled * 100);
}

void measure(const Options &options, const Case &kind, OutputProfile profile, bool parallel)
{
    const QTemporaryDir folder;
    AppSettings settings;
    settings.outputProfile = outputProfileKey(profile);
    settings.speedGeneration = parallel;
    ProjectFile project(settings, ProjectFile::TitleSlide::Omit);
    project.setResolution(options.size);
    project.setFileName(folder.filePath(QStringLiteral("video.mp4")));
    project.setFormat(QStringLiteral("mp4"));
    addSlides(project, options, kind.mixed);
    const QString request = folder.filePath(QStringLiteral("request.json"));
    QString error;
    if (!RenderRequest::save(project, settings, request, &error))
        qFatal("%s", qPrintable(error));
    const QString name = QStringLiteral("%1-%2-%3")
                             .arg(QLatin1String(kind.name), settings.outputProfile,
                                  parallel ? QStringLiteral("parallel") : QStringLiteral("order"));
    const QVector<Report> reports = render(request, folder.filePath(QStringLiteral("cache")));
    if (!options.recordFolder.isEmpty())
        record(reports, QDir(options.recordFolder).filePath(name + QStringLiteral(".txt")));
    std::printf("%-28s ", qPrintable(name));
    judge(reports, &Report::time);
    std::printf("%-28s ", "");
    judge(reports, &Report::processor);
    std::fflush(stdout);
}

Options readOptions(const QCoreApplication &application)
{
    QCommandLineParser parser;
    parser.addPositionalArgument(QStringLiteral("PHOTO..."), QString());
    parser.addOptions(
        {{QStringLiteral("record"), QString(), QStringLiteral("FOLDER")},
         {QStringLiteral("size"), QString(), QStringLiteral("WxH"), QStringLiteral("1280x720")},
         {QStringLiteral("slides"), QString(), QStringLiteral("N"), QStringLiteral("24")}});
    parser.process(application);
    Options options;
    for (const QString &photo : parser.positionalArguments())
        options.photos.append(QFileInfo(photo).absoluteFilePath());
    options.size = resolutionFromText(parser.value(QStringLiteral("size")));
    options.slides = parser.value(QStringLiteral("slides")).toInt();
    options.recordFolder = parser.value(QStringLiteral("record"));
    if (options.photos.isEmpty() || options.size.isEmpty() || options.slides < 1)
        qFatal("Photos are needed, a size and a number of slides.");
    return options;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir data;
    qputenv("VELMORA_DATA_DIR", QFile::encodeName(data.path()));
    const Options options = readOptions(application);
    std::printf("%-28s %9s  foretold at 20, 40, 60, 80 %%\n", "slideshow", "took");
    for (const Case &kind : {Case{"alike", false}, Case{"mixed", true}}) {
        for (const OutputProfile profile :
             {OutputProfile::OriginalQuality, OutputProfile::PlaysEverywhere}) {
            for (const bool parallel : {false, true})
                measure(options, kind, profile, parallel);
        }
    }
}
