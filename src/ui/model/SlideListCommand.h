// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QUndoCommand>
#include <QVector>

namespace velmora
{

class ProjectEditor;
class ProjectItem;

/// Replaces the list of slides: adds, removes or reorders them. Slides that are not in the project
/// wait in @p shelf, which owns them and outlives the command.
class SlideListCommand : public QUndoCommand
{
public:
    using Slides = QVector<ProjectItem *>;

    SlideListCommand(ProjectEditor &editor, QObject &shelf, const Slides &after,
                     const QString &text);

    void undo() override;
    void redo() override;

private:
    void apply(const Slides &slides);

    ProjectEditor &m_editor;
    QObject &m_shelf;
    Slides m_before;
    Slides m_after;
};

} // namespace velmora
