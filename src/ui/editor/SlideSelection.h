// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/model/ProjectEditor.h"

namespace velmora
{

class SlideTable;

/// The selection of the slide table in terms of slides, kept while rows come, go and move.
/// GUI thread.
class SlideSelection : public QObject
{
    Q_OBJECT
public:
    /// @p table has its slides already; it and @p editor must outlive the selection.
    SlideSelection(ProjectEditor &editor, SlideTable &table, QObject *parent = nullptr);

    /// In the order of their rows.
    ProjectEditor::Slides slides() const;
    /// Selects the slides and brings them to sight; unknown ones are ignored.
    void select(const ProjectEditor::Slides &slides);
    /// The slide of the current row if it is selected, else the first one selected; null: none.
    ProjectItem *current() const;

private:
    void keep();
    void restore();

    ProjectEditor &m_editor;
    SlideTable &m_table;
    ProjectEditor::Slides m_kept;     ///< The selection while the rows change.
    ProjectEditor::Slides m_keptRows; ///< All slides before the change.
};

} // namespace velmora
