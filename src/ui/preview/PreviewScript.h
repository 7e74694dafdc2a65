// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/pipeline/RenderPlan.h"
#include "project/frames/FrameFitter.h"

#include <QVector>

#include <memory>

namespace velmora
{

struct AppSettings;
class ProjectFile;
class ProjectItem;

/// What a preview shows and when: its slides with the times of their frames, cut from the same
/// plan that a render follows. Holds copies of the slides, so that editing goes on meanwhile; after
/// it is made it never changes and may be read by any thread. Slides are given by their order in
/// the script, times in ms from the preview's start.
class PreviewScript
{
public:
    using Pointer = std::shared_ptr<const PreviewScript>;
    struct FrameTime {
        double start = 0;
        double duration = 0;
    };

    /// The whole slideshow. Frames get @p size px. GUI thread, as all of these.
    static Pointer slideshow(const ProjectFile &project, const AppSettings &settings,
                             const QSize &size);
    /// The transition into one slide and the appearance of its caption, then at most a second of
    /// the slide. Null when the slide is not part of the video.
    static Pointer transition(const ProjectFile &project, const ProjectItem &slide,
                              const AppSettings &settings, const QSize &size);
    /// One frame: the slide with its caption. Also for a slide that is not part of the video.
    static Pointer still(const ProjectFile &project, const ProjectItem &slide,
                         const AppSettings &settings, const QSize &size);
    /// The same with frames of another size; random effects stay as they were drawn.
    Pointer withSize(const QSize &size) const;

    int slideCount() const { return m_slides.size(); }
    double totalDuration() const { return m_total; }
    /// Where the preview begins in the slideshow.
    double offset() const { return m_offset; }
    int frameCount(int slide) const { return m_slides.at(slide).pictures(); }
    FrameTime frameTime(int slide, int frame) const;
    /// The slide and its frame that show @p position, clamped.
    QPair<int, int> frameAt(double position) const;

    // For painting.
    struct Recipe {
        TransitionType effect = TransitionType::None;
        int frame = 0;
        int count = 1;
        const ProjectItem *from = nullptr; ///< Null: no outgoing picture.
        bool fromCaptioned = false;
        const ProjectItem *to = nullptr;
        bool toCaptioned = false;
    };
    Recipe recipe(int slide, int frame) const;
    const FrameFormat &format() const { return m_format; }
    /// The size of the video's frames, px.
    const QSize &videoSize() const { return m_videoSize; }

private:
    struct Copy;
    PreviewScript(const ProjectFile &project, const AppSettings &settings, const QSize &size);
    void copySlide(const ProjectItem &slide);
    RenderPlan makePlan() const;
    void shiftToZero();
    int stageOf(int slide, int *frame) const;

    std::shared_ptr<Copy> m_copy;
    FrameFormat m_format;
    QSize m_videoSize;
    QVector<PlannedSlide> m_slides;
    const ProjectItem *m_before = nullptr; ///< Shown before the first slide.
    double m_total = 0;
    double m_offset = 0;
};

} // namespace velmora
