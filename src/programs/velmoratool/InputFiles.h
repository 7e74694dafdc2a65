// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "programs/velmoratool/MakeOptions.h"

#include <QString>
#include <QStringList>

namespace velmora
{

/// Turns the files and folders of a command line into the files that are meant. Reads the disk.
namespace InputFiles
{

/// The photos named by @p arguments and those directly in the folders among them, in @p order.
/// @p errors receives one sentence for each argument that is unusable.
QStringList photos(const QStringList &arguments, MakeOptions::Order order, QStringList *errors);

/// The same for sound files, in the given order.
QStringList music(const QStringList &arguments, QStringList *errors);

} // namespace InputFiles

} // namespace velmora
