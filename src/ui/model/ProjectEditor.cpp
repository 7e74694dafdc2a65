// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/model/ProjectEditor.h"

#include "app/AppSettings.h"
#include "project/documents/ProjectFile.h"
#include "project/slides/ProjectItemFirst.h"
#include "project/slides/ProjectItemSimple.h"
#include "ui/UiLog.h"
#include "ui/model/ProjectStateCommand.h"
#include "ui/model/SlideListCommand.h"
#include "ui/model/SlideStatesCommand.h"

#include <QUndoStack>

#include <algorithm>
#include <functional>

namespace velmora
{

class ProjectEditor::Private
{
public:
    Private(ProjectEditor &owner, AppSettings &appSettings) : editor(owner), settings(appSettings)
    {
    }

    void setSlides(const Slides &slides, const char *step)
    {
        if (slides != project->items())
            stack.push(new SlideListCommand(editor, *shelf, slides, QLatin1String(step)));
    }

    void changeSlides(const Slides &slides, const char *step,
                      const std::function<void(SlideState &)> &change, int group = -1)
    {
        QVector<SlideStatesCommand::Change> changes;
        for (ProjectItem *slide : slides) {
            const SlideState before = SlideState::of(*slide);
            SlideState after = before;
            change(after);
            if (!(after == before))
                changes.append({slide, before, after});
        }
        if (!changes.isEmpty())
            stack.push(new SlideStatesCommand(editor, changes, QLatin1String(step), group));
    }

    void changeProject(const char *step, const std::function<void(ProjectState &)> &change)
    {
        if (!project)
            return;
        const ProjectState before = ProjectState::of(*project, settings);
        ProjectState after = before;
        change(after);
        if (!after.hasSameAudio(before) || !after.hasSameSettings(before))
            stack.push(new ProjectStateCommand(editor, settings, after, QLatin1String(step)));
    }

    ProjectItemFirst *titleSlide() const
    {
        if (!project || project->items().isEmpty())
            return nullptr;
        return qobject_cast<ProjectItemFirst *>(project->items().first());
    }

    ProjectEditor &editor;
    AppSettings &settings;
    ProjectFile *project = nullptr;
    std::unique_ptr<QObject> shelf = std::make_unique<QObject>(); ///< Owns removed slides.
    QUndoStack stack;
};

ProjectEditor::ProjectEditor(AppSettings &settings, QObject *parent)
    : QObject(parent), d(std::make_unique<Private>(*this, settings))
{
    connect(&d->stack, &QUndoStack::cleanChanged, this,
            [this](bool clean) { emit modifiedChanged(!clean); });
}

ProjectEditor::~ProjectEditor()
{
    d->stack.disconnect(this);
}

void ProjectEditor::setProject(ProjectFile *project)
{
    d->stack.clear();
    d->project = project;
    emit projectChanged();
    emit totalsChanged();
    // Whoever listened has let go of the old project's slides by now.
    d->shelf = std::make_unique<QObject>();
}

ProjectFile *ProjectEditor::project() const
{
    return d->project;
}

QUndoStack *ProjectEditor::undoStack() const
{
    return &d->stack;
}

void ProjectEditor::beginStep(const char *step)
{
    d->stack.beginMacro(QLatin1String(step));
}

void ProjectEditor::endStep()
{
    d->stack.endMacro();
}

QString ProjectEditor::stepName(const QString &step)
{
    return step.isEmpty() ? step : tr(step.toUtf8().constData());
}

bool ProjectEditor::isModified() const
{
    return !d->stack.isClean();
}

void ProjectEditor::markSaved()
{
    d->stack.setClean();
}

void ProjectEditor::addPhotos(const QStringList &paths, int row)
{
    if (!d->project)
        return;
    Slides slides = d->project->items();
    const int first = d->titleSlide() ? 1 : 0;
    int place = row < 0 ? slides.size() : qBound(first, row, slides.size());
    for (const QString &path : paths)
        slides.insert(place++,
                      new ProjectItemSimple(path, d->settings.defaultTime,
                                            d->settings.defaultTransition, d->shelf.get()));
    d->setSlides(slides, QT_TR_NOOP("Add photos"));
}

void ProjectEditor::removeSlides(const Slides &slides)
{
    if (!d->project)
        return;
    // The title slide stays in the document; it is only left out of the video.
    ProjectItem *title = d->titleSlide();
    Slides left = d->project->items();
    left.erase(std::remove_if(
                   left.begin(), left.end(),
                   [&](ProjectItem *slide) { return slide != title && slides.contains(slide); }),
               left.end());
    beginStep(QT_TR_NOOP("Delete slides"));
    d->setSlides(left, QT_TR_NOOP("Delete slides"));
    if (title && slides.contains(title))
        d->changeSlides({title}, QT_TR_NOOP("Hide the title slide"),
                        [](SlideState &state) { state.visible = false; });
    endStep();
}

void ProjectEditor::moveSlides(const Slides &slides, int row)
{
    if (!d->project)
        return;
    const Slides before = d->project->items();
    const ProjectItem *title = d->titleSlide();
    Slides moved;
    Slides head;
    Slides tail;
    for (int i = 0; i < before.size(); ++i) {
        ProjectItem *slide = before.at(i);
        if (slide == title)
            head.append(slide);
        else if (slides.contains(slide))
            moved.append(slide);
        else
            (i < row ? head : tail).append(slide);
    }
    if (moved.isEmpty())
        return;
    // One line for all of them: each line is written to the disk at once.
    qCDebug(lcUi) << "move item" << moved.constFirst()->title() << "from"
                  << before.indexOf(moved.constFirst()) << "after"
                  << before.indexOf(head.isEmpty() ? nullptr : head.constLast()) << "before"
                  << before.indexOf(tail.isEmpty() ? nullptr : tail.constFirst()) << "slides"
                  << moved.size();
    d->setSlides(head + moved + tail, QT_TR_NOOP("Move slides"));
}

void ProjectEditor::setOrder(const Slides &order, const char *step)
{
    if (d->project && std::is_permutation(order.begin(), order.end(), d->project->items().begin(),
                                          d->project->items().end()))
        d->setSlides(order, step);
}

void ProjectEditor::setTime(const Slides &slides, int seconds)
{
    d->changeSlides(slides, QT_TR_NOOP("Change time"),
                    [seconds](SlideState &state) { state.time = seconds; });
}

void ProjectEditor::setTransition(const Slides &slides, int transition)
{
    Slides photos = slides;
    photos.removeAll(d->titleSlide());
    d->changeSlides(photos, QT_TR_NOOP("Change transition"),
                    [transition](SlideState &state) { state.transition = transition; });
}

void ProjectEditor::rotate(const Slides &slides, int degrees)
{
    constexpr int kFullTurn = 360;
    Slides photos = slides;
    photos.removeAll(d->titleSlide());
    d->changeSlides(photos, QT_TR_NOOP("Rotate photos"), [degrees](SlideState &state) {
        state.angle = ((state.angle % kFullTurn + degrees) % kFullTurn + kFullTurn) % kFullTurn;
    });
}

void ProjectEditor::setCaption(const Slides &slides, const CaptionStyle &caption)
{
    d->changeSlides(slides, QT_TR_NOOP("Change caption"),
                    [&caption](SlideState &state) { state.caption = caption; });
}

void ProjectEditor::setCaptionStyle(const Slides &slides, const CaptionStyle &style)
{
    d->changeSlides(slides, QT_TR_NOOP("Change caption style"), [&style](SlideState &state) {
        const QString text = state.caption.text;
        state.caption = style;
        state.caption.text = text;
    });
}

void ProjectEditor::setTitleSlide(int backgroundIndex, bool visible)
{
    if (ProjectItemFirst *title = d->titleSlide())
        d->changeSlides({title}, QT_TR_NOOP("Change title slide"), [=](SlideState &state) {
            state.backgroundIndex = backgroundIndex;
            state.visible = visible;
        });
}

void ProjectEditor::relocate(ProjectItem *slide, const QString &fileName, int search)
{
    d->changeSlides(
        {slide}, QT_TR_NOOP("Relocate photos"),
        [&fileName](SlideState &state) { state.fileName = fileName; }, search);
}

void ProjectEditor::addAudio(const QVector<AudioItem> &files, int row)
{
    d->changeProject(QT_TR_NOOP("Add audio"), [&](ProjectState &state) {
        QVector<AudioItem> &items = state.audio.items;
        int place = row < 0 ? items.size() : std::min(row, items.size());
        for (const AudioItem &file : files)
            items.insert(place++, file);
    });
}

void ProjectEditor::removeAudio(const QVector<int> &rows)
{
    d->changeProject(QT_TR_NOOP("Delete audio"), [&rows](ProjectState &state) {
        for (int row = state.audio.items.size() - 1; row >= 0; --row) {
            if (rows.contains(row))
                state.audio.items.removeAt(row);
        }
    });
}

void ProjectEditor::moveAudio(int from, int to)
{
    d->changeProject(QT_TR_NOOP("Move audio"), [=](ProjectState &state) {
        const int count = state.audio.items.size();
        if (from >= 0 && from < count && to >= 0 && to < count)
            state.audio.items.move(from, to);
    });
}

void ProjectEditor::setAudioOffset(int seconds)
{
    d->changeProject(QT_TR_NOOP("Change audio offset"),
                     [seconds](ProjectState &state) { state.audio.offset = seconds; });
}

void ProjectEditor::setAudioFade(int seconds)
{
    d->changeProject(QT_TR_NOOP("Change audio fade"),
                     [seconds](ProjectState &state) { state.audioFade = seconds; });
}

void ProjectEditor::setAudioLoop(bool on)
{
    d->changeProject(QT_TR_NOOP("Loop audio"), [on](ProjectState &state) { state.audioLoop = on; });
}

void ProjectEditor::setResolution(const QSize &size)
{
    if (!size.isEmpty())
        d->changeProject(QT_TR_NOOP("Change resolution"),
                         [&size](ProjectState &state) { state.resolution = size; });
}

void ProjectEditor::setFormat(const QString &extension)
{
    d->changeProject(QT_TR_NOOP("Change format"),
                     [&extension](ProjectState &state) { state.format = extension; });
}

void ProjectEditor::setOrigRatio(bool on)
{
    d->changeProject(QT_TR_NOOP("Original ratio"),
                     [on](ProjectState &state) { state.origRatio = on; });
}

void ProjectEditor::setScaleToFit(bool on)
{
    d->changeProject(QT_TR_NOOP("Scale to fit"),
                     [on](ProjectState &state) { state.scaleToFit = on; });
}

void ProjectEditor::setTransitionSeconds(int seconds)
{
    d->changeProject(QT_TR_NOOP("Change transition duration"),
                     [seconds](ProjectState &state) { state.transitionSeconds = seconds; });
}

int ProjectEditor::transitionSeconds() const
{
    return d->settings.transitionTime;
}

void ProjectEditor::setName(const QString &name)
{
    d->changeProject(QT_TR_NOOP("Rename"), [&name](ProjectState &state) { state.name = name; });
}

} // namespace velmora
