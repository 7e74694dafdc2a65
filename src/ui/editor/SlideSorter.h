// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/model/PhotoDates.h"
#include "ui/model/SlideOrder.h"

#include <QObject>

namespace velmora
{

class BusyNote;

/// Sorts and shuffles the slides of the project. Sorting again by the same criterion turns the
/// direction around, as long as the slides still stand as they were sorted. GUI thread.
class SlideSorter : public QObject
{
    Q_OBJECT
public:
    enum class Criterion { Name, Date };

    /// @p note is for this alone and must outlive it.
    SlideSorter(ProjectEditor &editor, BusyNote &note, QObject *parent = nullptr);

    /// Dates are read in the background first; nothing happens while that is going on already.
    void sort(Criterion criterion);
    void sortAgain() { sort(m_criterion); }
    void shuffle();
    /// Starts anew with names in ascending order.
    void reset();

    /// Whether dates are being read, after which the slides move.
    bool isReading() const { return m_dates.isRunning(); }
    Criterion criterion() const { return m_criterion; }
    /// What the next sorting by the present criterion does.
    SlideOrder::Direction nextDirection() const { return directionFor(m_criterion); }

signals:
    void changed(); ///< Perhaps the criterion or the direction.
    void readingChanged();

private:
    void apply(const ProjectEditor::Slides &order, Criterion criterion);
    SlideOrder::Direction directionFor(Criterion criterion) const;
    void onDates(const PhotoDates::Dates &dates);

    ProjectEditor &m_editor;
    BusyNote &m_note;
    PhotoDates m_dates;
    Criterion m_criterion = Criterion::Name;
    SlideOrder::Direction m_used = SlideOrder::Direction::Descending; ///< By the last sorting.
    ProjectEditor::Slides m_sorted; ///< What it made. Only compared; empty before the first one.
};

} // namespace velmora
