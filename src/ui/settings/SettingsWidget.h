// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariantAnimation>
#include <QWidget>

#include <memory>

class QSettings;

namespace Ui
{
class SettingsPanel;
}

namespace velmora
{

struct AppSettings;

/// The settings panel, which slides in from the right over its parent while the rest is dimmed. A
/// press beside it, Escape and "CANCEL" hide it without saving; Ctrl+Enter saves. GUI thread.
class SettingsWidget : public QWidget
{
    Q_OBJECT
public:
    /// Covers @p parent and follows its size; hidden at first. Both records must outlive it.
    SettingsWidget(AppSettings &settings, QSettings &store, QWidget *parent);
    ~SettingsWidget() override;

    bool isOpen() const { return m_open; }

public slots:
    /// Fills the controls from the settings and slides in.
    void open();
    /// Slides out without saving; hidden() follows.
    void onHide();
    /// Writes the controls into the settings and their store, announces it, and slides out.
    void onSave();
    void on_btnCancel_clicked();
    void on_btnOpenFolder_clicked();
    /// @p index counts the offered resolutions.
    void onChangeResolution(int index);

signals:
    void saved();  ///< The settings have changed; what could be stored, is.
    void hidden(); ///< Once per open(): the panel has slid out.

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void setUpControls();
    void fillLists();
    void showSettings();
    void showVersion();
    void fillLanguages();
    bool store(); ///< False if the settings hold for this run only.
    void slideTo(bool open);
    void place();
    void onSlideFinished();

    AppSettings &m_settings;
    QSettings &m_store;
    std::unique_ptr<Ui::SettingsPanel> m_ui;
    QWidget *m_panel;
    QVariantAnimation m_slide; ///< 0: out, 1: in.
    QString m_shownLanguage;   ///< As open() chose it; the locale may be one that is not listed.
    bool m_open = false;
};

} // namespace velmora
