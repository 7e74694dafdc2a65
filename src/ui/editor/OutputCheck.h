// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>

class QWidget;

namespace velmora
{

/// What can stand in the way of a video's file. The functions with a window tell the user what is
/// wrong, above it, and return false when the video cannot or shall not be made. GUI thread, but
/// for look().
class OutputCheck
{
    Q_DECLARE_TR_FUNCTIONS(velmora::OutputCheck)
public:
    /// @p name: the file's, without folder and suffix.
    static bool isNameUsable(QWidget *window, const QString &name);
    /// What is at the place of the file.
    struct Finding {
        QString problem;     ///< Why nothing can be written there, for the user; empty: nothing.
        bool exists = false; ///< There is such a file.
    };

    /// Makes the folder if there is none, and tries to write there. Any thread but the GUI's: the
    /// disk may be slow.
    static Finding look(const QString &folder, const QString &output);
    /// Asks before a file is replaced.
    static bool mayWrite(QWidget *window, const QString &output, const Finding &finding);
};

} // namespace velmora
