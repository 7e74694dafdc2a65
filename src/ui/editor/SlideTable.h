// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/QTableViewEx.h"
#include "ui/editor/SlideDelegate.h"

class QHelpEvent;

namespace velmora
{

class ComboBoxItemDelegate;
class SlideTableModel;

/// The table of slides: its columns, the buttons painted into its cells, its keys. It only tells
/// what the user wants. GUI thread.
class SlideTable : public QTableViewEx
{
    Q_OBJECT
public:
    explicit SlideTable(QWidget *parent = nullptr);

    /// Instead of setModel().
    void setSlides(SlideTableModel *model);
    SlideTableModel *slides() const { return m_slides; }
    /// Takes the texts from the language that is set now.
    void retranslate();
    /// Opens the list of values of a cell in @p column of the current row.
    void openValues(int column);

signals:
    void timeChosen(int row, int seconds);
    void transitionChosen(int row, int transition);
    /// A painted button was clicked, or its key pressed; not for SlideButton::Value.
    void buttonClicked(velmora::SlideButton button, int row);
    void previewRequested(); ///< Of the current row: Space, or a double click.

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void addDelegate(int column, SlideDelegate *delegate);
    SlideDelegate *delegateOf(const QModelIndex &index) const;
    void setPointer(const QPoint &position, bool inside);
    void updateRow(const QModelIndex &index);
    void click(SlideButton button, const QModelIndex &index);
    bool showHelp(const QHelpEvent &event);
    void tellVisibleRows();

    SlideTableModel *m_slides = nullptr;
    ComboBoxItemDelegate *m_times;
    ComboBoxItemDelegate *m_transitions;
    SlidePointer m_pointer;
};

} // namespace velmora
