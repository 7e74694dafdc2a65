// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <QWidget>

namespace velmora
{

/// A turning arc over a picture, which says that something is being made. Appears only when that
/// takes longer than a blink. GUI thread.
class Spinner : public QWidget
{
    Q_OBJECT
public:
    explicit Spinner(QWidget *parent = nullptr);

    void setTurning(bool turning);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void onTimer();

    QTimer m_timer;
    int m_turns = 0; ///< Steps since it was asked for.
};

} // namespace velmora
