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
    apply(m_after, m_before);
}

void ProjectStateCommand::redo()
{
    apply(m_before, m_after);
}

void ProjectStateCommand::apply(const ProjectState &before, const ProjectState &after)
{
    after.applyTo(*m_editor.project(), m_settings, before);
    if (!before.hasSameAudio(after))
        emit m_editor.audioChanged();
    if (!before.hasSameSettings(after))
        emit m_editor.settingsChanged();
    if (before.transitionSeconds != after.transitionSeconds)
        emit m_editor.totalsChanged();
}

} // namespace velmora
