// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileManager.h"

namespace velmora
{

/// For systems without a file manager.
class NullFileManager : public FileManager
{
public:
    bool showInFolder(const QString &) override { return false; }
};

} // namespace velmora
