// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/windows/ComPtr.h"

#include <QtGlobal>

#include <ocidl.h>

namespace velmora
{

/// Sends the events of an object to a sink as long as it lives. What fails is logged and means that
/// no events come.
class EventConnection
{
public:
    /// Without a @p sink nothing is connected.
    EventConnection(IUnknown *source, REFIID events, IUnknown *sink);
    ~EventConnection();
    Q_DISABLE_COPY(EventConnection)

private:
    ComPtr<IConnectionPoint> m_point; ///< Set while connected.
    DWORD m_cookie = 0;
};

} // namespace velmora
