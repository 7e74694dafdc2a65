// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/editor/SlideDelegate.h"
#include "ui/model/ProjectEditor.h"

#include <QHash>
#include <QTimer>
#include <QWidget>

#include <memory>

class QAction;
class QItemSelection;

namespace Ui
{
class SlidesPage;
}

namespace velmora
{

class BusyNote;
class HintLabel;
class SlideActions;
class SlideSelection;
class SlideSorter;
class SlideTableModel;
class TaskThread;

/// The page of the slide table with its tools, the row "Change all:" and the totals. Its actions
/// apply to all selected slides. GUI thread.
class SlidesPage : public QWidget
{
    Q_OBJECT
public:
    SlidesPage(ProjectEditor &editor, const AppSettings &settings, QWidget *parent = nullptr);
    ~SlidesPage() override;

    /// The line that tells of photos being added.
    BusyNote &importNote() { return *m_importNote; }
    /// Whether the slides are about to be sorted, as soon as the dates of the photos are read.
    bool isSorting() const;
    /// Gives the keys to the table.
    void focusTable();
    /// Takes over changed settings.
    void updateFromSettings();
    /// Gives the buttons for undo and redo their actions.
    void setUndoActions(QAction *undo, QAction *redo);

signals:
    void currentSlideChanged(velmora::ProjectItem *slide); ///< Null: none.
    void filesDropped(const QStringList &files, int newRow);
    void captionRequested(velmora::ProjectItem *slide);
    void captionOfAllRequested();
    void previewRequested();
    void rotateChanged();
    void sortingChanged();
    void filesChanged(); ///< Photos have gone, come back or been written anew.

public slots:
    void onTimeChanged(int row, int seconds);
    void onTransitionChanged(int row, int transition);
    void onDefTimeChanged(const QVariant &value);
    void onDefTransitionChanged(const QVariant &value);
    void onSelectionChanged(const QItemSelection &selected, const QItemSelection &unselected);
    /// Moves slides in front of the row @p before.
    void onSlidesMoved(const QVector<int> &rows, int before);
    void onFileDropEnd();
    void onDeleteClicked(velmora::ProjectItem *item);
    void on_btnClear_clicked();
    void onBtnTotalClicked();
    void on_btnRestore_clicked();
    void on_btnUp_clicked();
    void on_btnDown_clicked();
    void onBtnShuffleClicked();
    void on_btnSort_clicked();
    void updateSortButtonStyle();
    void onBtnRotate();

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setUpTable();
    void setUpActions();
    void setUpButtons();
    void retranslate();
    void connectEditor();
    void onCellButton(SlideButton button, int row);
    void deleteSelected();
    void rotateSelected(int degrees);
    void relocate(ProjectItem *slide);
    QStringList missingBeside(const ProjectItem *slide, const QString &folder) const;
    void relocateOthers(const QHash<QString, QString> &found, int search);
    void showContextMenu(const QPoint &position);
    void updateLater() { m_update.start(); }
    void updateControls();
    void updateActions();
    void updateDefaults();
    void updateTotals();
    void placeHint();
    ProjectEditor::Slides scopeOf(int row) const;
    ProjectEditor::Slides selectedPhotos() const;
    int shownCount() const;

    ProjectEditor &m_editor;
    const AppSettings &m_settings;
    std::unique_ptr<Ui::SlidesPage> m_ui;
    SlideTableModel *m_model;
    BusyNote *m_importNote;
    BusyNote *m_sortNote;
    SlideActions *m_actions;
    SlideSorter *m_sorter;
    SlideSelection *m_selection = nullptr;
    QWidget *m_hint; ///< Invites while there are no photos.
    HintLabel *m_hintText;
    TaskThread *m_disk;            ///< Retired at the end, as a disk may not answer for long.
    int m_searches = 0;            ///< For photos beside one that was relocated.
    QTimer m_update;               ///< Many changes at once update the controls once.
    ProjectItem *m_told = nullptr; ///< The current slide that listeners know.
};

} // namespace velmora
