// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/CreatePanel.h"

#include "app/AppSettings.h"
#include "chrome/MessageDialog.h"
#include "chrome/Theme.h"
#include "project/documents/ProjectFile.h"
#include "services/MetricSender.h"
#include "ui/UiLog.h"
#include "ui/editor/ProgressPage.h"
#include "ui/editor/SlideActions.h"
#include "ui/editor/VideoName.h"
#include "ui/model/ProjectEditor.h"
#include "ui/model/ValueLists.h"
#include "ui_CreatePanel.h"

#include <QDir>
#include <QEvent>

#include <algorithm>
#include <utility>

namespace velmora
{

namespace
{

constexpr int kProgressInterval = 500; // ms

} // namespace

CreatePanel::CreatePanel(ProjectEditor &editor, const AppSettings &settings, HistoryStore &history,
                         QWidget *parent)
    : QFrame(parent), m_editor(editor), m_settings(settings), m_history(history),
      m_ui(std::make_unique<Ui::CreatePanel>()), m_disk(new TaskThread)
{
    m_ui->setupUi(this);
    m_page = std::make_unique<ProgressPage>(*m_ui, m_composer);
    m_name = new VideoName(*m_ui->txtProjName, editor, this);
    setUpPages();
    connectComposer();
    for (QTimer *timer : {&m_progressTimer, &m_finalTimer})
        timer->setInterval(kProgressInterval);
    connect(&m_progressTimer, &QTimer::timeout, this, &CreatePanel::onProgressTimer);
    connect(&m_finalTimer, &QTimer::timeout, this, &CreatePanel::onFinalTimer);
    connect(&m_editor, &ProjectEditor::projectChanged, this, &CreatePanel::dropForeignFormats);
    for (const auto signal : {&ProjectEditor::projectChanged, &ProjectEditor::settingsChanged,
                              &ProjectEditor::totalsChanged})
        connect(&m_editor, signal, this, &CreatePanel::refresh);
    connect(&m_editor, &ProjectEditor::projectChanged, this, &CreatePanel::endPreparations);
    refresh();
}

CreatePanel::~CreatePanel()
{
    m_disk->retire();
}

void CreatePanel::setUpPages()
{
    setProperty("card", true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    for (QPushButton *button : {m_ui->btnCreate, m_ui->btnFullPreview})
        button->setIconSize({20, 20});
    m_ui->btnCreate->setProperty("primary", true);
    m_ui->btnCreate->setIcon(Theme::icon(QStringLiteral("film-white")));
    m_ui->btnFullPreview->setIcon(Theme::icon(QStringLiteral("preview")));
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
    m_ui->btnFullPreview->setShortcut(preview);
    m_ui->btnFullPreview->setToolTip(
        SlideActions::toolTip(tr("Play the whole slideshow"), preview));
    updateCreateButton();
}

void CreatePanel::setObstacle(const QString &reason)
{
    m_obstacle = reason;
    // What is on its way may arrive before the preparations end, and would not be in the video.
    if (m_preparing && !reason.isEmpty())
        endPreparations();
    updateCreateButton();
}

void CreatePanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        retranslate();
        m_page->retranslate();
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

/// Takes away what refresh() added for the document before.
void CreatePanel::dropForeignFormats()
{
    while (m_ui->cbxFormat->count() > ValueLists::formats().size())
        m_ui->cbxFormat->removeItem(m_ui->cbxFormat->count() - 1);
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
    m_ui->btnCreate->setEnabled(can && m_obstacle.isEmpty() && !m_preparing &&
                                (m_generating || !m_composer.isRunning()));
    m_ui->btnCreate->setToolTip(
        m_obstacle.isEmpty()
            ? SlideActions::toolTip(tr("Make the video"), m_ui->btnCreate->shortcut())
            : m_obstacle);
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

void CreatePanel::prepare(const TaskThread::Work &work)
{
    m_preparing = true;
    m_returnsFocus |= m_ui->btnCreate->hasFocus();
    updateCreateButton();
    m_disk->add([this, work, number = m_preparations]() -> TaskThread::Report {
        return [this, number, report = work()] {
            if (number == m_preparations)
                report();
            else
                m_rendered.removeRequest();
        };
    });
}

void CreatePanel::endPreparations()
{
    ++m_preparations;
    m_preparing = false;
    updateCreateButton();
    if (std::exchange(m_returnsFocus, false))
        m_ui->btnCreate->setFocus();
}

void CreatePanel::on_btnCreate_clicked()
{
    if (m_generating || m_preparing || !m_obstacle.isEmpty() || !canBeGenerated())
        return;
    const QString name = m_ui->txtProjName->text();
    if (!OutputCheck::isNameUsable(this, name)) {
        m_ui->txtProjName->setFocus();
        m_ui->txtProjName->selectAll();
        return;
    }
    const QString folder = m_settings.folder;
    const QString output =
        QDir(folder).filePath(name + QLatin1Char('.') + m_editor.project()->format());
    prepare([this, name, folder, output]() -> TaskThread::Report {
        const OutputCheck::Finding finding = OutputCheck::look(folder, output);
        return [this, name, output, finding] { onOutputLookedAt(name, output, finding); };
    });
}

void CreatePanel::onOutputLookedAt(const QString &name, const QString &output,
                                   const OutputCheck::Finding &finding)
{
    const int number = m_preparations;
    const bool mayWrite = OutputCheck::mayWrite(this, output, finding);
    if (number != m_preparations)
        return; // They have been ended while the user was asked.
    if (!mayWrite) {
        endPreparations();
        return;
    }
    // What a cancelled render left goes now, rather than at its last tick. A request of earlier
    // preparations that was still being written has gone with their report.
    m_finalTimer.stop();
    m_rendered.removeRequest();
    m_name->giveTitle();
    m_editor.project()->setFileName(output);
    const RenderedProject::Writer write = m_rendered.begin(*m_editor.project(), m_settings, name);
    prepare([this, write]() -> TaskThread::Report {
        QString error;
        if (write(&error))
            error.clear();
        return [this, error] { onRequestWritten(error); };
    });
}

void CreatePanel::onRequestWritten(const QString &error)
{
    endPreparations();
    if (error.isEmpty()) {
        start();
        return;
    }
    m_rendered.removeRequest();
    MessageDialog::inform(this, tr("The video cannot be made"), error);
}

void CreatePanel::start()
{
    m_generating = true;
    m_page->begin(m_rendered.videoLength());
    emit progressStarted();
    m_progressTimer.start();
    m_composer.run(m_rendered.request());
    m_page->showPaused();
    onProgressTimer();
}

void CreatePanel::onProgress(int percent)
{
    m_page->setPercent(percent);
    if (m_page->isFinal() && !m_finalTimer.isActive())
        m_finalTimer.start();
    emit progress(percent);
}

void CreatePanel::onProgressTimer()
{
    if (!m_composer.isRunning())
        return;
    m_page->showTimes();
    m_page->showState();
}

void CreatePanel::onFinalTimer()
{
    if (m_generating) {
        m_page->showState();
    } else if (!m_composer.isRunning()) {
        m_finalTimer.stop();
        m_rendered.removeRequest();
        updateCreateButton();
    }
}

void CreatePanel::on_btnPauseResume_clicked()
{
    if (m_composer.isPaused())
        m_composer.resume();
    else
        m_composer.pause();
    m_page->showPaused();
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

void CreatePanel::onFailed()
{
    m_rendered.removeRequest();
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
    m_rendered.removeRequest();
    m_page->end();
    m_rendered.keepIn(m_history, m_settings, fileName, this,
                      [this, fileName](const QString &error) { onKept(fileName, error); });
}

void CreatePanel::onKept(const QString &fileName, const QString &error)
{
    m_name->propose();
    showSetup();
    if (error.isEmpty() && m_editor.project() && m_rendered.isSameAs(*m_editor.project()))
        emit recorded();
    emit finished(fileName);
    if (!error.isEmpty())
        MessageDialog::inform(
            window(), tr("History"),
            tr("The video is ready, but it could not be entered in the history: %1").arg(error));
}

} // namespace velmora
