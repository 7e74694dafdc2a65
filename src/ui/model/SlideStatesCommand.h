// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/model/SlideState.h"

#include <QUndoCommand>
#include <QVector>

namespace velmora
{

class ProjectEditor;

/// Changes values of slides, such as their times. The slides outlive the command. Commands of the
/// same group that follow on each other become one.
class SlideStatesCommand : public QUndoCommand
{
public:
    struct Change {
        ProjectItem *slide;
        SlideState before;
        SlideState after;
    };

    /// @p group -1: none.
    SlideStatesCommand(ProjectEditor &editor, QVector<Change> changes, const QString &text,
                       int group = -1);

    void undo() override;
    void redo() override;
    int id() const override { return m_group; }
    bool mergeWith(const QUndoCommand *other) override;

private:
    void apply(SlideState Change::*state);

    ProjectEditor &m_editor;
    QVector<Change> m_changes; ///< Of slides that differ.
    int m_group;
};

} // namespace velmora
