// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVector>

namespace velmora
{

class ProjectFile;

/// The ordered stages of a slideshow with their starts and lengths; the one source of every
/// length that the program shows or renders. Immutable value. All times in ms.
class Timeline
{
public:
    static constexpr int kFramesPerSecond = 25;

    enum class StageKind {
        Picture, ///< "p": the transition from the shown slide before into this one
        Caption, ///< "t": the caption's appearance on this slide
        Still,   ///< "i": the slide with its caption
    };

    struct Stage {
        StageKind kind;
        int slide;         ///< Index in ProjectFile::items().
        int previousSlide; ///< Picture stages: index of the slide before; otherwise -1.
        qint64 start;      ///< ms from the video's start
        qint64 length;     ///< ms
        int frameCount;    ///< Output frames at 25 per second.
        /// The letter that names the stage in file names: 'p', 't' or 'i'.
        char prefix() const;
    };

    Timeline() = default;
    /// Hidden slides have no stages. @p transitionSeconds and slide times
    /// below 1 s count as 1 s, above 86,400 s as that.
    static Timeline ofProject(const ProjectFile &project, int transitionSeconds);

    const QVector<Stage> &stages() const { return m_stages; }
    qint64 totalLength() const { return m_totalLength; } ///< ms
    qint64 totalFrames() const { return m_totalFrames; }
    /// Index into stages() of the stage that shows @p position ms, clamped; -1 when empty.
    int stageAt(qint64 position) const;

private:
    void append(StageKind kind, int slide, int previousSlide, int seconds);

    QVector<Stage> m_stages;
    qint64 m_totalLength = 0;
    qint64 m_totalFrames = 0;
};

} // namespace velmora
