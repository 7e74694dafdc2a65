// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/documents/Timeline.h"

#include "project/documents/ProjectFile.h"

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int kLongestSeconds = 86400;

int clampSeconds(int seconds)
{
    return std::clamp(seconds, 1, kLongestSeconds);
}

} // namespace

char Timeline::Stage::prefix() const
{
    switch (kind) {
    case StageKind::Picture:
        return 'p';
    case StageKind::Caption:
        return 't';
    case StageKind::Still:
        break;
    }
    return 'i';
}

Timeline Timeline::ofProject(const ProjectFile &project, int transitionSeconds)
{
    const int transition = clampSeconds(transitionSeconds);
    const QVector<ProjectItem *> &items = project.items();
    Timeline timeline;
    int previous = -1;
    for (int slide = 0; slide < items.size(); ++slide) {
        const ProjectItem &item = *items.at(slide);
        if (!item.isShown()) {
            continue;
        }
        if (previous >= 0) {
            timeline.append(StageKind::Picture, slide, previous, transition);
        }
        if (item.caption().isVisible()) {
            timeline.append(StageKind::Caption, slide, -1, transition);
        }
        timeline.append(StageKind::Still, slide, -1, clampSeconds(item.time()));
        previous = slide;
    }
    return timeline;
}

void Timeline::append(StageKind kind, int slide, int previousSlide, int seconds)
{
    constexpr qint64 kMsPerSecond = 1000;
    const qint64 length = seconds * kMsPerSecond;
    const int frames = seconds * kFramesPerSecond;
    m_stages.append({kind, slide, previousSlide, m_totalLength, length, frames});
    m_totalLength += length;
    m_totalFrames += frames;
}

int Timeline::stageAt(qint64 position) const
{
    const auto after =
        std::upper_bound(m_stages.begin(), m_stages.end(), position,
                         [](qint64 time, const Stage &stage) { return time < stage.start; });
    const auto index = static_cast<int>(std::distance(m_stages.begin(), after)) - 1;
    return m_stages.isEmpty() ? -1 : std::max(index, 0);
}

} // namespace velmora
