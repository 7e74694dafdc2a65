// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/MainWindowWidget.h"

#include "chrome/Theme.h"
#include "project/documents/ProjectFile.h"
#include "ui/UiLog.h"
#include "ui/audio/AudioFilesController.h"
#include "ui/audio/AudioListWidget.h"
#include "ui/caption/TextEditWidget.h"
#include "ui/editor/CreatePanel.h"
#include "ui/editor/EditorSide.h"
#include "ui/editor/PhotoImports.h"
#include "ui/editor/SlideActions.h"
#include "ui/editor/SlidesPage.h"
#include "ui/editor/VideoSettingsFrame.h"
#include "ui/preview/PreviewWidget.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHideEvent>
#include <QResizeEvent>
#include <QStackedWidget>
#include <QUndoStack>
#include <QVBoxLayout>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int kGap = 16;            // px
constexpr int kWidestSide = 672;    // px
constexpr double kSideShare = 0.34; // of the page's width

} // namespace

MainWindowWidget::MainWindowWidget(AppSettings &settings, HistoryStore &history, QWidget *parent)
    : QWidget(parent), m_settings(settings), m_editor(settings),
      m_undo(new QAction(Theme::icon(QStringLiteral("undo")), QString(), this)),
      m_redo(new QAction(Theme::icon(QStringLiteral("redo")), QString(), this)),
      m_addAudio(new QAction(this)), m_slides(new SlidesPage(m_editor, settings)),
      m_imports(new PhotoImports(m_editor, m_slides->importNote(), this)),
      m_preview(new PreviewWidget(m_editor, settings)),
      m_video(new VideoSettingsFrame(m_editor, settings)), m_audio(new AudioListWidget(m_editor)),
      m_create(new CreatePanel(m_editor, settings, history)),
      m_side(new EditorSide(m_preview, m_create)), m_text(new TextEditWidget(m_editor)),
      m_stack(new QStackedWidget)
{
    setUpSlideStack();
    setUpSide();
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(kGap, kGap, kGap, kGap);
    row->setSpacing(kGap);
    row->addWidget(m_stack, 1);
    row->addWidget(m_side, 1000); // up to its greatest width
    setUpActions();
    connectParts();
}

MainWindowWidget::~MainWindowWidget() = default;

void MainWindowWidget::setUpSlideStack()
{
    m_slides->setObjectName(QStringLiteral("pageTable"));
    auto *textPage = new QWidget;
    textPage->setObjectName(QStringLiteral("pageText"));
    auto *column = new QVBoxLayout(textPage);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_text);
    m_stack->setObjectName(QStringLiteral("slideStack"));
    m_stack->addWidget(m_slides);
    m_stack->addWidget(textPage);
}

void MainWindowWidget::setUpSide()
{
    m_side->setObjectName(QStringLiteral("editorSide"));
    m_side->addGroup(m_video, false);
    m_side->addGroup(m_audio, true);
    const auto showHeading = [this](EditorSide::Mode mode) {
        m_video->setHeadingVisible(mode == EditorSide::Mode::All);
    };
    connect(m_side, &EditorSide::modeChanged, this, showHeading);
    connect(m_side, &EditorSide::partsChanged, this, &MainWindowWidget::fitSide);
    showHeading(m_side->mode());
}

void MainWindowWidget::setUpActions()
{
    m_undo->setObjectName(QStringLiteral("actUndo"));
    m_redo->setObjectName(QStringLiteral("actRedo"));
    m_undo->setShortcut(Qt::CTRL + Qt::Key_Z);
    m_redo->setShortcuts({Qt::CTRL + Qt::Key_Y, Qt::CTRL + Qt::SHIFT + Qt::Key_Z});
    connect(m_undo, &QAction::triggered, m_editor.undoStack(), &QUndoStack::undo);
    connect(m_redo, &QAction::triggered, m_editor.undoStack(), &QUndoStack::redo);
    m_addAudio->setObjectName(QStringLiteral("actAddAudio"));
    m_addAudio->setShortcut(Qt::CTRL + Qt::Key_M);
    connect(m_addAudio, &QAction::triggered, m_audio, &AudioListWidget::onBtnAddAudioClicked);
    addAction(m_addAudio);
    for (QAction *action : {m_undo, m_redo}) {
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        addAction(action);
    }
    connect(m_editor.undoStack(), &QUndoStack::indexChanged, this,
            &MainWindowWidget::updateActions);
    retranslate();
    m_slides->setUndoActions(m_undo, m_redo);
}

void MainWindowWidget::retranslate()
{
    m_side->setTitles({tr("Preview"), tr("Video"), tr("Audio")});
    m_undo->setText(tr("Undo"));
    m_redo->setText(tr("Redo"));
    m_addAudio->setText(tr("Add Audio"));
    m_addAudio->setToolTip(SlideActions::toolTip(m_addAudio->text(), m_addAudio->shortcut()));
    updateActions();
    updateObstacle();
}

void MainWindowWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

/// "Undo: Move slides (Ctrl+Z)"; not possible while a video is made or a caption is edited.
void MainWindowWidget::updateActions()
{
    const QUndoStack &stack = *m_editor.undoStack();
    const bool can = !isGenerating() && !isEditingText();
    m_undo->setEnabled(can && stack.canUndo());
    m_redo->setEnabled(can && stack.canRedo());
    m_addAudio->setEnabled(can);
    const auto tip = [](QAction *action, const QString &name, const QString &step) {
        const QString text =
            step.isEmpty()
                ? name
                : tr("%1: %2", "undo or redo, and what").arg(name, ProjectEditor::stepName(step));
        action->setToolTip(SlideActions::toolTip(text, action->shortcut()));
    };
    tip(m_undo, tr("Undo"), stack.undoText());
    tip(m_redo, tr("Redo"), stack.redoText());
}

/// What is on its way would not be in the video.
void MainWindowWidget::updateObstacle()
{
    QString obstacle;
    if (m_imports->isRunning())
        obstacle = tr("Photos are still being added");
    else if (m_audio->controller().isAdding())
        obstacle = tr("Audio files are still being added");
    else if (m_slides->isSorting())
        obstacle = tr("The photos are still being sorted");
    else if (isEditingText())
        obstacle = tr("A text is still being edited");
    m_create->setObstacle(obstacle);
}

void MainWindowWidget::connectParts()
{
    connect(m_imports, &PhotoImports::runningChanged, this, &MainWindowWidget::updateObstacle);
    connect(&m_audio->controller(), &AudioFilesController::addingChanged, this,
            &MainWindowWidget::updateObstacle);
    connect(m_slides, &SlidesPage::sortingChanged, this, &MainWindowWidget::updateObstacle);
    connect(m_slides, &SlidesPage::filesDropped, this, &MainWindowWidget::onFilesDropped);
    connect(m_slides, &SlidesPage::currentSlideChanged, m_preview, &PreviewWidget::setSlide);
    connect(m_slides, &SlidesPage::filesChanged, m_preview, &PreviewWidget::refreshSoon);
    connect(m_slides, &SlidesPage::previewRequested, this, &MainWindowWidget::onPreviewClicked);
    connect(m_slides, &SlidesPage::captionRequested, this, &MainWindowWidget::editCaption);
    connect(m_slides, &SlidesPage::captionOfAllRequested, this,
            &MainWindowWidget::editCaptionOfAll);
    connect(m_text, &TextEditWidget::finished, this, &MainWindowWidget::endTextEditing);
    connect(m_text, &TextEditWidget::editedChanged, this, &MainWindowWidget::unsavedTextChanged);
    connect(m_slides, &SlidesPage::rotateChanged, this, &MainWindowWidget::rotateChanged);
    connect(m_preview, &PreviewWidget::previewClicked, this, &MainWindowWidget::onPreviewClicked);
    // Two sounds at once are noise.
    connect(m_preview, &PreviewWidget::playing, m_audio, &AudioListWidget::stop);
    connect(m_audio, &AudioListWidget::listening, m_preview, &PreviewWidget::stop);
    connect(m_create, &CreatePanel::fullPreviewClicked, this, &MainWindowWidget::onFullPreview);
    connect(m_create, &CreatePanel::progressStarted, this, [this] {
        setGenerating(true);
        emit progressStarted();
    });
    connect(m_create, &CreatePanel::progressFinished, this, [this] {
        m_preview->leaveFullSize(); // would cover what is shown next
        setGenerating(false);
        emit progressFinished();
    });
    connect(m_create, &CreatePanel::pausedChanged, this, &MainWindowWidget::pausedChanged);
    connect(m_create, &CreatePanel::progress, this, &MainWindowWidget::progress);
    connect(m_create, &CreatePanel::failed, this, &MainWindowWidget::failed);
    connect(m_create, &CreatePanel::recorded, this, &MainWindowWidget::recorded);
    connect(m_create, &CreatePanel::finished, this, &MainWindowWidget::onFullVideoGenerated);
}

/// An edit during a render would not be in the video.
void MainWindowWidget::setGenerating(bool generating)
{
    if (generating)
        silence();
    m_stack->setEnabled(!generating);
    m_video->setEnabled(!generating);
    m_audio->setEnabled(!generating);
    updateActions();
}

bool MainWindowWidget::isGenerating() const
{
    return m_create->isGenerating();
}

bool MainWindowWidget::isEditingText() const
{
    return m_stack->currentWidget() != m_slides;
}

bool MainWindowWidget::hasUnsavedText() const
{
    return isEditingText() && m_text->isEdited();
}

void MainWindowWidget::focusSlides()
{
    if (!isEditingText())
        m_slides->focusTable();
}

void MainWindowWidget::saveText()
{
    if (hasUnsavedText())
        m_text->save();
}

void MainWindowWidget::toJson(QJsonObject &document) const
{
    // The slides have it for this moment only, so that nobody needs to be told.
    const TextEditWidget::Edits edits = m_text->edits();
    QVector<SlideState> before;
    for (const auto &edit : edits) {
        before.append(SlideState::of(*edit.first));
        edit.second.applyTo(*edit.first);
    }
    m_editor.project()->toJson(document);
    for (int i = 0; i < edits.size(); ++i)
        before.at(i).applyTo(*edits.at(i).first);
}

void MainWindowWidget::editCaption(ProjectItem *slide)
{
    if (!slide || isGenerating())
        return;
    m_text->setItem(slide);
    beginTextEditing();
}

void MainWindowWidget::editCaptionOfAll()
{
    if (!m_editor.project() || isGenerating())
        return;
    m_text->setAllSlides();
    beginTextEditing();
}

/// The caption editor has a picture of its own and needs the whole page.
void MainWindowWidget::beginTextEditing()
{
    silence();
    m_stack->setCurrentIndex(1);
    m_side->hide();
    updateActions();
    updateObstacle();
    emit textEditingBegan(m_editor.project()->items().size());
}

void MainWindowWidget::endTextEditing()
{
    if (!isEditingText())
        return;
    m_stack->setCurrentWidget(m_slides);
    m_side->show();
    m_slides->focusTable();
    updateActions();
    updateObstacle();
    emit textEditingFinished();
}

void MainWindowWidget::silence()
{
    m_preview->stop();
    m_audio->stop();
}

void MainWindowWidget::hideEvent(QHideEvent *event)
{
    if (!event->spontaneous()) {
        m_preview->leaveFullSize();
        silence();
    }
    QWidget::hideEvent(event);
}

void MainWindowWidget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fitSide();
}

void MainWindowWidget::fitSide()
{
    const int share = std::min(static_cast<int>(kSideShare * width()), kWidestSide);
    m_side->setMaximumWidth(std::max(share, m_side->minimumSizeHint().width()));
}

void MainWindowWidget::setProject(ProjectFile *project)
{
    m_imports->cancel();
    m_preview->stop();
    if (isEditingText())
        m_text->cancel();
    m_editor.setProject(project);
}

void MainWindowWidget::updateFromSettings()
{
    m_video->refresh();
    m_slides->updateFromSettings();
    m_preview->refreshSoon();
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
    m_side->showPreview();
    m_preview->previewSlide();
}

void MainWindowWidget::onFullPreview()
{
    m_side->showPreview();
    m_preview->playFull();
}

void MainWindowWidget::onFullVideoGenerated(const QString &fileName)
{
    m_preview->stop();
    emit finished(fileName);
}

} // namespace velmora
