// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/MainWindowWidget.h"

#include "chrome/Theme.h"
#include "project/documents/ProjectFile.h"
#include "ui/UiLog.h"
#include "ui/editor/CreatePanel.h"
#include "ui/editor/PhotoImports.h"
#include "ui/editor/SettingsTabs.h"
#include "ui/editor/SlideActions.h"
#include "ui/editor/SlidesPage.h"
#include "ui/editor/VideoSettingsFrame.h"
#include "ui/preview/PreviewWidget.h"

#include <QAction>
#include <QHBoxLayout>
#include <QResizeEvent>
#include <QStackedWidget>
#include <QUndoStack>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int kGap = 16;              // px
constexpr int kSmallestSide = 352;    // px
constexpr int kWidestSide = 672;      // px
constexpr double kSideShare = 0.34;   // of the page's width
constexpr int kHeightForAll = 860;    // px of the page with room for all groups of settings
constexpr int kPreviewControls = 104; // px below and above the preview's picture

} // namespace

MainWindowWidget::MainWindowWidget(AppSettings &settings, HistoryStore &history, QWidget *parent)
    : QWidget(parent), m_settings(settings), m_editor(settings),
      m_undo(m_editor.undoStack()->createUndoAction(this)),
      m_redo(m_editor.undoStack()->createRedoAction(this)),
      m_slides(new SlidesPage(m_editor, settings)),
      m_imports(new PhotoImports(m_editor, m_slides->busyNote(), this)),
      m_preview(new PreviewWidget(m_editor, settings)),
      m_video(new VideoSettingsFrame(m_editor, settings)), m_groups(new SettingsTabs),
      m_create(new CreatePanel(m_editor, settings, history)), m_side(new QWidget(this)),
      m_stack(new QStackedWidget(this))
{
    setUpLayout();
    setUpUndo();
    connectParts();
}

MainWindowWidget::~MainWindowWidget() = default;

void MainWindowWidget::setUpLayout()
{
    m_slides->setObjectName(QStringLiteral("pageTable"));
    m_stack->setObjectName(QStringLiteral("slideStack"));
    m_stack->addWidget(m_slides);
    m_groups->addGroup(tr("Video"), m_video, 0);
    connect(m_groups, &SettingsTabs::allShownChanged, m_video,
            &VideoSettingsFrame::setHeadingVisible);
    m_video->setHeadingVisible(false);
    auto *column = new QVBoxLayout(m_side);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kGap);
    column->addWidget(m_preview, 1);
    column->addWidget(m_groups);
    column->addWidget(m_create);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(kGap, kGap, kGap, kGap);
    row->setSpacing(kGap);
    row->addWidget(m_stack, 1);
    row->addWidget(m_side);
}

void MainWindowWidget::setUpUndo()
{
    m_undo->setObjectName(QStringLiteral("actUndo"));
    m_redo->setObjectName(QStringLiteral("actRedo"));
    m_undo->setShortcut(Qt::CTRL + Qt::Key_Z);
    m_redo->setShortcuts({Qt::CTRL + Qt::Key_Y, Qt::CTRL + Qt::SHIFT + Qt::Key_Z});
    m_undo->setIcon(Theme::icon(QStringLiteral("undo")));
    m_redo->setIcon(Theme::icon(QStringLiteral("redo")));
    for (QAction *action : {m_undo, m_redo}) {
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        addAction(action);
    }
    connect(m_editor.undoStack(), &QUndoStack::indexChanged, this,
            &MainWindowWidget::updateUndoTips);
    updateUndoTips();
    m_slides->setUndoActions(m_undo, m_redo);
}

/// "Undo: Move slides (Ctrl+Z)"
void MainWindowWidget::updateUndoTips()
{
    const auto tip = [](QAction *action, const QString &name, const QString &step) {
        const QString text =
            step.isEmpty() ? name : tr("%1: %2", "undo or redo, and what").arg(name, step);
        action->setToolTip(SlideActions::toolTip(text, action->shortcut()));
    };
    tip(m_undo, tr("Undo"), m_editor.undoStack()->undoText());
    tip(m_redo, tr("Redo"), m_editor.undoStack()->redoText());
}

void MainWindowWidget::connectParts()
{
    connect(m_slides, &SlidesPage::filesDropped, this, &MainWindowWidget::onFilesDropped);
    connect(m_slides, &SlidesPage::currentSlideChanged, m_preview, &PreviewWidget::setSlide);
    connect(m_slides, &SlidesPage::previewRequested, this, &MainWindowWidget::onPreviewClicked);
    connect(m_slides, &SlidesPage::rotateChanged, this, &MainWindowWidget::rotateChanged);
    connect(m_preview, &PreviewWidget::previewClicked, this, &MainWindowWidget::onPreviewClicked);
    connect(m_create, &CreatePanel::fullPreviewClicked, this, &MainWindowWidget::onFullPreview);
    connect(m_create, &CreatePanel::progressStarted, this, [this] {
        setGenerating(true);
        emit progressStarted();
    });
    connect(m_create, &CreatePanel::progressFinished, this, [this] {
        setGenerating(false);
        emit progressFinished();
    });
    connect(m_create, &CreatePanel::progress, this, &MainWindowWidget::progress);
    connect(m_create, &CreatePanel::finished, this, &MainWindowWidget::finished);
}

/// An edit during a render would not be in the video, and its history entry must match it.
void MainWindowWidget::setGenerating(bool generating)
{
    if (generating)
        m_preview->stop();
    m_stack->setEnabled(!generating);
    m_groups->setEnabled(!generating);
    m_undo->setEnabled(!generating && m_editor.undoStack()->canUndo());
    m_redo->setEnabled(!generating && m_editor.undoStack()->canRedo());
}

bool MainWindowWidget::isGenerating() const
{
    return m_create->isGenerating();
}

bool MainWindowWidget::isEditingText() const
{
    return m_stack->currentWidget() != m_slides;
}

void MainWindowWidget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const int width = std::min(
        std::max(static_cast<int>(kSideShare * event->size().width()), kSmallestSide), kWidestSide);
    m_side->setFixedWidth(width);
    m_preview->setMaximumHeight(width * 9 / 16 + kPreviewControls);
    m_groups->setAllShown(event->size().height() >= kHeightForAll);
}

void MainWindowWidget::setProject(ProjectFile *project)
{
    m_imports->cancel();
    m_editor.setProject(project);
}

void MainWindowWidget::updateFromSettings()
{
    m_video->refresh();
    m_slides->updateFromSettings();
}

void MainWindowWidget::onFilesDropped(const QStringList &files, int newRow)
{
    qCDebug(lcUi).noquote()
        << QStringLiteral("NEW ROW:'%1' AFTER:'%2'").arg(newRow + 1).arg(newRow);
    m_imports->add(files, newRow < 0 ? -1 : newRow + 1);
}

void MainWindowWidget::addFolder(const QString &folder)
{
    onFilesDropped({folder}, -1);
}

void MainWindowWidget::onRowsMoved(int from, int after)
{
    if (!m_editor.project() || from < 0 || from >= m_editor.project()->items().size())
        return;
    m_editor.moveSlides({m_editor.project()->items().at(from)}, after + 1);
}

void MainWindowWidget::onPreviewClicked()
{
    m_preview->previewSlide();
}

void MainWindowWidget::onFullPreview()
{
    m_preview->playFull();
}

} // namespace velmora
