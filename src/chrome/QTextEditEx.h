// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextEdit>

namespace velmora
{

/// A field for several lines of plain text: what is pasted loses its format, Tab goes on to the
/// next widget, and Ctrl+Enter accepts. GUI thread.
class QTextEditEx : public QTextEdit
{
    Q_OBJECT
public:
    explicit QTextEditEx(QWidget *parent = nullptr);

signals:
    /// Ctrl+Enter was pressed.
    void accepted();

protected:
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace velmora
