// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/SlideSelection.h"

#include "project/documents/ProjectFile.h"
#include "ui/editor/SlideTable.h"
#include "ui/model/SlideTableModel.h"

#include <QItemSelectionModel>
#include <QSet>

#include <algorithm>

namespace velmora
{

SlideSelection::SlideSelection(ProjectEditor &editor, SlideTable &table, QObject *parent)
    : QObject(parent), m_editor(editor), m_table(table)
{
    connect(&editor, &ProjectEditor::slidesAboutToChange, this, &SlideSelection::keep);
    connect(&editor, &ProjectEditor::slidesChanged, this, &SlideSelection::restore);
}

ProjectEditor::Slides SlideSelection::slides() const
{
    QVector<int> rows;
    const QModelIndexList indexes = m_table.selectionModel()->selectedRows();
    for (const QModelIndex &index : indexes)
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    ProjectEditor::Slides slides;
    for (const int row : qAsConst(rows))
        slides.append(m_table.slides()->slideAt(row));
    return slides;
}

void SlideSelection::select(const ProjectEditor::Slides &slides)
{
    QVector<int> rows;
    for (const ProjectItem *slide : slides) {
        const int row = m_table.slides()->rowOf(slide);
        if (row >= 0)
            rows.append(row);
    }
    std::sort(rows.begin(), rows.end());
    QItemSelection selection;
    for (int i = 0; i < rows.size();) {
        int last = i;
        while (last + 1 < rows.size() && rows.at(last + 1) == rows.at(last) + 1)
            ++last;
        selection.append(
            {m_table.slides()->index(rows.at(i), 0),
             m_table.slides()->index(rows.at(last), SlideTableModel::ColumnCount - 1)});
        i = last + 1;
    }
    QItemSelectionModel &model = *m_table.selectionModel();
    if (!rows.isEmpty())
        model.setCurrentIndex(m_table.slides()->index(rows.first(), 0),
                              QItemSelectionModel::NoUpdate);
    model.select(selection, QItemSelectionModel::ClearAndSelect);
    if (!rows.isEmpty()) {
        // The row above tells where the first one stands.
        for (const int row : {rows.last(), rows.first() - 1, rows.first()})
            m_table.scrollTo(m_table.slides()->index(row, 0));
    }
}

ProjectItem *SlideSelection::current() const
{
    const QItemSelectionModel &selection = *m_table.selectionModel();
    const QModelIndex current = selection.currentIndex();
    if (selection.isRowSelected(current.row(), {}))
        return m_table.slides()->slideAt(current.row());
    return slides().value(0);
}

void SlideSelection::keep()
{
    m_kept = slides();
    m_keptRows = m_editor.project()->items();
}

/// Slides that came are selected; else those that were; else, after a deletion, the next one.
void SlideSelection::restore()
{
    const ProjectEditor::Slides &present = m_editor.project()->items();
    const QSet<ProjectItem *> before(m_keptRows.cbegin(), m_keptRows.cend());
    ProjectEditor::Slides slides;
    std::copy_if(present.begin(), present.end(), std::back_inserter(slides),
                 [&](ProjectItem *slide) { return !before.contains(slide); });
    if (slides.isEmpty())
        std::copy_if(m_kept.begin(), m_kept.end(), std::back_inserter(slides),
                     [this](ProjectItem *slide) { return m_table.slides()->rowOf(slide) >= 0; });
    if (slides.isEmpty() && !m_kept.isEmpty() && !present.isEmpty())
        slides = {present.at(std::min(m_keptRows.indexOf(m_kept.first()), present.size() - 1))};
    select(slides);
}

} // namespace velmora
