// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velmora
{

/// How requests to services behave; from the section "network" of services.ini: "ca_file",
/// "timeout" in seconds, "retry_delay" in milliseconds. Plain value.
struct NetworkOptions {
    QString caFile;       ///< Certificates (PEM) that are trusted besides the system's.
    int stallMs = 120000; ///< A request without progress for so long is given up.
    int retryMs = 1000;   ///< Before a request is repeated; doubled each time.
    int retries = 5;      ///< In a row and without progress.
};

} // namespace velmora
