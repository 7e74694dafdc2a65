// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/VideoSettingsFrame.h"

#include "app/AppSettings.h"
#include "chrome/HelpBubble.h"
#include "project/documents/ProjectFile.h"
#include "ui/model/ProjectEditor.h"
#include "ui/model/ValueLists.h"
#include "ui_VideoSettings.h"

#include <QEvent>

namespace velmora
{

VideoSettingsFrame::VideoSettingsFrame(ProjectEditor &editor, const AppSettings &settings,
                                       QWidget *parent)
    : QFrame(parent), m_editor(editor), m_settings(settings),
      m_ui(std::make_unique<Ui::VideoSettings>())
{
    m_ui->setupUi(this);
    setProperty("card", true);
    m_ui->lblVideo->setProperty("heading", true);
    m_resolutionHelp = new HelpBubble(m_ui->btnOutResolution, m_ui->btnHelpResolution);
    m_transitionHelp = new HelpBubble(m_ui->btnTransitionDuration, m_ui->btnHelpTransition);
    m_scaleHelp = new HelpBubble(m_ui->chkScaleToFit, m_ui->btnHelpScale);
    m_ratioHelp = new HelpBubble(m_ui->chkOrigRatio, m_ui->btnHelpRatio);
    retranslate();
    connect(m_ui->btnOutResolution, &QPopupButton::valueSelected, this,
            &VideoSettingsFrame::onResolutionChanged);
    connect(m_ui->btnTransitionDuration, &QPopupButton::valueSelected, this,
            &VideoSettingsFrame::onTransitionDurationChanged);
    connect(&m_editor, &ProjectEditor::projectChanged, this, &VideoSettingsFrame::refresh);
    connect(&m_editor, &ProjectEditor::settingsChanged, this, &VideoSettingsFrame::refresh);
}

VideoSettingsFrame::~VideoSettingsFrame() = default;

void VideoSettingsFrame::retranslate()
{
    m_ui->btnOutResolution->setValues(ValueLists::resolutions());
    m_ui->btnTransitionDuration->setValues(ValueLists::transitionLengths());
    m_resolutionHelp->setTexts(m_ui->lblResolution->text());
    m_transitionHelp->setTexts(m_ui->lblTransitionDuration->text());
    m_scaleHelp->setTexts(m_ui->chkScaleToFit->text());
    m_ratioHelp->setTexts(m_ui->chkOrigRatio->text());
}

void VideoSettingsFrame::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        retranslate();
        refresh();
    }
    QFrame::changeEvent(event);
}

void VideoSettingsFrame::setHeadingVisible(bool visible)
{
    m_ui->lblVideo->setVisible(visible);
}

void VideoSettingsFrame::refresh()
{
    const ProjectFile *project = m_editor.project();
    if (!project)
        return;
    m_ui->btnOutResolution->setValue(project->resolution(),
                                     resolutionToText(project->resolution()));
    m_ui->btnTransitionDuration->setValue(m_settings.transitionTime,
                                          ValueLists::secondsText(m_settings.transitionTime));
    m_ui->chkOrigRatio->setChecked(project->origRatio());
    m_ui->chkScaleToFit->setChecked(project->scaleToFit());
    // Stretched photos fill the frame anyway.
    m_ui->chkScaleToFit->setEnabled(project->origRatio());
}

void VideoSettingsFrame::onResolutionChanged(const QVariant &value)
{
    m_editor.setResolution(value.toSize());
}

void VideoSettingsFrame::onTransitionDurationChanged(const QVariant &value)
{
    m_editor.setTransitionSeconds(value.toInt());
}

void VideoSettingsFrame::on_chkOrigRatio_clicked(bool on)
{
    m_editor.setOrigRatio(on);
}

void VideoSettingsFrame::on_chkScaleToFit_clicked(bool on)
{
    m_editor.setScaleToFit(on);
}

} // namespace velmora
