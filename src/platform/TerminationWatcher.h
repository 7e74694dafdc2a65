// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>

namespace velmora
{

/// Turns the system's requests to end this process (SIGTERM, SIGINT and SIGHUP; closing the console
/// on Windows) into calls, instead of ending it. At most one per process; destroying it restores
/// what was before.
class TerminationWatcher
{
public:
    virtual ~TerminationWatcher() = default;
};

/// @p onRequest is called from the event loop of the creating thread, once per request.
std::unique_ptr<TerminationWatcher> createTerminationWatcher(std::function<void()> onRequest);

/// Whether a request has come to the watcher that there is, its call included that is still to
/// come. A terminal ends the child processes along with this one, and what follows from their end
/// may be noticed before the event loop gets to the call. Any thread.
bool isTerminationRequested();

} // namespace velmora
