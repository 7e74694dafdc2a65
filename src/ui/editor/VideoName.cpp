// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/VideoName.h"

#include "project/documents/ProjectFile.h"
#include "project/documents/ProjectName.h"
#include "ui/model/ProjectEditor.h"

#include <QDateTime>
#include <QLineEdit>

namespace velmora
{

VideoName::VideoName(QLineEdit &field, ProjectEditor &editor, QObject *parent)
    : QObject(parent), m_field(field), m_editor(editor)
{
    connect(&editor, &ProjectEditor::projectChanged, this, &VideoName::takeProject);
    connect(&editor, &ProjectEditor::settingsChanged, this, &VideoName::followTitle);
    takeProject();
}

void VideoName::takeProject()
{
    // Announced again, a slideshow keeps the name that the user may have typed for its video.
    if (m_editor.project() && m_editor.project() == m_project)
        return;
    m_project = m_editor.project();
    m_givenTitle.clear();
    m_title = m_project ? m_project->name() : QString();
    propose();
    // The title of an earlier video would have this one replace it.
    if (!ProjectName::isProposal(m_title))
        showTitle();
}

void VideoName::propose()
{
    m_field.setText(ProjectName::proposal(QDateTime::currentDateTime()));
    m_field.setCursorPosition(0);
}

void VideoName::followTitle()
{
    if (!m_editor.project() || m_editor.project()->name() == m_title)
        return;
    m_title = m_editor.project()->name();
    showTitle();
}

void VideoName::showTitle()
{
    if (!m_project || !m_project->hasOwnName())
        propose();
    else if (ProjectName::isAllowed(m_title))
        m_field.setText(m_title);
}

void VideoName::giveTitle()
{
    const bool isOwn = m_editor.project()->hasOwnName() && m_title != m_givenTitle &&
                       !ProjectName::isProposal(m_title);
    if (isOwn)
        return;
    m_title = m_field.text();
    m_givenTitle = m_title;
    m_editor.project()->setName(m_title);
}

} // namespace velmora
