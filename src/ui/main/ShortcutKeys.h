// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeySequence>
#include <QString>

namespace velmora
{

/// The keys of the main window's actions, for the actions themselves, tooltips and the help.
namespace ShortcutKeys
{

QKeySequence newProject();
QKeySequence open();
QKeySequence save();
QKeySequence saveAs();
QKeySequence title();
QKeySequence addPhoto();
QKeySequence addFolder();
QKeySequence history();
QKeySequence back();
QKeySequence settings();
QKeySequence help();
QKeySequence fullScreen();
QKeySequence quit();

/// "Text (Ctrl+S)", with the keys named as this system does.
QString withKeys(const QString &text, const QKeySequence &keys);

} // namespace ShortcutKeys

} // namespace velmora
