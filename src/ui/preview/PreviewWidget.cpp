// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preview/PreviewWidget.h"

#include "project/documents/ProjectFile.h"
#include "ui/model/ProjectEditor.h"
#include "ui/preview/VideoPlayerWidget.h"

#include <QHideEvent>
#include <QVBoxLayout>

namespace velmora
{

namespace
{

constexpr int kMargin = 12;         // px
constexpr int kFullSizeMargin = 16; // px

} // namespace

PreviewWidget::PreviewWidget(ProjectEditor &editor, const AppSettings &settings, QWidget *parent)
    : QFrame(parent), m_editor(editor), m_player(new VideoPlayerWidget(settings, this))
{
    setProperty("card", true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->addWidget(m_player);
    m_changes.setSingleShot(true);
    connect(&m_changes, &QTimer::timeout, m_player, &VideoPlayerWidget::refresh);
    connect(&editor, &ProjectEditor::projectChanged, this, &PreviewWidget::takeProject);
    connect(&editor, &ProjectEditor::slidesChanged, this, &PreviewWidget::onSlidesChanged);
    connect(&editor, &ProjectEditor::slideChanged, this, &PreviewWidget::refreshSoon);
    connect(&editor, &ProjectEditor::settingsChanged, this, &PreviewWidget::refreshSoon);
    connect(&editor, &ProjectEditor::audioChanged, this, &PreviewWidget::refreshSoon);
    connect(m_player, &VideoPlayerWidget::playing, this, &PreviewWidget::playing);
    connect(m_player, &VideoPlayerWidget::clicked, this, &PreviewWidget::previewClicked);
    connect(m_player, &VideoPlayerWidget::fullSizeToggled, this, &PreviewWidget::toggleFullSize);
    m_project = editor.project();
    m_player->setProject(m_project);
}

PreviewWidget::~PreviewWidget() = default;

bool PreviewWidget::isPlaying() const
{
    return m_player->isPlaying();
}

/// The slide table may hear of another project, and select its first slide, before or after the
/// preview does.
void PreviewWidget::takeProject()
{
    if (m_project == m_editor.project())
        return;
    m_project = m_editor.project();
    m_changes.stop();
    m_player->setProject(m_project);
}

void PreviewWidget::setSlide(ProjectItem *slide)
{
    takeProject();
    m_player->setSlide(slide);
}

void PreviewWidget::previewSlide()
{
    m_player->playTransition();
}

void PreviewWidget::playFull()
{
    m_player->playSlideshow();
}

void PreviewWidget::stop()
{
    m_player->stop();
}

void PreviewWidget::leaveFullSize()
{
    if (m_player->isWindow())
        toggleFullSize();
}

/// Nobody could stop what plays on a page that is not shown.
void PreviewWidget::hideEvent(QHideEvent *event)
{
    if (!event->spontaneous() && !m_player->isWindow())
        stop();
    QFrame::hideEvent(event);
}

void PreviewWidget::onSlidesChanged()
{
    // What plays is no longer the slideshow that is edited.
    stop();
    const ProjectFile *project = m_editor.project();
    if (m_player->slide() && (!project || !project->items().contains(m_player->slide())))
        m_player->setSlide(nullptr);
    m_changes.start();
}

void PreviewWidget::toggleFullSize()
{
    const bool full = !m_player->isWindow();
    const int margin = full ? kFullSizeMargin : 0;
    m_player->layout()->setContentsMargins(margin, margin, margin, margin);
    m_player->setWindowFlags(full ? Qt::Window : Qt::Widget);
    m_player->showFullSize(full);
}

} // namespace velmora
