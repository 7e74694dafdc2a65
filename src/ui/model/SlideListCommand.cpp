// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/model/SlideListCommand.h"

#include "project/documents/ProjectFile.h"
#include "ui/model/ProjectEditor.h"

namespace velmora
{

SlideListCommand::SlideListCommand(ProjectEditor &editor, QObject &shelf, const Slides &after,
                                   const QString &text)
    : QUndoCommand(text), m_editor(editor), m_shelf(shelf), m_before(editor.project()->items()),
      m_after(after)
{
}

void SlideListCommand::undo()
{
    apply(m_before);
}

void SlideListCommand::redo()
{
    apply(m_after);
}

void SlideListCommand::apply(const Slides &slides)
{
    ProjectFile &project = *m_editor.project();
    emit m_editor.slidesAboutToChange();
    const Slides present = project.items();
    for (ProjectItem *slide : present) {
        project.takeItem(slide);
        slide->setParent(&m_shelf);
    }
    for (ProjectItem *slide : slides)
        project.insertItem(-1, slide);
    emit m_editor.slidesChanged();
    emit m_editor.totalsChanged();
}

} // namespace velmora
