// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class QSettings;
class QWidget;

namespace velmora
{

/// The file dialogs that ask for photos. They begin in "last_open_folder" and keep it up to date;
/// one that is cancelled leaves it as it was and yields nothing. GUI thread.
namespace PhotoDialogs
{

QStringList askForPhotos(QWidget *parent, QSettings *store);
QString askForFolder(QWidget *parent, QSettings *store);

} // namespace PhotoDialogs

} // namespace velmora
