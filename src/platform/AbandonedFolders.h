// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>

#include <functional>

namespace velmora
{

/// What is left behind by programs that were killed: a program makes a folder for its files and
/// holds a lock file in it as long as it needs them.
namespace AbandonedFolders
{

/// Removes the folders in @p parent with names that begin with @p prefix, unless a program holds
/// their @p lockFile or has just made them. @p mayGo is asked of each first, under the lock.
/// Returns the paths of those that were removed. Any thread.
QStringList remove(
    const QDir &parent, const QString &prefix, const QString &lockFile,
    const std::function<bool(const QDir &)> &mayGo = [](const QDir &) { return true; });

} // namespace AbandonedFolders

} // namespace velmora
