// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/CreatePanel.h"

#include "app/AppSettings.h"
#include "app/Paths.h"
#include "project/documents/HistoryStore.h"
#include "project/documents/ProjectName.h"
#include "services/MetricSender.h"
#include "ui/UiLog.h"
#include "ui/model/ProjectEditor.h"
#include "ui/model/ValueLists.h"
#include "ui_CreatePanel.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int kProgressInterval = 500; // ms

} // namespace

CreatePanel::CreatePanel(ProjectEditor &editor, const AppSettings &settings, HistoryStore &history,
                         QWidget *parent)
    : QWidget(parent), m_editor(editor), m_settings(settings), m_history(history),
      m_ui(std::make_unique<Ui::CreatePanel>())
{
    m_ui->setupUi(this);
    m_ui->btnCreate->setProperty("primary", true);
    for (const auto &format : ValueLists::formats())
        m_ui->cbxFormat->addItem(format.first, format.second);
    m_progressTimer.setInterval(kProgressInterval);
    connect(&m_progressTimer, &QTimer::timeout, this, &CreatePanel::onProgressTimer);
    connect(m_ui->cbxFormat, QOverload<int>::of(&QComboBox::activated), this,
            &CreatePanel::onChangeVideoFormat);
    connect(m_ui->btnFullPreview, &QPushButton::clicked, this, &CreatePanel::fullPreviewClicked);
    connect(&m_composer, &Composer::progress, this, [this](int percent) {
        m_ui->progressBar->setValue(percent);
        emit progress(percent);
    });
    connect(&m_composer, &Composer::finished, this, &CreatePanel::onFinished);
    connect(&m_composer, &Composer::failed, this, &CreatePanel::onFailed);
    connect(&m_composer, &Composer::canceled, this, &CreatePanel::onCancelled);
    for (const auto signal : {&ProjectEditor::projectChanged, &ProjectEditor::settingsChanged,
                              &ProjectEditor::totalsChanged})
        connect(&m_editor, signal, this, &CreatePanel::refresh);
    setDefaultName();
    refresh();
}

CreatePanel::~CreatePanel() = default;

void CreatePanel::setDefaultName()
{
    const QString stamp =
        QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd_HHmmss"));
    m_ui->txtProjName->setText(QStringLiteral("sshow_") + stamp);
}

void CreatePanel::refresh()
{
    const ProjectFile *project = m_editor.project();
    m_ui->btnCreate->setEnabled(canBeGenerated());
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

void CreatePanel::onChangeVideoFormat(int index)
{
    m_editor.setFormat(m_ui->cbxFormat->itemData(index).toString());
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

bool CreatePanel::mayReplace(const QString &output)
{
    if (!QFileInfo::exists(output))
        return true;
    const auto answer =
        QMessageBox::question(this, tr("Replace the video"),
                              tr("The file %1 exists already. Do you want to replace it?")
                                  .arg(QDir::toNativeSeparators(output)),
                              QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    return answer == QMessageBox::Yes;
}

void CreatePanel::on_btnCreate_clicked()
{
    if (!canBeGenerated() || m_ui->tcCreate->currentWidget() == m_ui->page_2)
        return;
    const QString name = m_ui->txtProjName->text();
    if (!ProjectName::isAllowed(name)) {
        QMessageBox::warning(this, QString(), ProjectName::forbiddenMessage());
        return;
    }
    if (name.trimmed().isEmpty()) {
        m_ui->txtProjName->setFocus();
        return;
    }
    const QString output = outputPath();
    if (mayReplace(output))
        start(output);
}

void CreatePanel::start(const QString &output)
{
    ProjectFile &project = *m_editor.project();
    const QString name = m_ui->txtProjName->text();
    project.setName(name);
    project.setFileName(output);
    const QString request = QStringLiteral("%1/%2.json").arg(Paths::cacheFolder(), name);
    QString error;
    if (!Paths::ensureFolder(Paths::cacheFolder()) || !project.saveToFile(request, &error)) {
        QMessageBox::warning(this, QString(), tr("The video cannot be made: %1").arg(error));
        return;
    }
    m_ui->tcCreate->setCurrentWidget(m_ui->page_2);
    showPauseButton(false);
    m_ui->progressBar->setValue(0);
    emit progressStarted();
    m_progressTimer.start();
    m_composer.run(request);
    onProgressTimer();
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
}

void CreatePanel::showPauseButton(bool paused)
{
    m_ui->btnPauseResume->setIcon(QIcon(paused ? QStringLiteral(":/images/images/play.png")
                                               : QStringLiteral(":/images/images/pause.png")));
    m_ui->btnPauseResume->setAccessibleName(paused ? tr("Resume") : tr("Pause"));
}

void CreatePanel::on_btnPauseResume_clicked()
{
    if (m_composer.isPaused())
        m_composer.resume();
    else
        m_composer.pause();
    showPauseButton(m_composer.isPaused());
}

void CreatePanel::on_btnCancel_clicked()
{
    const auto seconds = static_cast<int>(m_composer.elapsed() / 1000);
    MetricSender::instance().record(QStringLiteral("cancel"), seconds);
    m_composer.cancel();
}

void CreatePanel::showSetup()
{
    m_progressTimer.stop();
    m_ui->tcCreate->setCurrentWidget(m_ui->pgSetup);
    emit progressFinished();
}

void CreatePanel::onCancelled()
{
    showSetup();
}

void CreatePanel::onFailed()
{
    showSetup();
    QMessageBox box(QMessageBox::Warning, QString(),
                    QCoreApplication::translate("Conversion", "Creation error"), QMessageBox::Close,
                    this);
    box.setInformativeText(m_composer.errorText());
    box.exec();
}

void CreatePanel::onFinished(const QString &fileName)
{
    qCDebug(lcUi) << "Finished generating" << fileName;
    m_ui->progressBar->setValue(100);
    m_ui->lblRemTime->setText(tr("Time Remaining: %1").arg(ValueLists::durationText(0)));
    recordHistory(fileName);
    setDefaultName();
    showSetup();
    emit finished(fileName);
}

void CreatePanel::recordHistory(const QString &fileName)
{
    QJsonObject document;
    m_editor.project()->toJson(document);
    std::unique_ptr<ProjectFile> copy = ProjectFile::fromJson(document, m_settings);
    if (!copy)
        return;
    copy->setFileName(fileName);
    m_history.add(std::move(copy));
    m_history.save();
}

} // namespace velmora
