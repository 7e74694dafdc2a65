// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/model/ProjectEditor.h"

#include <QWidget>

#include <memory>

namespace Ui
{
class SlidesPage;
}

namespace velmora
{

class SlideTableModel;

/// The page of the slide table with its tools, the row "Change all:" and the totals. Its actions
/// apply to all selected slides. GUI thread.
class SlidesPage : public QWidget
{
    Q_OBJECT
public:
    SlidesPage(ProjectEditor &editor, const AppSettings &settings, QWidget *parent = nullptr);
    ~SlidesPage() override;

    /// In the order of their rows.
    ProjectEditor::Slides selectedSlides() const;
    void selectSlides(const ProjectEditor::Slides &slides);

signals:
    void selectionChanged();
    void rotateChanged();

public slots:
    void onDefTimeChanged(const QVariant &value);
    void onDefTransitionChanged(const QVariant &value);
    void onDeleteClicked(velmora::ProjectItem *item);
    void on_btnClear_clicked();
    void on_btnRestore_clicked();
    void on_btnUp_clicked();
    void on_btnDown_clicked();
    void onBtnShuffleClicked();
    void on_btnSort_clicked();
    void onBtnRotate();

private:
    void setUpTable();
    void setUpShortcuts();
    void addShortcut(const QKeySequence &keys, void (SlidesPage::*slot)());
    void deleteSelected();
    void rotateBack();
    void updateControls();
    void updateTotals();
    void updateSortButtonStyle();
    void replaceOrder(ProjectEditor::Slides photos, const QString &text);
    ProjectEditor::Slides photos() const;

    ProjectEditor &m_editor;
    const AppSettings &m_settings;
    std::unique_ptr<Ui::SlidesPage> m_ui;
    SlideTableModel *m_model;
    bool m_descending = false;    ///< What the next press of the sort button does.
    ProjectEditor::Slides m_kept; ///< The selection while the rows change.
};

} // namespace velmora
