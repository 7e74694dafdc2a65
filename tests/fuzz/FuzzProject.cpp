// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppSettings.h"
#include "project/documents/ProjectFile.h"
#include "project/documents/Timeline.h"

#include <QJsonDocument>

#include <cstdint>
#include <cstdlib>

using namespace velmora;

namespace
{

const AppSettings settings;

std::unique_ptr<ProjectFile> read(const QByteArray &text)
{
    return ProjectFile::fromJson(QJsonDocument::fromJson(text).object(), settings);
}

QByteArray write(const ProjectFile &project)
{
    QJsonObject object;
    project.toJson(object);
    return QJsonDocument(object).toJson();
}

/// Stages follow each other without gaps and 25 frames last one second.
void checkTimeline(const Timeline &timeline)
{
    qint64 position = 0;
    for (const Timeline::Stage &stage : timeline.stages()) {
        if (stage.start != position || stage.frameCount * 40LL != stage.length ||
            stage.frameCount <= 0) {
            std::abort();
        }
        position += stage.length;
    }
    if (position != timeline.totalLength() || position != timeline.totalFrames() * 40) {
        std::abort();
    }
}

} // namespace

/// Any bytes: what can be read at all is written in a form that reads back the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto *bytes = reinterpret_cast<const char *>(data);
    const auto project = read(QByteArray(bytes, static_cast<int>(size)));
    if (!project) {
        return 0;
    }
    const QByteArray written = write(*project);
    const auto again = read(written);
    if (!again || write(*again) != written) {
        std::abort();
    }
    checkTimeline(Timeline::ofProject(*project, project->audioFade()));
    return 0;
}
