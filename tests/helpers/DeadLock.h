// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QSysInfo>

namespace velmora
{

/// What a program that was killed on this machine leaves in its QLockFile; no process can have the
/// number.
inline QByteArray deadLock()
{
    return "4194305\nvelmoratool\n" + QSysInfo::machineHostName().toUtf8() + '\n' +
           QSysInfo::machineUniqueId() + '\n' + QSysInfo::bootUniqueId() + '\n';
}

} // namespace velmora
