// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/model/SlideStatesCommand.h"

#include "ui/model/ProjectEditor.h"

namespace velmora
{

SlideStatesCommand::SlideStatesCommand(ProjectEditor &editor, QVector<Change> changes,
                                       const QString &text, int group)
    : QUndoCommand(text), m_editor(editor), m_changes(std::move(changes)), m_group(group)
{
}

void SlideStatesCommand::undo()
{
    apply(&Change::before);
}

void SlideStatesCommand::redo()
{
    apply(&Change::after);
}

bool SlideStatesCommand::mergeWith(const QUndoCommand *other)
{
    m_changes += static_cast<const SlideStatesCommand *>(other)->m_changes;
    return true;
}

void SlideStatesCommand::apply(SlideState Change::*state)
{
    for (const Change &change : qAsConst(m_changes)) {
        (change.*state).applyTo(*change.slide);
        emit m_editor.slideChanged(change.slide);
    }
    emit m_editor.totalsChanged();
}

} // namespace velmora
