// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>

namespace velmora
{

/// The list of values that a cell opens. GUI thread.
class ValueBox : public QComboBox
{
    Q_OBJECT
public:
    explicit ValueBox(QWidget *parent) : QComboBox(parent) {}

    void hidePopup() override
    {
        QComboBox::hidePopup();
        emit closed();
    }

signals:
    /// The list closed, also without a choice; a choice is told after it.
    void closed();
};

} // namespace velmora
