// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QString>

namespace velmora
{

/// A description of the machine. What cannot be found out is empty, 0 or false, with a log line.
struct SystemInfo {
    QString osId;            ///< Name and version of the system.
    QString processor;       ///< The processor's name.
    int processorCount = 0;  ///< Logical processors.
    int memoryMb = 0;        ///< Installed memory, MiB.
    QString videoAdapter;    ///< The first display adapter.
    bool laptop = false;     ///< A battery that feeds the machine is present.
    bool touch = false;      ///< A touch screen is present.
    bool emulated32 = false; ///< A 32-bit program on a 64-bit system.
    QSize screen;            ///< The primary screen, px; invalid without one.
    int dpi = 0;             ///< The primary screen's dots per inch.
};

/// Gathers everything. GUI thread, with a QGuiApplication.
SystemInfo readSystemInfo();

/// The primary screen's size in device pixels; invalid, with the log line "Primary screen is
/// unavailable", when there is none. GUI thread.
QSize primaryScreenSize();

} // namespace velmora
