// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QFrame;
class QVBoxLayout;

namespace velmora
{

class TitleBar;

/// The base of the program's dialogs: frameless like the main window, with a title bar that has a
/// close button (which rejects), and a shadow where the desktop blends windows. Put a designed form
/// or a layout into content(). GUI thread.
class CorDialog : public QDialog
{
    Q_OBJECT
public:
    explicit CorDialog(QWidget *parent = nullptr);

    /// The area below the title bar, without a layout at first; owned by the dialog.
    QWidget *content() const { return m_content; }
    TitleBar *titleBar() const { return m_titleBar; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void updateFrame();

    bool m_composited;
    QVBoxLayout *m_outer;
    QFrame *m_frame;
    TitleBar *m_titleBar;
    QWidget *m_content;
};

} // namespace velmora
