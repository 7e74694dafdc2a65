// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>

class QWidget;

namespace velmora
{

/// What can stand in the way of a video's file. Each function tells the user what is wrong, above
/// @p window, and returns false when the video cannot or shall not be made. GUI thread.
class OutputCheck
{
    Q_DECLARE_TR_FUNCTIONS(velmora::OutputCheck)
public:
    /// @p name: the file's, without folder and suffix.
    static bool isNameUsable(QWidget *window, const QString &name);
    /// Makes the folder if there is none.
    static bool isFolderUsable(QWidget *window, const QString &folder);
    /// Asks before a file is replaced.
    static bool mayReplace(QWidget *window, const QString &output);
};

} // namespace velmora
