// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QLabel;

namespace velmora
{

class HintLabel;

/// The start page's large target for files and folders: a dashed frame with a picture, a prompt and
/// a hint, lit up while something that it takes is dragged over it. A click, Enter or Space asks
/// for the file dialog. GUI thread.
class DropArea : public QFrame
{
    Q_OBJECT
public:
    explicit DropArea(QWidget *parent = nullptr);

    /// The invitation in large letters, also the accessible name.
    void setPrompt(const QString &text);
    void setHint(const QString &text);
    /// Puts a widget, such as a row of buttons, below the hint; takes ownership.
    void addWidget(QWidget *widget);

signals:
    /// One drop: dropBegin(), fileDropped() for each file or folder in order, dropEnd().
    void dropBegin();
    void fileDropped(const QString &fileName);
    void dropEnd();
    void activated();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void setLit(bool lit);

    QLabel *m_picture;
    HintLabel *m_prompt;
    HintLabel *m_hint;
    bool m_lit = false;
    bool m_hovered = false;
};

} // namespace velmora
