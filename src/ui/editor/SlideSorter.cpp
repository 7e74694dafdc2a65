// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/SlideSorter.h"

#include "project/documents/ProjectFile.h"
#include "project/slides/ProjectItemSimple.h"
#include "ui/editor/BusyNote.h"

#include <QRandomGenerator>

namespace velmora
{

using SlideOrder::Direction;

SlideSorter::SlideSorter(ProjectEditor &editor, BusyNote &note, QObject *parent)
    : QObject(parent), m_editor(editor), m_note(note)
{
    connect(&m_dates, &PhotoDates::finished, this, &SlideSorter::onDates);
    connect(&m_dates, &PhotoDates::cancelled, this, [this] {
        m_note.end();
        emit readingChanged();
    });
    connect(&m_dates, &PhotoDates::progress, this, [this](int done, int count) {
        m_note.setProgress(tr("Reading the dates of the photos"), done, count);
    });
    connect(&m_note, &BusyNote::cancelClicked, this, [this] { m_dates.cancel(); });
    connect(&editor, &ProjectEditor::slidesChanged, this, &SlideSorter::changed);
}

void SlideSorter::reset()
{
    m_dates.cancel();
    m_criterion = Criterion::Name;
    m_sorted.clear();
    emit changed();
}

Direction SlideSorter::directionFor(Criterion criterion) const
{
    const bool turns = criterion == m_criterion && m_used == Direction::Ascending &&
                       m_editor.project() && m_editor.project()->items() == m_sorted;
    return turns ? Direction::Descending : Direction::Ascending;
}

void SlideSorter::sort(Criterion criterion)
{
    if (!m_editor.project())
        return;
    const ProjectEditor::Slides &slides = m_editor.project()->items();
    if (criterion == Criterion::Name) {
        apply(SlideOrder::byName(slides, directionFor(criterion)), criterion);
        return;
    }
    QStringList files;
    for (const ProjectItem *slide : slides) {
        if (const auto *photo = qobject_cast<const ProjectItemSimple *>(slide))
            files.append(photo->fileName());
    }
    if (!m_dates.start(files))
        return;
    m_note.begin(tr("Reading the dates of the photos"));
    emit readingChanged();
}

void SlideSorter::onDates(const PhotoDates::Dates &dates)
{
    m_note.end();
    if (m_editor.project())
        apply(SlideOrder::byDate(m_editor.project()->items(), dates, directionFor(Criterion::Date)),
              Criterion::Date);
    emit readingChanged();
}

void SlideSorter::apply(const ProjectEditor::Slides &order, Criterion criterion)
{
    m_used = directionFor(criterion);
    m_criterion = criterion;
    m_sorted = order;
    m_editor.setOrder(order, QT_TRANSLATE_NOOP("velmora::ProjectEditor", "Sort photos"));
    emit changed();
}

void SlideSorter::shuffle()
{
    if (m_editor.project())
        m_editor.setOrder(
            SlideOrder::shuffled(m_editor.project()->items(), *QRandomGenerator::global()),
            QT_TRANSLATE_NOOP("velmora::ProjectEditor", "Shuffle photos"));
}

} // namespace velmora
