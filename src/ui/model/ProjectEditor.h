// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/documents/AudioItemList.h"
#include "project/slides/CaptionStyle.h"

#include <QObject>
#include <QSize>
#include <QStringList>
#include <QVector>

#include <memory>

class QUndoStack;

namespace velmora
{

struct AppSettings;
class ProjectFile;
class ProjectItem;

/// The one way in which the editor changes a project: every edit is one step of the undo stack,
/// and every change, also by undo and redo, is announced by a signal. GUI thread. Removed slides
/// stay alive in the undo stack, so pointers to slides are stable while the project is set.
class ProjectEditor : public QObject
{
    Q_OBJECT
public:
    using Slides = QVector<ProjectItem *>;

    explicit ProjectEditor(AppSettings &settings, QObject *parent = nullptr);
    ~ProjectEditor() override;

    /// Lends a project (null: none), which must outlive its being set; clears the undo stack.
    void setProject(ProjectFile *project);
    ProjectFile *project() const;
    /// Its texts are the names of the steps in English; see stepName().
    QUndoStack *undoStack() const;
    /// The name of a step in the present language.
    static QString stepName(const QString &step);
    /// All edits up to endStep() are one step. Names of steps are marked with QT_TRANSLATE_NOOP for
    /// the context "velmora::ProjectEditor", so that past ones follow a change of the language.
    void beginStep(const char *step);
    void endStep();
    /// Whether there are changes since setProject() or markSaved().
    bool isModified() const;
    void markSaved();

    // Slides. Rows are indexes in ProjectFile::items().
    /// New slides of photos, named by their absolute paths, with the default time and transition;
    /// @p row -1 appends.
    void addPhotos(const QStringList &paths, int row);
    void removeSlides(const Slides &slides);
    /// Moves the slides, in their present order, to stand directly before @p row.
    void moveSlides(const Slides &slides, int row);
    /// Replaces the order of all slides; @p step names the step, such as "Sort photos".
    void setOrder(const Slides &order, const char *step);
    void setTime(const Slides &slides, int seconds);
    void setTransition(const Slides &slides, int transition);
    void rotate(const Slides &slides, int degrees);
    void setCaption(const Slides &slides, const CaptionStyle &caption);
    /// As setCaption(), but the slides keep their texts.
    void setCaptionStyle(const Slides &slides, const CaptionStyle &style);
    void setTitleSlide(int backgroundIndex, bool visible);
    /// Points a photo slide to another file. Calls for several slides with the same @p search are
    /// one step where they follow on each other; -1: a step of its own.
    void relocate(ProjectItem *slide, const QString &fileName, int search = -1);

    // Sound.
    void addAudio(const QVector<AudioItem> &files, int row);
    void removeAudio(const QVector<int> &rows);
    void moveAudio(int from, int to);
    void setAudioOffset(int seconds);
    void setAudioFade(int seconds);
    void setAudioLoop(bool on);

    // The slideshow. The transition length is kept in the settings, as documents take it from
    // there.
    void setResolution(const QSize &size);
    void setFormat(const QString &extension);
    void setOrigRatio(bool on);
    void setScaleToFit(bool on);
    void setTransitionSeconds(int seconds);
    int transitionSeconds() const; ///< s
    void setName(const QString &name);

signals:
    void projectChanged();      ///< Another project was set: refresh everything.
    void slidesAboutToChange(); ///< Slides are about to come, go or move.
    void slidesChanged();       ///< Slides came, went or moved.
    void slideChanged(velmora::ProjectItem *slide); ///< Time, transition, angle, caption, file ...
    void audioChanged();
    void settingsChanged(); ///< Anything of the last group, offset, fade, loop.
    void totalsChanged();   ///< The running time may have changed.
    void modifiedChanged(bool modified);

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace velmora
