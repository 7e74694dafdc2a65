// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

#include <memory>

namespace Ui
{
class ToolRow;
}

namespace velmora
{

/// The row of buttons below the title bar, and the link to the folder of the last video. GUI
/// thread.
class ToolRow : public QFrame
{
    Q_OBJECT
public:
    explicit ToolRow(QWidget *parent = nullptr);
    ~ToolRow() override;

    /// The first button reads "Back" on the history page, and adds photos elsewhere.
    void setHistoryShown(bool shown);
    /// Switches the buttons that change the project or leave the editor page.
    void setProjectButtonsEnabled(bool enabled);
    /// Switches only those that add photos, for as long as a caption is edited.
    void setAddingEnabled(bool enabled);
    /// Shows the link while there is a last video.
    void setLastVideoKnown(bool known);

signals:
    void addPhotoClicked();
    void backClicked();
    void addFolderClicked();
    void historyClicked();
    void settingsClicked();
    void helpClicked();
    void lastProjectClicked();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void updateButtons();

    std::unique_ptr<Ui::ToolRow> m_ui;
    bool m_historyShown = false;
    bool m_projectEnabled = true;
    bool m_addingEnabled = true;
};

} // namespace velmora
