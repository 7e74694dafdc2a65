// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/documents/Timeline.h"
#include "project/slides/TransitionType.h"

#include <QString>
#include <QVector>

#include <functional>

namespace velmora
{

class ProjectFile;
class ProjectItem;

/// One stage of the timeline with what is needed to paint and to encode it.
struct PlannedStage {
    Timeline::Stage stage;
    TransitionType effect = TransitionType::None; ///< Never Random; None for stills.
    int pictures = 1; ///< Frame files of the stage: one where all its frames are alike.

    bool isFade() const; ///< Its pictures mix the colours of two, and nothing in them moves.
    /// The work of painting one of its pictures, in the unit of RenderPlan::totalWork().
    qint64 paintingWork() const;
    qint64 encodingWork() const; ///< The same for encoding the whole stage.
    QString prefix() const;      ///< "_p3": names the stage's frame files.
    QString paintText() const;   ///< Logged when its frames are begun.
    QString encodeText() const;  ///< Logged when its segment is begun.
};

/// One shown slide: its stages in order and how its transition was chosen.
struct PlannedSlide {
    int index = 0; ///< In ProjectFile::items(), and in all file names.
    const ProjectItem *item = nullptr;
    int sourceType = 0; ///< The transition as stored on the slide.
    TransitionType type = TransitionType::None;
    TransitionType previousType = TransitionType::None; ///< Type of the slide before.
    bool captionAppears = false; ///< A caption stage follows the picture stage.
    QVector<PlannedStage> stages;

    int pictures() const;  ///< Frame files of all stages.
    qint64 frames() const; ///< Video frames of all stages.
};

/// Everything about a render that is settled before its first frame: which slides are shown, in
/// which stages, and what every random effect turned out to be. Immutable value; the project must
/// outlive it and stay unchanged.
class RenderPlan
{
public:
    /// Yields numbers as rand() does.
    using Random = std::function<int()>;

    RenderPlan() = default;
    static RenderPlan make(const ProjectFile &project, const Timeline &timeline,
                           const Random &random);

    /// In video order; the position in this list is called the slide's order.
    const QVector<PlannedSlide> &slides() const { return m_slides; }
    qint64 totalLength() const { return m_totalLength; } ///< ms
    qint64 totalFrames() const { return m_totalFrames; }
    /// The work of painting and encoding all stages; four units take about as long as encoding one
    /// frame of a still.
    qint64 totalWork() const;

private:
    QVector<PlannedSlide> m_slides;
    qint64 m_totalLength = 0;
    qint64 m_totalFrames = 0;
};

} // namespace velmora
