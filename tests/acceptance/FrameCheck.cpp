// SPDX-License-Identifier: GPL-3.0-or-later
// framecheck PROJECT VIDEO: compares frames of a finished video with the pictures that the painter
// makes for the same project, one frame from the middle of every stage. Prints a line per stage
// and the largest mean difference; exit code 1 when it reaches 3 of 255.
#include "app/AppSettings.h"
#include "generator/encoding/EncoderOptions.h"
#include "generator/transitions/Transition.h"
#include "helpers/VideoProbe.h"
#include "project/documents/ProjectFile.h"
#include "project/documents/Timeline.h"
#include "project/frames/SlideRenderer.h"
#include "project/slides/ProjectItemSimple.h"

#include <QFile>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTextStream>

#include <algorithm>

namespace
{

using namespace velmora;

constexpr double kLimit = 3.0;

/// Frame @p number of the video, found by its time so that the whole video need not be decoded.
QImage videoFrame(const QString &video, qint64 number, const QSize &size)
{
    QProcess ffmpeg;
    // Half a frame early: the first frame at or after that time is the one asked for.
    const double seconds = (static_cast<double>(number) - 0.5) / Timeline::kFramesPerSecond;
    QStringList arguments{QStringLiteral("-v"), QStringLiteral("error")};
    if (seconds > 0)
        arguments << QStringLiteral("-ss") << QString::number(seconds, 'f', 3);
    arguments << QStringLiteral("-i") << video << QStringLiteral("-frames:v") << QStringLiteral("1")
              << QStringLiteral("-f") << QStringLiteral("rawvideo") << QStringLiteral("-pix_fmt")
              << QStringLiteral("rgb24") << QStringLiteral("-");
    ffmpeg.start(QStringLiteral("ffmpeg"), arguments);
    ffmpeg.waitForFinished(-1);
    const QByteArray data = ffmpeg.readAllStandardOutput();
    if (data.size() != size.width() * size.height() * 3)
        return {};
    return QImage(reinterpret_cast<const uchar *>(data.constData()), size.width(), size.height(),
                  size.width() * 3, QImage::Format_RGB888)
        .convertToFormat(QImage::Format_RGB32);
}

/// The best match among the effects that the stage may show ("Random" may be any of 24).
double bestTransitionMatch(int stored, const QImage &from, const QImage &to,
                           const TransitionPosition &position, const QImage &shown)
{
    int first = stored;
    int last = stored;
    if (transitionFromInt(stored) == TransitionType::Random) {
        first = kFirstRandomTransition;
        last = kLastRandomTransition;
    }
    double best = 255;
    QImage frame;
    for (int type = first; type <= last; ++type) {
        renderTransitionFrame(transitionFromInt(type), from, to, position, frame);
        best = std::min(best, VideoProbe::meanDifference(frame, shown));
    }
    return best;
}

class Checker
{
public:
    Checker(const ProjectFile &project, const FrameFormat &format, const QString &video)
        : m_project(project), m_format(format), m_video(video)
    {
    }

    double check(const Timeline::Stage &stage, qint64 firstFrame)
    {
        const ProjectItem &item = *m_project.items().at(stage.slide);
        const TransitionPosition position{stage.frameCount / 2, stage.frameCount};
        const QImage shown = videoFrame(m_video, firstFrame + position.frame, m_format.size);
        if (shown.isNull())
            return 255;
        const QImage bare = SlideRenderer::bareFrame(item, m_format);
        const QImage captioned = SlideRenderer::captionedFrame(bare, item);
        switch (stage.kind) {
        case Timeline::StageKind::Still:
            m_previous = captioned;
            return VideoProbe::meanDifference(captioned, shown);
        case Timeline::StageKind::Caption:
            return bestTransitionMatch(item.caption().effect, bare, captioned, position, shown);
        case Timeline::StageKind::Picture:
            break;
        }
        const auto *photo = dynamic_cast<const ProjectItemSimple *>(&item);
        return bestTransitionMatch(photo ? photo->transition() : 0, m_previous, bare, position,
                                   shown);
    }

private:
    const ProjectFile &m_project;
    FrameFormat m_format;
    QString m_video;
    QImage m_previous;
};

int transitionSeconds(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return 2;
    return QJsonDocument::fromJson(file.readAll())
        .object()
        .value(QStringLiteral("transition_time"))
        .toInt(2);
}

} // namespace

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QTextStream out(stdout);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        out << "usage: framecheck PROJECT VIDEO\n";
        return 2;
    }
    const AppSettings settings;
    QString error;
    const auto project = ProjectFile::loadFromFile(arguments.at(1), settings, &error);
    if (!project) {
        out << error << '\n';
        return 2;
    }
    const FrameFormat format{EncoderOptions::evenSize(project->resolution()), project->origRatio(),
                             project->scaleToFit()};
    Checker checker(*project, format, arguments.at(2));
    double worst = 0;
    qint64 firstFrame = 0;
    const Timeline timeline = Timeline::ofProject(*project, transitionSeconds(arguments.at(1)));
    for (const Timeline::Stage &stage : timeline.stages()) {
        const double difference = checker.check(stage, firstFrame);
        out << stage.prefix() << stage.slide << ' ' << QString::number(difference, 'f', 2) << '\n';
        out.flush();
        worst = std::max(worst, difference);
        firstFrame += stage.frameCount;
    }
    out << "worst mean difference: " << QString::number(worst, 'f', 2) << " of 255, "
        << timeline.totalFrames() << " frames\n";
    return worst < kLimit ? 0 : 1;
}
