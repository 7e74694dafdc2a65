// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>
#include <QVariant>

#include <memory>

namespace Ui
{
class VideoSettings;
}

namespace velmora
{

struct AppSettings;
class HelpBubble;
class ProjectEditor;

/// The settings of the whole slideshow's picture. GUI thread.
class VideoSettingsFrame : public QFrame
{
    Q_OBJECT
public:
    VideoSettingsFrame(ProjectEditor &editor, const AppSettings &settings,
                       QWidget *parent = nullptr);
    ~VideoSettingsFrame() override;

    void setHeadingVisible(bool visible);
    /// Shows the values of the project anew.
    void refresh();

public slots:
    void onResolutionChanged(const QVariant &value);
    void onTransitionDurationChanged(const QVariant &value);
    void on_chkOrigRatio_clicked(bool on);
    void on_chkScaleToFit_clicked(bool on);

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    ProjectEditor &m_editor;
    const AppSettings &m_settings;
    std::unique_ptr<Ui::VideoSettings> m_ui;
    HelpBubble *m_resolutionHelp;
    HelpBubble *m_transitionHelp;
    HelpBubble *m_scaleHelp;
    HelpBubble *m_ratioHelp;
};

} // namespace velmora
