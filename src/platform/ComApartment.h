// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

namespace velmora
{

/// Keeps COM initialised for the thread that made it, as long as it lives; does nothing where there
/// is no COM.
class ComApartment
{
public:
    ComApartment();
    ~ComApartment();
    Q_DISABLE_COPY(ComApartment)

    /// Whether COM can be used; the log has the reason if not.
    bool isReady() const { return m_initialised; }

private:
    bool m_initialised = false;
};

} // namespace velmora
