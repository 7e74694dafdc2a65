// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace velmora
{

/// A plain text in the middle of its place, in lines of about the same length. GUI thread.
class HintLabel : public QLabel
{
    Q_OBJECT
public:
    explicit HintLabel(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace velmora
