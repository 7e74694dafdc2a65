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

class MainMenu;

/// The row of buttons below the title bar, and the link to the folder of the last video. GUI
/// thread.
class ToolRow : public QFrame
{
    Q_OBJECT
public:
    /// The buttons trigger the actions of @p menu and follow their state; it must outlive the row.
    explicit ToolRow(const MainMenu &menu, QWidget *parent = nullptr);
    ~ToolRow() override;

    /// The first button reads "Back" on the history page, and adds photos elsewhere.
    void setHistoryShown(bool shown);
    /// Shows the link while there is a last video.
    void setLastVideoKnown(bool known);

signals:
    void helpClicked();
    void lastProjectClicked();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void updateButtons();

    std::unique_ptr<Ui::ToolRow> m_ui;
    const MainMenu &m_menu;
    bool m_historyShown = false;
};

} // namespace velmora
