// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>
#include <optional>

namespace velmora
{

/// A version of three numbers joined by points.
class ProgramVersion
{
public:
    /// Accepts any text; nothing but such a version, blanks around it aside, yields one.
    static std::optional<ProgramVersion> parse(const QString &text);

    QString toString() const;

    friend bool operator==(const ProgramVersion &a, const ProgramVersion &b)
    {
        return a.m_numbers == b.m_numbers;
    }
    /// The first number that differs decides.
    friend bool operator<(const ProgramVersion &a, const ProgramVersion &b)
    {
        return a.m_numbers < b.m_numbers;
    }

private:
    std::array<int, 3> m_numbers = {};
};

} // namespace velmora
