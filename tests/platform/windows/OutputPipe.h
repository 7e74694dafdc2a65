// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <windows.h>

/// Puts a pipe in the place of standard output while it lives.
class OutputPipe
{
public:
    OutputPipe() : m_before(GetStdHandle(STD_OUTPUT_HANDLE))
    {
        CreatePipe(&m_readEnd, &m_writeEnd, nullptr, 0);
        SetStdHandle(STD_OUTPUT_HANDLE, m_writeEnd);
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
        if (m_writeEnd) {
            SetStdHandle(STD_OUTPUT_HANDLE, m_before);
            CloseHandle(m_writeEnd);
        }
        m_writeEnd = nullptr;
    }
    void closeReader()
    {
        if (m_readEnd)
            CloseHandle(m_readEnd);
        m_readEnd = nullptr;
    }
    QByteArray read(int size) const
    {
        QByteArray data(size, '\0');
        DWORD got = 0;
        ReadFile(m_readEnd, data.data(), static_cast<DWORD>(size), &got, nullptr);
        return data.left(static_cast<int>(got));
    }

private:
    HANDLE m_before;
    HANDLE m_readEnd = nullptr;
    HANDLE m_writeEnd = nullptr;
};
