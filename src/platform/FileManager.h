// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <memory>

namespace velmora
{

/// The desktop's file manager. GUI thread.
class FileManager
{
public:
    virtual ~FileManager() = default;

    /// Opens the folder of @p path with the file selected, or just the folder when the file is
    /// gone. False when the folder is gone too, or when no file manager can be started; otherwise
    /// returns at once, and what the file manager makes of it is not known.
    virtual bool showInFolder(const QString &path) = 0;
};

std::unique_ptr<FileManager> createFileManager();

} // namespace velmora
