// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QVector>

#include <objbase.h>
#include <oleauto.h>

namespace velmora
{

/// An array of variants in the form in which COM passes arrays.
class ComArray
{
public:
    ComArray() = default;
    ~ComArray();
    Q_DISABLE_COPY(ComArray)

    SAFEARRAY *get() const { return m_array; }
    /// Where a callee puts its answer. Once per object.
    SAFEARRAY **receive() { return &m_array; }

    /// The elements; those that are of another kind are left out.
    QStringList strings() const;
    QVector<LONG> numbers() const;

private:
    template <typename Take> void forEach(VARTYPE type, const Take &take) const;

    SAFEARRAY *m_array = nullptr;
};

} // namespace velmora
