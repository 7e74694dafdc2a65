// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QTimer>
#include <QVariant>
#include <QVector>
#include <QWidget>

#include <memory>

class QAction;

namespace Ui
{
class AudioListWidget;
}

namespace velmora
{

class AudioFilesController;
class HelpBubble;
class ProjectEditor;

/// The frame of the slideshow's music: the playlist with its tools and total, and the values loop,
/// offset and fade. GUI thread.
class AudioListWidget : public QWidget
{
    Q_OBJECT
public:
    explicit AudioListWidget(ProjectEditor &editor, QWidget *parent = nullptr);
    ~AudioListWidget() override;

    AudioFilesController &controller() const { return *m_controller; }

signals:
    void listening(); ///< To a track, from now on.

public slots:
    /// Asks for sound files and appends them.
    void onBtnAddAudioClicked();
    /// Adds files and folders after the row @p newRow; negative: at the end.
    void onAudioFilesDropped(const QStringList &files, int newRow);
    /// Shows the number of tracks and their time in ms.
    void setAudioParams(int count, qint64 duration);
    void onOffsetChanged(const QVariant &value);
    void onFadeChanged(const QVariant &value);
    void onAudioLoopClicked(bool on);
    /// Shows loop, offset and fade of the project; its playlist is the controller's.
    void initProjectAudio();
    void showErrorThatNotAllAudioAreAdded(const QStringList &files);
    /// Ends listening, if a track is being listened to.
    void stop();

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void setUpTable();
    void setUpActions();
    void setUpValues();
    QAction *addAction(const QKeySequence &keys, void (AudioListWidget::*slot)());
    void retranslate();
    void updateActions();
    void updateAdding();
    void deleteSelected();
    void moveUp();
    void moveDown();
    void listen();
    QVector<int> selectedRows() const;

    ProjectEditor &m_editor;
    std::unique_ptr<Ui::AudioListWidget> m_ui;
    AudioFilesController *m_controller;
    QTimer m_addingDelay;
    HelpBubble *m_loopHelp = nullptr;
    HelpBubble *m_offsetHelp = nullptr;
    HelpBubble *m_fadeHelp = nullptr;
    QString m_folder; ///< Where the file dialog opens.
    QAction *m_listen = nullptr;
    QAction *m_stop = nullptr;
    QAction *m_up = nullptr;
    QAction *m_down = nullptr;
    QAction *m_delete = nullptr;
};

} // namespace velmora
