// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/CreatePanel.h"

#include "app/AppSettings.h"
#include "app/Paths.h"
#include "chrome/MessageDialog.h"
#include "chrome/Theme.h"
#include "generator/pipeline/RenderRequest.h"
#include "project/documents/HistoryStore.h"
#include "project/documents/ProjectName.h"
#include "project/documents/Timeline.h"
#include "services/MetricSender.h"
#include "ui/UiLog.h"
#include "ui/editor/SlideActions.h"
#include "ui/editor/VideoName.h"
#include "ui/model/ProjectEditor.h"
#include "ui/model/ValueLists.h"
#include "ui_CreatePanel.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QTemporaryFile>
#include <QUndoStack>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int kProgressInterval = 500; // ms
constexpr int kRoundButton = 52;       // px of a button with a picture only
constexpr int kFinalPercent = 99;      // the frames are done, the file is put together

} // namespace

CreatePanel::CreatePanel(ProjectEditor &editor, const AppSettings &settings, HistoryStore &history,
                         QWidget *parent)
    : QFrame(parent), m_editor(editor), m_settings(settings), m_history(history),
      m_ui(std::make_unique<Ui::CreatePanel>())
{
    m_ui->setupUi(this);
    m_name = new VideoName(*m_ui->txtProjName, editor, this);
    setUpPages();
    connectComposer();
    for (QTimer *timer : {&m_progressTimer, &m_finalTimer})
        timer->setInterval(kProgressInterval);
    connect(&m_progressTimer, &QTimer::timeout, this, &CreatePanel::onProgressTimer);
    connect(&m_finalTimer, &QTimer::timeout, this, &CreatePanel::onFinalTimer);
    for (const auto signal : {&ProjectEditor::projectChanged, &ProjectEditor::settingsChanged,
                              &ProjectEditor::totalsChanged})
        connect(&m_editor, signal, this, &CreatePanel::refresh);
    refresh();
}

CreatePanel::~CreatePanel()
{
    removeRequest();
}

void CreatePanel::setUpPages()
{
    setProperty("card", true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    for (QPushButton *button :
         {m_ui->btnCreate, m_ui->btnFullPreview, m_ui->btnPauseResume, m_ui->btnCancel})
        button->setIconSize({20, 20});
    m_ui->btnCreate->setProperty("primary", true);
    m_ui->btnCreate->setIcon(Theme::icon(QStringLiteral("film-white")));
    m_ui->btnFullPreview->setIcon(Theme::icon(QStringLiteral("preview")));
    m_ui->lblPercent->setProperty("heading", true);
    m_ui->lblSpeed->setProperty("heading", true);
    m_ui->lblElapsedTime->setProperty("secondary", true);
    m_ui->lblRemTime->setProperty("secondary", true);
    m_ui->progressBar->setTextVisible(false);
    m_ui->btnCancel->setIcon(Theme::icon(QStringLiteral("close")));
    for (QPushButton *button : {m_ui->btnPauseResume, m_ui->btnCancel})
        button->setFixedWidth(kRoundButton);
    for (const auto &format : ValueLists::formats())
        m_ui->cbxFormat->addItem(format.first, format.second);
    connect(m_ui->cbxFormat, QOverload<int>::of(&QComboBox::activated), this,
            &CreatePanel::onChangeVideoFormat);
    retranslate();
    connect(m_ui->txtProjName, &QLineEdit::returnPressed, m_ui->btnCreate, &QPushButton::click);
}

void CreatePanel::retranslate()
{
    // A change of a button's text takes its shortcut away.
    const QKeySequence create(Qt::CTRL + Qt::Key_Return);
    const QKeySequence preview(Qt::CTRL + Qt::Key_P);
    m_ui->btnCreate->setShortcut(create);
    m_ui->btnCreate->setToolTip(SlideActions::toolTip(tr("Make the video"), create));
    m_ui->btnFullPreview->setShortcut(preview);
    m_ui->btnFullPreview->setToolTip(
        SlideActions::toolTip(tr("Play the whole slideshow"), preview));
    m_ui->btnCancel->setAccessibleName(tr("Cancel"));
    m_ui->btnCancel->setToolTip(tr("Cancel"));
    showPauseButton(m_composer.isPaused());
}

void CreatePanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        retranslate();
    }
    QFrame::changeEvent(event);
}

void CreatePanel::connectComposer()
{
    connect(&m_composer, &Composer::progress, this, &CreatePanel::onProgress);
    connect(&m_composer, &Composer::finished, this, &CreatePanel::onFinished);
    connect(&m_composer, &Composer::failed, this, &CreatePanel::onFailed);
    connect(&m_composer, &Composer::canceled, this, &CreatePanel::onCancelled);
}

void CreatePanel::refresh()
{
    updateCreateButton();
    const ProjectFile *project = m_editor.project();
    if (!project)
        return;
    // Documents may name a container that the menu does not offer, such as "mkv".
    int index = m_ui->cbxFormat->findData(project->format());
    if (index < 0) {
        m_ui->cbxFormat->addItem(QLatin1Char('.') + project->format(), project->format());
        index = m_ui->cbxFormat->count() - 1;
    }
    m_ui->cbxFormat->setCurrentIndex(index);
}

void CreatePanel::updateCreateButton()
{
    const bool can = canBeGenerated();
    m_ui->btnFullPreview->setEnabled(can);
    // A worker that is being stopped would have to be waited for.
    m_ui->btnCreate->setEnabled(can && (m_generating || !m_composer.isRunning()));
}

void CreatePanel::onChangeVideoFormat(int index)
{
    m_editor.setFormat(m_ui->cbxFormat->itemData(index).toString());
}

void CreatePanel::on_btnFullPreview_clicked()
{
    emit fullPreviewClicked();
}

bool CreatePanel::canBeGenerated() const
{
    if (!m_editor.project())
        return false;
    const auto &items = m_editor.project()->items();
    return std::any_of(items.begin(), items.end(),
                       [](const ProjectItem *slide) { return slide->isShown(); });
}

QString CreatePanel::outputPath() const
{
    return QDir(m_settings.folder)
        .filePath(m_ui->txtProjName->text() + QLatin1Char('.') + m_editor.project()->format());
}

bool CreatePanel::isNameUsable()
{
    const QString name = m_ui->txtProjName->text();
    const bool empty = name.trimmed().isEmpty();
    if (!empty && ProjectName::isAllowed(name))
        return true;
    MessageDialog::inform(this, tr("Filename"),
                          empty ? tr("The video needs a file name.")
                                : ProjectName::forbiddenMessage());
    m_ui->txtProjName->setFocus();
    m_ui->txtProjName->selectAll();
    return false;
}

bool CreatePanel::isFolderUsable()
{
    const QString folder = QDir::toNativeSeparators(m_settings.folder);
    QString problem;
    if (m_settings.folder.isEmpty() || !QDir().mkpath(m_settings.folder)) {
        problem = tr("The folder %1 does not exist and cannot be made.").arg(folder);
    } else {
        // Permissions do not tell everything: a disc may be read-only, or full.
        QTemporaryFile probe(QDir(m_settings.folder).filePath(QStringLiteral(".velmora-XXXXXX")));
        if (!probe.open())
            problem = tr("The folder %1 cannot be written to: %2").arg(folder, probe.errorString());
    }
    if (problem.isEmpty())
        return true;
    MessageDialog::inform(this, tr("The video cannot be saved"),
                          problem + QLatin1Char('\n') +
                              tr("Please choose another folder in the settings."));
    return false;
}

bool CreatePanel::mayReplace(const QString &output)
{
    if (!QFileInfo::exists(output))
        return true;
    MessageDialog::Message message;
    message.kind = MessageDialog::Kind::Question;
    message.title = tr("Replace the video");
    message.text = tr("The file %1 exists already. Do you want to replace it?")
                       .arg(QDir::toNativeSeparators(output));
    message.buttons = QStringList{tr("CANCEL"), tr("REPLACE")};
    message.defaultButton = 1;
    message.cancelButton = 0;
    message.dangerous = true;
    return MessageDialog::ask(this, message).button == 1;
}

void CreatePanel::on_btnCreate_clicked()
{
    if (m_generating || !canBeGenerated() || !isNameUsable() || !isFolderUsable())
        return;
    const QString output = outputPath();
    if (mayReplace(output))
        start(output);
}

void CreatePanel::start(const QString &output)
{
    ProjectFile &project = *m_editor.project();
    m_name->giveTitle();
    project.setFileName(output);
    m_request = QStringLiteral("%1/%2.json").arg(Paths::cacheFolder(), m_ui->txtProjName->text());
    QString error = tr("The folder %1 cannot be made.").arg(Paths::cacheFolder());
    if (!Paths::ensureFolder(Paths::cacheFolder()) ||
        !RenderRequest::save(project, m_settings, m_request, &error)) {
        MessageDialog::inform(this, tr("The video cannot be made"), error);
        return;
    }
    m_rendered = QJsonObject();
    project.toJson(m_rendered);
    m_renderedStep = m_editor.undoStack()->index();
    m_videoLength = Timeline::ofProject(project, m_settings.transitionTime).totalLength();
    m_generating = true;
    m_ui->tcCreate->setCurrentWidget(m_ui->page_2);
    m_ui->btnPauseResume->setFocus();
    showPauseButton(false);
    m_ui->progressBar->setValue(0);
    m_ui->lblPercent->setText(tr("%1 %").arg(0));
    emit progressStarted();
    m_progressTimer.start();
    m_composer.run(m_request);
    onProgressTimer();
}

void CreatePanel::onProgress(int percent)
{
    m_ui->progressBar->setValue(percent);
    m_ui->lblPercent->setText(tr("%1 %").arg(percent));
    if (percent >= kFinalPercent && !m_finalTimer.isActive())
        m_finalTimer.start();
    emit progress(percent);
}

void CreatePanel::onProgressTimer()
{
    if (!m_composer.isRunning())
        return;
    m_ui->lblElapsedTime->setText(
        tr("Time Elapsed: %1").arg(ValueLists::durationText(m_composer.elapsed())));
    const qint64 left = m_composer.remaining();
    m_ui->lblRemTime->setText(
        tr("Time Remaining: %1").arg(left < 0 ? tr("unknown") : ValueLists::durationText(left)));
    showState();
}

/// What goes on, and how fast compared to watching the video.
void CreatePanel::showState()
{
    const qint64 time = m_composer.runningTime();
    const int percent = m_ui->progressBar->value();
    if (m_composer.isPaused()) {
        m_ui->lblSpeed->setText(tr("Paused"));
    } else if (percent >= kFinalPercent) {
        m_ui->lblSpeed->setText(tr("Finishing the video"));
    } else if (percent > 0 && time > 0) {
        const double speed =
            static_cast<double>(m_videoLength) * percent / 100 / static_cast<double>(time);
        m_ui->lblSpeed->setText(tr("Making the video (%1x)").arg(speed, 0, 'f', 1));
    } else {
        m_ui->lblSpeed->setText(tr("Preparing"));
    }
}

void CreatePanel::onFinalTimer()
{
    if (m_generating) {
        showState();
    } else if (!m_composer.isRunning()) {
        m_finalTimer.stop();
        removeRequest();
        updateCreateButton();
    }
}

void CreatePanel::showPauseButton(bool paused)
{
    const QString text = paused ? tr("Resume") : tr("Pause");
    m_ui->btnPauseResume->setIcon(
        Theme::icon(paused ? QStringLiteral("play") : QStringLiteral("pause")));
    m_ui->btnPauseResume->setAccessibleName(text);
    m_ui->btnPauseResume->setToolTip(text);
}

void CreatePanel::on_btnPauseResume_clicked()
{
    if (m_composer.isPaused())
        m_composer.resume();
    else
        m_composer.pause();
    showPauseButton(m_composer.isPaused());
    emit pausedChanged(m_composer.isPaused());
    onProgressTimer();
}

void CreatePanel::on_btnCancel_clicked()
{
    const auto seconds = static_cast<int>(m_composer.elapsed() / 1000);
    MetricSender::instance().record(QStringLiteral("cancel"), seconds);
    m_composer.cancel();
}

void CreatePanel::showSetup()
{
    m_generating = false;
    m_progressTimer.stop();
    m_finalTimer.stop();
    m_ui->tcCreate->setCurrentWidget(m_ui->pgSetup);
    updateCreateButton();
    emit progressFinished();
}

void CreatePanel::onCancelled()
{
    showSetup();
    m_finalTimer.start();
}

/// It holds the user's paths and texts, and nobody reads it any more.
void CreatePanel::removeRequest()
{
    if (!m_request.isEmpty())
        QFile::remove(m_request);
    m_request.clear();
}

void CreatePanel::onFailed()
{
    removeRequest();
    showSetup();
    emit failed(m_composer.errorText());
    MessageDialog::Message message;
    message.kind = MessageDialog::Kind::Warning;
    message.title = QCoreApplication::translate("Conversion", "Creation error");
    message.text = message.title;
    message.details = m_composer.errorText();
    message.buttons = QStringList{tr("CLOSE")};
    MessageDialog::ask(this, message);
}

void CreatePanel::onFinished(const QString &fileName)
{
    qCDebug(lcUi) << "Finished generating" << fileName;
    removeRequest();
    m_ui->progressBar->setValue(100);
    m_ui->lblRemTime->setText(tr("Time Remaining: %1").arg(ValueLists::durationText(0)));
    QString error;
    const bool isRecorded = recordHistory(fileName, &error);
    m_name->propose();
    showSetup();
    // Photos that were still on their way when the render began are not in the entry.
    if (isRecorded && m_editor.undoStack()->index() == m_renderedStep)
        emit recorded();
    emit finished(fileName);
    if (!isRecorded)
        MessageDialog::inform(
            window(), tr("History"),
            tr("The video is ready, but it could not be entered in the history: %1").arg(error));
}

/// The entry is what was rendered, whatever has become of the project since.
bool CreatePanel::recordHistory(const QString &fileName, QString *error)
{
    QStringList problems;
    std::unique_ptr<ProjectFile> entry = ProjectFile::fromJson(m_rendered, m_settings, &problems);
    if (!entry) {
        *error = problems.join(QStringLiteral(", "));
        return false;
    }
    entry->setFileName(fileName);
    m_history.add(std::move(entry));
    return m_history.save(error);
}

} // namespace velmora
