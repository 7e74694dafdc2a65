// SPDX-License-Identifier: GPL-3.0-or-later
// framecheck PROJECT VIDEO [LIMIT]: compares frames of a finished video with the pictures that the
// painter makes for the same project, one frame from the middle of every stage. Prints a line per
// stage and the largest mean differences; exit code 1 when one reaches 3 of 255, or LIMIT for the
// stages that move.
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

/// When the first picture is shown, in s; behind 0 where the sound has a lead.
double firstMoment(const QString &video)
{
    QProcess probe;
    probe.start(QStringLiteral("ffprobe"),
                {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-select_streams"),
                 QStringLiteral("v:0"), QStringLiteral("-show_entries"),
                 QStringLiteral("stream=start_time"), QStringLiteral("-of"),
                 QStringLiteral("csv=p=0"), video});
    probe.waitForFinished(-1);
    return probe.readAllStandardOutput().trimmed().toDouble();
}

/// The frame at @p seconds, found by its time so that the whole video need not be decoded.
QImage videoFrame(const QString &video, double seconds, const QSize &size)
{
    QProcess ffmpeg;
    QStringList arguments{QStringLiteral("-v"), QStringLiteral("error")};
    if (seconds > 0)
        arguments << QStringLiteral("-seek_timestamp") << QStringLiteral("1")
                  << QStringLiteral("-ss") << QString::number(seconds, 'f', 3);
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
        : m_project(project), m_format(format), m_video(video), m_firstMoment(firstMoment(video))
    {
    }

    double check(const Timeline::Stage &stage, qint64 firstFrame)
    {
        const ProjectItem &item = *m_project.items().at(stage.slide);
        const TransitionPosition position{stage.frameCount / 2, stage.frameCount};
        // Half a frame early: the first frame at or after that time is the one asked for.
        const double frame = static_cast<double>(firstFrame + position.frame) - 0.5;
        const QImage shown =
            videoFrame(m_video, m_firstMoment + frame / Timeline::kFramesPerSecond, m_format.size);
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
    double m_firstMoment;
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
    if (arguments.size() < 3) {
        out << "usage: framecheck PROJECT VIDEO [LIMIT]\n";
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
    double worstStill = 0;
    double worstMoving = 0;
    qint64 firstFrame = 0;
    const Timeline timeline = Timeline::ofProject(*project, transitionSeconds(arguments.at(1)));
    for (const Timeline::Stage &stage : timeline.stages()) {
        const double difference = checker.check(stage, firstFrame);
        out << stage.prefix() << stage.slide << ' ' << QString::number(difference, 'f', 2) << '\n';
        out.flush();
        double &worst = stage.kind == Timeline::StageKind::Still ? worstStill : worstMoving;
        worst = std::max(worst, difference);
        firstFrame += stage.frameCount;
    }
    out << "worst mean difference: stills " << QString::number(worstStill, 'f', 2) << ", moving "
        << QString::number(worstMoving, 'f', 2) << " of 255, " << timeline.totalFrames()
        << " frames\n";
    const double limit = arguments.size() > 3 ? arguments.at(3).toDouble() : kLimit;
    return worstStill < kLimit && worstMoving < limit ? 0 : 1;
}
