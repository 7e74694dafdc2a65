// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/MainWindowWidget.h"

#include "app/AppSettings.h"
#include "project/documents/ProjectFile.h"
#include "ui/UiLog.h"
#include "ui/editor/CreatePanel.h"
#include "ui/editor/SlidesPage.h"
#include "ui/model/ValueLists.h"
#include "ui_SettingsFrames.h"

#include <QDir>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QShortcut>
#include <QStackedWidget>
#include <QUndoStack>
#include <QWhatsThis>

namespace velmora
{

namespace
{

constexpr int kGap = 16;        // px
constexpr int kSideWidth = 360; // px

} // namespace

MainWindowWidget::MainWindowWidget(AppSettings &settings, HistoryStore &history, QWidget *parent)
    : QWidget(parent), m_settings(settings), m_editor(settings),
      m_ui(std::make_unique<Ui::SettingsFrames>()), m_frames(new QWidget(this)),
      m_slides(new SlidesPage(m_editor, settings, this)),
      m_create(new CreatePanel(m_editor, settings, history, this)),
      m_stack(new QStackedWidget(this))
{
    m_ui->setupUi(m_frames);
    setUpLayout();
    setUpSettings();
    setUpHelp();
    connect(m_create, &CreatePanel::progressStarted, this, [this] {
        m_stack->setEnabled(false);
        m_frames->setEnabled(false);
        emit progressStarted();
    });
    connect(m_create, &CreatePanel::progressFinished, this, [this] {
        m_stack->setEnabled(true);
        m_frames->setEnabled(true);
        emit progressFinished();
    });
    connect(m_create, &CreatePanel::progress, this, &MainWindowWidget::progress);
    connect(m_create, &CreatePanel::finished, this, &MainWindowWidget::finished);
    connect(m_slides, &SlidesPage::rotateChanged, this, &MainWindowWidget::rotateChanged);
    connect(&m_importer, &PhotoImporter::finished, this, &MainWindowWidget::onImported);
    const auto *undo = new QShortcut(QKeySequence(Qt::CTRL + Qt::Key_Z), this);
    const auto *redo = new QShortcut(QKeySequence(Qt::CTRL + Qt::Key_Y), this);
    // An edit during a render would not be in the video; its history entry must match it.
    connect(undo, &QShortcut::activated, this, [this] {
        if (m_stack->isEnabled())
            m_editor.undoStack()->undo();
    });
    connect(redo, &QShortcut::activated, this, [this] {
        if (m_stack->isEnabled())
            m_editor.undoStack()->redo();
    });
}

MainWindowWidget::~MainWindowWidget() = default;

void MainWindowWidget::setUpLayout()
{
    auto *textPage = new QWidget;
    textPage->setObjectName(QStringLiteral("pageText"));
    m_slides->setObjectName(QStringLiteral("pageTable"));
    m_stack->setObjectName(QStringLiteral("slideStack"));
    m_stack->addWidget(m_slides);
    m_stack->addWidget(textPage);
    auto *side = new QWidget(this);
    side->setFixedWidth(kSideWidth);
    auto *column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kGap);
    auto *preview = new QWidget;
    preview->setObjectName(QStringLiteral("previewHost"));
    column->addWidget(preview, 1);
    column->addWidget(m_frames);
    column->addWidget(m_create);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(kGap, kGap, kGap, kGap);
    row->setSpacing(kGap);
    row->addWidget(m_stack, 1);
    row->addWidget(side);
}

void MainWindowWidget::setUpSettings()
{
    m_ui->btnOutResolution->setValues(ValueLists::resolutions());
    m_ui->btnTransitionDuration->setValues(ValueLists::transitionLengths());
    m_ui->btnSetOffset->setValues(ValueLists::offsets());
    m_ui->btnSetFade->setValues(ValueLists::fades());
    connect(m_ui->btnOutResolution, &QPopupButton::valueSelected, this,
            &MainWindowWidget::onResolutionChanged);
    connect(m_ui->btnTransitionDuration, &QPopupButton::valueSelected, this,
            &MainWindowWidget::onTransitionDurationChanged);
    connect(m_ui->btnSetOffset, &QPopupButton::valueSelected, this,
            &MainWindowWidget::onOffsetChanged);
    connect(m_ui->btnSetFade, &QPopupButton::valueSelected, this, &MainWindowWidget::onFadeChanged);
    connect(m_ui->btnLoopAudio, &QPushButton::clicked, this, &MainWindowWidget::onAudioLoopClicked);
    connect(m_ui->chkOrigRatio, &QCheckBox::clicked, &m_editor, &ProjectEditor::setOrigRatio);
    connect(m_ui->chkScaleToFit, &QCheckBox::clicked, &m_editor, &ProjectEditor::setScaleToFit);
    connect(&m_editor, &ProjectEditor::projectChanged, this, &MainWindowWidget::updateSettings);
    connect(&m_editor, &ProjectEditor::settingsChanged, this, &MainWindowWidget::updateSettings);
}

void MainWindowWidget::setUpHelp()
{
    for (QPushButton *button : {m_ui->btnHelpScale, m_ui->btnHelpRatio, m_ui->btnHelpResolution,
                                m_ui->btnHelpTransition, m_ui->btnHelpOffset, m_ui->btnHelpFade}) {
        button->setFixedWidth(32);
        connect(button, &QPushButton::clicked, button, [button] {
            QWhatsThis::showText(button->mapToGlobal(button->rect().center()), button->toolTip(),
                                 button);
        });
    }
}

void MainWindowWidget::updateSettings()
{
    const ProjectFile *project = m_editor.project();
    if (!project)
        return;
    m_ui->btnOutResolution->setValue(project->resolution(),
                                     resolutionToText(project->resolution()));
    m_ui->btnTransitionDuration->setValue(m_settings.transitionTime,
                                          ValueLists::secondsText(m_settings.transitionTime));
    m_ui->btnSetOffset->setValue(project->audio().offset,
                                 ValueLists::secondsText(project->audio().offset));
    m_ui->btnSetFade->setValue(project->audioFade(), ValueLists::secondsText(project->audioFade()));
    m_ui->btnLoopAudio->setChecked(project->audioLoop());
    m_ui->chkOrigRatio->setChecked(project->origRatio());
    m_ui->chkScaleToFit->setChecked(project->scaleToFit());
}

void MainWindowWidget::setProject(ProjectFile *project)
{
    m_importer.cancel();
    m_waiting.clear();
    m_editor.setProject(project);
}

void MainWindowWidget::onFilesDropped(const QStringList &files, int newRow)
{
    qCDebug(lcUi).noquote()
        << QStringLiteral("NEW ROW:'%1' AFTER:'%2'").arg(newRow + 1).arg(newRow);
    const int row = newRow < 0 ? -1 : newRow + 1;
    if (!m_importer.start(files, row))
        m_waiting.append({files, row});
}

void MainWindowWidget::onImported(const PhotoImport &import)
{
    if (!import.cancelled)
        m_editor.addPhotos(import.photos, import.row);
    if (!m_waiting.isEmpty()) {
        const auto next = m_waiting.takeFirst();
        m_importer.start(next.first, next.second);
    }
    if (import.refused.isEmpty() || import.cancelled)
        return;
    QStringList lines;
    for (const PhotoImport::Refused &refused : import.refused)
        lines.append(tr("%1: %2").arg(QDir::toNativeSeparators(refused.path), refused.reason));
    auto *box = new QMessageBox(QMessageBox::Information, tr("Adding photos"),
                                tr("Not all photos have been added"), QMessageBox::Close, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setDetailedText(lines.join(QLatin1Char('\n')));
    box->open();
}

void MainWindowWidget::onRowsMoved(int from, int after)
{
    if (!m_editor.project() || from < 0 || from >= m_editor.project()->items().size())
        return;
    m_editor.moveSlides({m_editor.project()->items().at(from)}, after + 1);
}

void MainWindowWidget::onResolutionChanged(const QVariant &value)
{
    m_editor.setResolution(value.toSize());
}

void MainWindowWidget::onTransitionDurationChanged(const QVariant &value)
{
    m_editor.setTransitionSeconds(value.toInt());
}

void MainWindowWidget::onFadeChanged(const QVariant &value)
{
    m_editor.setAudioFade(value.toInt());
}

void MainWindowWidget::onOffsetChanged(const QVariant &value)
{
    m_editor.setAudioOffset(value.toInt());
}

void MainWindowWidget::onAudioLoopClicked(bool on)
{
    m_editor.setAudioLoop(on);
}

} // namespace velmora
