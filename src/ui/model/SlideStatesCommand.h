// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/model/SlideState.h"

#include <QUndoCommand>
#include <QVector>

namespace velmora
{

class ProjectEditor;

/// Changes values of slides, such as their times. The slides outlive the command.
class SlideStatesCommand : public QUndoCommand
{
public:
    struct Change {
        ProjectItem *slide;
        SlideState before;
        SlideState after;
    };

    SlideStatesCommand(ProjectEditor &editor, QVector<Change> changes, const QString &text);

    void undo() override;
    void redo() override;

private:
    void apply(SlideState Change::*state);

    ProjectEditor &m_editor;
    QVector<Change> m_changes;
};

} // namespace velmora
