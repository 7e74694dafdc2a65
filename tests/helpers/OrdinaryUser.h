// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmora
{

/// Makes the process, while the object lives, one of a user who may not read every file. Folders
/// that it is to enter must be open to all.
class OrdinaryUser
{
public:
    OrdinaryUser();
    ~OrdinaryUser();
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;

    /// False where the system knows no such user.
    bool isOne() const;

private:
    unsigned m_before;
};

} // namespace velmora
