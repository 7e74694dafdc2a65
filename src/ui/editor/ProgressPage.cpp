// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/ProgressPage.h"

#include "chrome/Theme.h"
#include "generator/worker/Composer.h"
#include "ui/model/ValueLists.h"
#include "ui_CreatePanel.h"

namespace velmora
{

namespace
{

constexpr int kRoundButton = 52;  // px of a button with a picture only
constexpr int kFinalPercent = 99; // of the progress bar

} // namespace

ProgressPage::ProgressPage(Ui::CreatePanel &form, const Composer &composer)
    : m_form(form), m_composer(composer)
{
    m_form.lblPercent->setProperty("heading", true);
    m_form.lblSpeed->setProperty("heading", true);
    m_form.lblElapsedTime->setProperty("secondary", true);
    m_form.lblRemTime->setProperty("secondary", true);
    m_form.progressBar->setTextVisible(false);
    m_form.btnCancel->setIcon(Theme::icon(QStringLiteral("close")));
    for (QPushButton *button : {m_form.btnPauseResume, m_form.btnCancel}) {
        button->setIconSize({20, 20});
        button->setFixedWidth(kRoundButton);
    }
    retranslate();
}

void ProgressPage::retranslate()
{
    m_form.btnCancel->setAccessibleName(tr("Cancel"));
    m_form.btnCancel->setToolTip(tr("Cancel"));
    showPaused();
}

void ProgressPage::begin(qint64 videoLength)
{
    m_videoLength = videoLength;
    m_form.tcCreate->setCurrentWidget(m_form.page_2);
    setCanBeStopped(true);
    m_form.btnPauseResume->setFocus();
    setPercent(0);
}

void ProgressPage::setPercent(int percent)
{
    m_form.progressBar->setValue(percent);
    m_form.lblPercent->setText(tr("%1 %").arg(percent));
}

bool ProgressPage::isFinal() const
{
    return m_form.progressBar->value() >= kFinalPercent;
}

void ProgressPage::showTimes()
{
    m_form.lblElapsedTime->setText(
        tr("Time Elapsed: %1").arg(ValueLists::durationText(m_composer.elapsed())));
    const qint64 left = m_composer.remaining();
    m_form.lblRemTime->setText(
        tr("Time Remaining: %1").arg(left < 0 ? tr("unknown") : ValueLists::durationText(left)));
}

void ProgressPage::showState()
{
    m_form.lblSpeed->setText(state());
}

/// What goes on, and how fast compared to watching the video.
QString ProgressPage::state() const
{
    const qint64 time = m_composer.runningTime();
    const int percent = m_form.progressBar->value();
    if (m_composer.isPaused())
        return tr("Paused");
    if (isFinal())
        return tr("Finishing the video");
    if (percent == 0 || time <= 0)
        return tr("Preparing");
    const double speed =
        static_cast<double>(m_videoLength) * percent / 100 / static_cast<double>(time);
    return tr("Making the video (%1x)").arg(speed, 0, 'f', 1);
}

void ProgressPage::showPaused()
{
    const bool paused = m_composer.isPaused();
    const QString text = paused ? tr("Resume") : tr("Pause");
    m_form.btnPauseResume->setIcon(
        Theme::icon(paused ? QStringLiteral("play") : QStringLiteral("pause")));
    m_form.btnPauseResume->setAccessibleName(text);
    m_form.btnPauseResume->setToolTip(text);
}

void ProgressPage::setCanBeStopped(bool can)
{
    m_form.btnPauseResume->setEnabled(can);
    m_form.btnCancel->setEnabled(can);
}

void ProgressPage::end()
{
    setCanBeStopped(false);
    setPercent(100);
    m_form.lblRemTime->setText(tr("Time Remaining: %1").arg(ValueLists::durationText(0)));
}

} // namespace velmora
