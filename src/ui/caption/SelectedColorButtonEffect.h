// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGraphicsEffect>

namespace velmora
{

/// Marks the chosen one of several coloured buttons by a ring and a tick that stand out from any
/// colour. GUI thread.
class SelectedColorButtonEffect : public QGraphicsEffect
{
    Q_OBJECT
public:
    explicit SelectedColorButtonEffect(QObject *parent = nullptr);

protected:
    void draw(QPainter *painter) override;
};

} // namespace velmora
