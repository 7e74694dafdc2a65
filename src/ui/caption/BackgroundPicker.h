// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QButtonGroup;

namespace velmora
{

/// The thirty backgrounds of the title slide, each shown as it is. GUI thread.
class BackgroundPicker : public QFrame
{
    Q_OBJECT
public:
    explicit BackgroundPicker(QWidget *parent = nullptr);

    int background() const; ///< -1: none of those offered.
    /// Marks a background without a signal.
    void setBackground(int index);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void backgroundChosen(int index); ///< By the user.

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void mark(int index, bool marked);
    void retranslate();

    QButtonGroup *m_buttons;
};

} // namespace velmora
