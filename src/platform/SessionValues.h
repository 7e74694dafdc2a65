// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <memory>

namespace velmora
{

/// The values with which a running worker is steered, shared between two processes: the registry
/// on Windows, an INI file below the per-user data folder elsewhere. Any thread; each call reads
/// or writes the store.
class SessionValues
{
public:
    virtual ~SessionValues() = default;
    virtual void clear() = 0;                    ///< Removes all values of the session.
    virtual void setPaused(bool paused) = 0;     ///< "is_paused"
    virtual void setCanceled(bool canceled) = 0; ///< "is_canceled"
    virtual bool isPaused() const = 0;
    virtual bool isCanceled() const = 0;
};

/// @p sessionId: letters, digits and hyphens only; anything else is replaced. @p dataFolder is the
/// per-user data folder (unused on Windows).
std::unique_ptr<SessionValues> createSessionValues(const QString &sessionId,
                                                   const QString &dataFolder);

} // namespace velmora
