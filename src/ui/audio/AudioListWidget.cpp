// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/audio/AudioListWidget.h"

#include "chrome/HelpBubble.h"
#include "chrome/MessageDialog.h"
#include "chrome/QPopupButton.h"
#include "chrome/QTableViewEx.h"
#include "chrome/Theme.h"
#include "project/documents/ProjectFile.h"
#include "ui/audio/AudioFilesController.h"
#include "ui/audio/AudioNoFocusRectangleDelegate.h"
#include "ui/model/ProjectEditor.h"
#include "ui/model/ValueLists.h"
#include "ui_AudioListWidget.h"

#include <QAction>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QStandardPaths>
#include <QVariant>

namespace velmora
{

namespace
{

constexpr int kRowHeight = 40; // px

} // namespace

AudioListWidget::AudioListWidget(ProjectEditor &editor, QWidget *parent)
    : QWidget(parent), m_editor(editor), m_ui(std::make_unique<Ui::AudioListWidget>()),
      m_controller(new AudioFilesController(editor, this)),
      m_folder(QStandardPaths::writableLocation(QStandardPaths::MusicLocation))
{
    constexpr int kAddingDelay = 300; // ms
    m_ui->setupUi(this);
    m_ui->frameAudioSettings->setProperty("card", true);
    m_ui->lblAudio->setProperty("heading", true);
    m_ui->lblAudioAdding->setProperty("secondary", true);
    m_ui->btnCancelAdding->setIcon(Theme::icon(QStringLiteral("close")));
    m_ui->btnAddAudio->setIcon(Theme::icon(QStringLiteral("add-audio")));
    m_ui->btnLoopAudio->setIcon(Theme::icon(QStringLiteral("repeat"), true));
    setUpTable();
    setUpActions();
    setUpValues();
    m_addingDelay.setSingleShot(true);
    m_addingDelay.setInterval(kAddingDelay);
    connect(&m_addingDelay, &QTimer::timeout, this, &AudioListWidget::updateAdding);
    connect(m_ui->btnCancelAdding, &QToolButton::clicked, m_controller,
            &AudioFilesController::cancelAdding);
    connect(m_controller, &AudioFilesController::addingChanged, this, [this](int looked) {
        m_ui->lblAudioAdding->setText(looked > 0 ? tr("Adding: %1").arg(looked) : tr("Adding..."));
        // Short waits pass without a word.
        if (!m_controller->isAdding())
            updateAdding();
        else if (!m_addingDelay.isActive())
            m_addingDelay.start();
    });
    connect(m_controller, &AudioFilesController::paramsChanged, this,
            &AudioListWidget::setAudioParams);
    // Queued, so that the drop or the file dialog is over before the message opens.
    connect(m_controller, &AudioFilesController::notAllAdded, this,
            &AudioListWidget::showErrorThatNotAllAudioAreAdded, Qt::QueuedConnection);
    connect(m_controller, &AudioFilesController::playFailed, this,
            [this](const QString &fileName, const QString &reason) {
                MessageDialog::inform(
                    this, tr("Listening"),
                    tr("%1 cannot be played: %2").arg(QDir::toNativeSeparators(fileName), reason));
            });
    connect(m_controller, &AudioFilesController::playingChanged, this, [this] {
        updateActions();
        if (m_controller->playingRow() >= 0)
            emit listening();
    });
    retranslate();
    initProjectAudio();
    updateAdding();
    setAudioParams(m_controller->rowCount(), m_controller->totalTime());
}

AudioListWidget::~AudioListWidget() = default;

void AudioListWidget::setUpTable()
{
    QTableViewEx &table = *m_ui->tableAudioFiles;
    auto *delegate = new AudioNoFocusRectangleDelegate(this);
    table.setModel(m_controller);
    table.setItemDelegate(delegate);
    table.horizontalHeader()->hide();
    table.horizontalHeader()->setStretchLastSection(true);
    table.horizontalHeader()->setMinimumSectionSize(0);
    table.verticalHeader()->setDefaultSectionSize(kRowHeight);
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table.viewport()->setMouseTracking(true);
    table.viewport()->setAttribute(Qt::WA_Hover);
    table.setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(delegate, &AudioNoFocusRectangleDelegate::playClicked, m_controller,
            &AudioFilesController::play);
    connect(delegate, &AudioNoFocusRectangleDelegate::stopClicked, this, [this](int row) {
        if (row == m_controller->playingRow())
            m_controller->stop();
    });
    connect(delegate, &AudioNoFocusRectangleDelegate::deleteClicked, this,
            [this](int row) { m_controller->remove({row}); });
    connect(&table, &QTableViewEx::filesDropped, this, &AudioListWidget::onAudioFilesDropped);
    connect(&table, &QTableViewEx::rowsMoved, m_controller, &AudioFilesController::move);
    connect(&table, &QTableViewEx::doubleClicked, this,
            [this](const QModelIndex &index) { m_controller->play(index.row()); });
    connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &AudioListWidget::updateActions);
    connect(m_controller, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex &, int first, int last) {
                m_ui->tableAudioFiles->scrollTo(m_controller->index(last));
                m_ui->tableAudioFiles->scrollTo(m_controller->index(first));
            });
    // The position of moved rows decides on what can be moved further.
    connect(m_controller, &AudioFilesController::audioChanged, this,
            &AudioListWidget::updateActions);
}

QAction *AudioListWidget::addAction(const QKeySequence &keys, void (AudioListWidget::*slot)())
{
    auto *action = new QAction(this);
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, slot);
    m_ui->tableAudioFiles->addAction(action);
    return action;
}

void AudioListWidget::setUpActions()
{
    m_listen = addAction(QKeySequence(Qt::Key_Space), &AudioListWidget::listen);
    m_stop = addAction({}, &AudioListWidget::stop);
    m_up = addAction(QKeySequence(Qt::ALT + Qt::Key_Up), &AudioListWidget::moveUp);
    m_down = addAction(QKeySequence(Qt::ALT + Qt::Key_Down), &AudioListWidget::moveDown);
    m_delete = addAction(QKeySequence(Qt::Key_Delete), &AudioListWidget::deleteSelected);
    m_listen->setIcon(Theme::icon(QStringLiteral("audio-play")));
    m_stop->setIcon(Theme::icon(QStringLiteral("audio-st")));
    m_up->setIcon(Theme::icon(QStringLiteral("up")));
    m_down->setIcon(Theme::icon(QStringLiteral("down")));
    m_delete->setIcon(Theme::icon(QStringLiteral("audio-del")));
}

void AudioListWidget::setUpValues()
{
    connect(m_ui->btnAddAudio, &QPushButton::clicked, this, &AudioListWidget::onBtnAddAudioClicked);
    connect(m_ui->btnLoopAudio, &QPushButton::clicked, this, &AudioListWidget::onAudioLoopClicked);
    connect(m_ui->btnSetOffset, &QPopupButton::valueSelected, this,
            &AudioListWidget::onOffsetChanged);
    connect(m_ui->btnSetFade, &QPopupButton::valueSelected, this, &AudioListWidget::onFadeChanged);
    connect(&m_editor, &ProjectEditor::projectChanged, this, &AudioListWidget::initProjectAudio);
    connect(&m_editor, &ProjectEditor::settingsChanged, this, &AudioListWidget::initProjectAudio);
    m_loopHelp = new HelpBubble(m_ui->btnLoopAudio, m_ui->btnHelpLoop);
    m_offsetHelp = new HelpBubble(m_ui->btnSetOffset, m_ui->btnHelpOffset);
    m_fadeHelp = new HelpBubble(m_ui->btnSetFade, m_ui->btnHelpFade);
}

void AudioListWidget::onOffsetChanged(const QVariant &value)
{
    m_editor.setAudioOffset(value.toInt());
}

void AudioListWidget::onFadeChanged(const QVariant &value)
{
    m_editor.setAudioFade(value.toInt());
}

void AudioListWidget::onAudioLoopClicked(bool on)
{
    m_editor.setAudioLoop(on);
}

void AudioListWidget::retranslate()
{
    m_ui->tableAudioFiles->setEmptyState(Theme::icon(QStringLiteral("audio")).pixmap(80, 60),
                                         tr("Drag & drop audio files to create a playlist"));
    m_ui->btnSetOffset->setValues(ValueLists::offsets());
    m_ui->btnSetFade->setValues(ValueLists::fades());
    m_loopHelp->setTexts(m_ui->btnLoopAudio->text());
    m_offsetHelp->setTexts(m_ui->lblOffset->text());
    m_fadeHelp->setTexts(m_ui->lblFade->text());
    m_stop->setText(tr("Stop"));
    m_up->setText(tr("Move up"));
    m_down->setText(tr("Move down"));
    m_delete->setText(tr("Delete"));
    updateActions();
}

bool AudioListWidget::event(QEvent *event)
{
    // Files may have been moved or brought back in another program.
    if (event->type() == QEvent::WindowActivate || event->type() == QEvent::Show)
        m_controller->checkFiles();
    return QWidget::event(event);
}

void AudioListWidget::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    m_ui->retranslateUi(this);
    retranslate();
    initProjectAudio();
    setAudioParams(m_controller->rowCount(), m_controller->totalTime());
}

void AudioListWidget::initProjectAudio()
{
    const ProjectFile *project = m_editor.project();
    m_ui->frameAudioSettings->setEnabled(project != nullptr);
    if (!project)
        return;
    const int offset = project->audio().offset;
    m_ui->btnSetOffset->setValue(offset, ValueLists::secondsText(offset));
    m_ui->btnSetFade->setValue(project->audioFade(), ValueLists::secondsText(project->audioFade()));
    m_ui->btnLoopAudio->setChecked(project->audioLoop());
}

void AudioListWidget::updateActions()
{
    const QVector<int> rows = selectedRows();
    const int playing = m_controller->playingRow();
    m_listen->setText(playing >= 0 && rows.contains(playing) ? tr("Stop listening") : tr("Listen"));
    m_listen->setEnabled(!rows.isEmpty());
    m_stop->setEnabled(playing >= 0);
    m_up->setEnabled(!rows.isEmpty() && rows.first() > 0);
    m_down->setEnabled(!rows.isEmpty() && rows.last() < m_controller->rowCount() - 1);
    m_delete->setEnabled(!rows.isEmpty());
}

void AudioListWidget::updateAdding()
{
    const bool adding = m_controller->isAdding();
    if (!adding)
        m_addingDelay.stop();
    m_ui->lblAudioAdding->setVisible(adding);
    m_ui->btnCancelAdding->setVisible(adding);
    m_ui->lblAudioTotal->setVisible(!adding);
}

void AudioListWidget::setAudioParams(int count, qint64 duration)
{
    m_ui->lblAudioTotal->setText(
        tr("Total: %1 %2 (%3)")
            .arg(count)
            .arg(count == 0 ? tr("track") : tr("tracks"), ValueLists::durationText(duration)));
    m_ui->lblAudioTotal->setEnabled(count != 0);
}

void AudioListWidget::onBtnAddAudioClicked()
{
    QFileDialog dialog(this, tr("Open File"),
                       QFileInfo(m_folder).isDir() ? m_folder : QDir::homePath(),
                       AudioFilesController::dialogFilter());
    dialog.setFileMode(QFileDialog::ExistingFiles);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_folder = dialog.directory().absolutePath();
    m_controller->addFiles(dialog.selectedFiles(), -1);
}

void AudioListWidget::onAudioFilesDropped(const QStringList &files, int newRow)
{
    m_controller->addFiles(files, newRow);
}

void AudioListWidget::showErrorThatNotAllAudioAreAdded(const QStringList &files)
{
    MessageDialog::Message message;
    message.kind = MessageDialog::Kind::Warning;
    message.title = tr("Adding audio files");
    message.text = tr("Not all audio files have been added");
    QStringList paths;
    for (const QString &file : files)
        paths.append(QDir::toNativeSeparators(file));
    message.details = paths.join(QLatin1Char('\n'));
    message.buttons = QStringList{tr("CLOSE")};
    auto *dialog = new MessageDialog(message, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

QVector<int> AudioListWidget::selectedRows() const
{
    return m_ui->tableAudioFiles->movableSelection();
}

void AudioListWidget::deleteSelected()
{
    const QVector<int> rows = selectedRows();
    m_controller->remove(rows);
    const int next = rows.isEmpty() ? 0 : rows.first();
    if (m_controller->rowCount() > 0)
        m_ui->tableAudioFiles->selectRow(std::min(next, m_controller->rowCount() - 1));
}

void AudioListWidget::moveUp()
{
    const QVector<int> rows = selectedRows();
    m_controller->move(rows, rows.first() - 1);
}

void AudioListWidget::moveDown()
{
    const QVector<int> rows = selectedRows();
    m_controller->move(rows, rows.last() + 2);
}

void AudioListWidget::listen()
{
    const int row = m_ui->tableAudioFiles->currentIndex().row();
    if (row >= 0 && row == m_controller->playingRow())
        m_controller->stop();
    else
        m_controller->play(row);
}

void AudioListWidget::stop()
{
    if (m_controller->playingRow() >= 0)
        m_controller->stop();
}

} // namespace velmora
