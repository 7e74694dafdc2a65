// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <algorithm>
#include <array>
#include <unistd.h>
#include <vector>

/// Puts a pipe in the place of standard output while it lives.
class OutputPipe
{
public:
    OutputPipe() : m_before(::dup(STDOUT_FILENO))
    {
        std::array<int, 2> ends{};
        if (::pipe(ends.data()) == 0) {
            m_readEnd = ends[0];
            ::dup2(ends[1], STDOUT_FILENO);
            ::close(ends[1]);
        }
    }
    ~OutputPipe()
    {
        restore();
        closeReader();
    }
    OutputPipe(const OutputPipe &) = delete;
    OutputPipe &operator=(const OutputPipe &) = delete;

    void restore()
    {
        if (m_before >= 0) {
            ::dup2(m_before, STDOUT_FILENO);
            ::close(m_before);
        }
        m_before = -1;
    }
    void closeReader()
    {
        if (m_readEnd >= 0)
            ::close(m_readEnd);
        m_readEnd = -1;
    }
    QByteArray read(int size) const
    {
        std::vector<char> data(static_cast<size_t>(size));
        const ssize_t got = ::read(m_readEnd, data.data(), data.size());
        return {data.data(), static_cast<int>(std::max<ssize_t>(got, 0))};
    }

private:
    int m_before;
    int m_readEnd = -1;
};
