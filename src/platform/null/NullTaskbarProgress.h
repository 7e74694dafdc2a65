// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/TaskbarProgress.h"

namespace velmora
{

/// For desktops without progress in the task bar.
class NullTaskbarProgress : public TaskbarProgress
{
public:
    void setWindow(QWindow *) override {}
    void setVisible(bool) override {}
    void setPaused(bool) override {}
    void setValue(int) override {}
};

} // namespace velmora
