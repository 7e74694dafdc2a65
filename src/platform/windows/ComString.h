// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <objbase.h>
#include <oleauto.h>

namespace velmora
{

/// A text in the form in which COM passes texts.
class ComString
{
public:
    ComString() = default;
    explicit ComString(const QString &text)
        : m_text(SysAllocStringLen(reinterpret_cast<const OLECHAR *>(text.utf16()),
                                   static_cast<UINT>(text.size())))
    {
    }
    ~ComString() { SysFreeString(m_text); }
    Q_DISABLE_COPY(ComString)

    BSTR get() const { return m_text; }
    /// Where a callee puts its answer. Once per object.
    BSTR *receive() { return &m_text; }
    QString toString() const
    {
        return QString::fromWCharArray(m_text, static_cast<int>(SysStringLen(m_text)));
    }

private:
    BSTR m_text = nullptr;
};

} // namespace velmora
