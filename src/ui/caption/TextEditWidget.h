// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/slides/CaptionStyle.h"
#include "ui/model/ProjectEditor.h"
#include "ui/model/SlideState.h"

#include <QPair>
#include <QWidget>

#include <memory>

namespace Ui
{
class TextEditWidget;
}

namespace velmora
{

/// Edits the caption of one slide, or the look of all captions, with a live picture of the slide
/// beside the controls. Nothing is changed before save(), which is one step of undo. GUI thread.
class TextEditWidget : public QWidget
{
    Q_OBJECT
public:
    explicit TextEditWidget(ProjectEditor &editor, QWidget *parent = nullptr);
    ~TextEditWidget() override;

    /// Begins to edit a slide of the editor's project; null: none, which leaves the heading as it
    /// is. Changes that were not saved are dropped.
    void setItem(ProjectItem *item);
    /// Begins to edit the look of the captions of all photo slides, which keep their texts. The
    /// first of them shows it; a project without photos offers its title slide.
    void setAllSlides();
    ProjectItem *item() const { return m_item; }
    /// Whether there are changes that save() would write.
    bool isEdited() const;
    using Edits = QVector<QPair<ProjectItem *, SlideState>>;
    /// What save() would make of slides; empty without changes.
    Edits edits() const;

signals:
    void editedChanged(bool edited); ///< isEdited() has changed.
    void titleChanged(const QString &heading);
    void finished(); ///< After saving, cancelling, or when the slide left the project.

public slots:
    void save();
    void cancel();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    enum class Play { No, Yes };

    void setUpControls();
    void setUpTabOrder();
    void setUpShortcuts();
    void fillEffects();
    void begin(ProjectItem *item, bool allSlides);
    void fill();
    void end();
    void announceEdited();
    void showHeading();
    void updatePicture(Play play = Play::No);
    void leave(); ///< Cancels, after a question when there are changes.
    void onBackgroundChosen(int index);
    void onSlidesChanged();
    CaptionStyle caption() const;
    ProjectEditor::Slides styledSlides() const;
    QString heading() const;
    bool isTitle() const;

    ProjectEditor &m_editor;
    std::unique_ptr<Ui::TextEditWidget> m_ui;
    ProjectItem *m_item = nullptr;
    ProjectItem *m_sharedStyle = nullptr; ///< The slide that stands for all; null: one is edited.
    CaptionStyle m_original;
    int m_originalBackground = 0;
    int m_shownBackground = 0;
    QString m_family;
    bool m_edited = false; ///< As announced last.
};

} // namespace velmora
