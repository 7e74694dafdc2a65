// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

namespace velmora
{

/// Keeps libburn and libisofs, which have one state for the whole process, started and reserved for
/// the thread that made it; other threads wait meanwhile. No drive may be held at its end.
class BurnLibrary
{
public:
    BurnLibrary();
    ~BurnLibrary();
    Q_DISABLE_COPY(BurnLibrary)

    bool isReady() const { return m_ready; }

    /// What both libraries had to say since the last call.
    struct Messages {
        bool errors = false;
        bool writeRefused = false; ///< No thread that writes to a drive was started.
        bool writeEnded = false;   ///< The thread that wrote to a drive has come to its end.
    };
    /// Logs and forgets it.
    static Messages logMessages();

private:
    bool m_ready = false;
};

} // namespace velmora
