// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/model/ProjectState.h"

#include <QUndoCommand>

namespace velmora
{

class ProjectEditor;

/// Changes the sound or the settings of a project.
class ProjectStateCommand : public QUndoCommand
{
public:
    ProjectStateCommand(ProjectEditor &editor, AppSettings &settings, const ProjectState &after,
                        const QString &text);

    void undo() override;
    void redo() override;

private:
    void apply(const ProjectState &before, const ProjectState &after);

    ProjectEditor &m_editor;
    AppSettings &m_settings;
    ProjectState m_before;
    ProjectState m_after;
};

} // namespace velmora
