// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCollator>
#include <QOperatingSystemVersion>
#include <QStringList>

namespace velmora
{

/// The suffixes of photos with their dot, in lower case: ".png", ...
const QStringList &photoSuffixes();
/// The same as name filters for folders and dialogs: "*.png", ...
QStringList photoNameFilters();
/// Whether the path ends in one of photoSuffixes(), in whatever case cameras write it.
bool isPhotoPath(const QString &path);

/// The suffixes of sound files without a dot, in lower case; Windows before Vista has no decoder
/// for "m4a" and "mp3".
QStringList
audioSuffixes(const QOperatingSystemVersion &system = QOperatingSystemVersion::current());
/// Whether the path's suffix is one of audioSuffixes() of this system, in whatever case.
bool isAudioPath(const QString &path);

/// Compares names as people do: "2" before "10", without regard to case.
QCollator naturalCollator();

/// Sorts paths by their file names as people do: "2.jpg" before "10.jpg", without regard to case.
void sortNaturally(QStringList *paths);

/// Sorts paths folder by folder as people do: the files of a folder before those of its subfolders.
void sortByFolder(QStringList *paths);

/// The absolute paths of the photos directly in @p folder, in natural order. Empty with a plain
/// reason for the user in @p error, where given, when the folder cannot be read.
QStringList photosInFolder(const QString &folder, QString *error = nullptr);

} // namespace velmora
