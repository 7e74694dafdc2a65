// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QButtonGroup;

namespace velmora
{

/// A picture of the frame with nine places for the text, row by row from the top left. GUI thread.
class PositionPicker : public QFrame
{
    Q_OBJECT
public:
    explicit PositionPicker(QWidget *parent = nullptr);

    int position() const; ///< 0 to 8.
    /// Marks a place without a signal; what is no place marks the centre.
    void setPosition(int position);

signals:
    void positionChosen(int position); ///< By the user.

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    QButtonGroup *m_buttons;
};

} // namespace velmora
