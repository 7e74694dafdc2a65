// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sharing/history/HistoryModel.h"

#include <QPixmap>
#include <QWidget>

class QHBoxLayout;
class QLabel;
class QToolButton;

namespace velmora
{

/// One row of the history: a picture, the facts about the video and what can be done with it. GUI
/// thread.
class HistoryRowWidget : public QWidget
{
    Q_OBJECT
public:
    explicit HistoryRowWidget(QWidget *parent = nullptr);

    const HistoryEntry &entry() const { return m_entry; }
    void setEntry(const HistoryEntry &entry);
    /// The first photo of the slideshow; null shows a placeholder.
    void setPicture(const QImage &picture);
    /// The row's buttons look different in the selected row, and only there Tab reaches them.
    void setSelected(bool selected);

public slots:
    void onBtnOpenClicked();
    void onBtnPreviewClicked();
    void onBtnDeleteClicked();
    void onBtnBurnClicked();

signals:
    void openProject(const QString &fileName);
    void previewProject(const QString &fileName);
    void deleteProject(const QString &fileName);
    /// @p starterText is the text of the project's title slide.
    void burnProject(const QString &fileName, const QString &starterText);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QLabel *createLabel(QHBoxLayout *layout, const char *name);
    QToolButton *createButton(QHBoxLayout *layout, const char *name);
    void createButtons(QHBoxLayout *layout);
    void retranslate();
    void showFacts();
    void elideName();

    HistoryEntry m_entry;
    QLabel *m_picture;
    QLabel *m_date;
    QLabel *m_fileName;
    QLabel *m_resolution;
    QLabel *m_duration;
    QLabel *m_size;
    QToolButton *m_open;
    QToolButton *m_preview;
    QToolButton *m_burn;
    QToolButton *m_delete;
};

/// The text of a project's title slide on one line; empty without one.
QString starterText(const ProjectFile &project);

} // namespace velmora
