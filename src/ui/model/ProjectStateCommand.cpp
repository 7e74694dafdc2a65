// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/model/ProjectStateCommand.h"

#include "ui/model/ProjectEditor.h"

namespace velmora
{

ProjectStateCommand::ProjectStateCommand(ProjectEditor &editor, AppSettings &settings,
                                         const ProjectState &after, const QString &text)
    : QUndoCommand(text), m_editor(editor), m_settings(settings),
      m_before(ProjectState::of(*editor.project(), settings)), m_after(after)
{
}

void ProjectStateCommand::undo()
{
    apply(m_before);
}

void ProjectStateCommand::redo()
{
    apply(m_after);
}

void ProjectStateCommand::apply(const ProjectState &state)
{
    state.applyTo(*m_editor.project(), m_settings);
    if (!m_before.hasSameAudio(m_after))
        emit m_editor.audioChanged();
    if (!m_before.hasSameSettings(m_after))
        emit m_editor.settingsChanged();
    if (m_before.transitionSeconds != m_after.transitionSeconds)
        emit m_editor.totalsChanged();
}

} // namespace velmora
