// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <objbase.h>

#include <array>
#include <functional>
#include <vector>

namespace velmora
{

/// What is done with the fake objects of one test, and which of it fails. One thread at a time.
struct ComRecord {
    QStringList calls;
    QString failing; ///< The call that fails.
    HRESULT failure = E_FAIL;
    int objects = 0; ///< Those that are not released yet.

    HRESULT note(const QString &call)
    {
        calls.append(call);
        return call == failing ? failure : S_OK;
    }
};

/// An object with an interface of COM, built from a table of its functions, so that a call arrives
/// by its place in the table alone, as it does at the system's own objects. Calls of places that
/// have no function are noted as "NAME slot NUMBER".
class FakeComObject
{
    using Entry = void (*)();
    const Entry *m_address = m_table.data(); ///< First, where callers look for the table.

public:
    FakeComObject(ComRecord &record, const QString &name, REFIID interfaceId);
    FakeComObject(const FakeComObject &) = delete;
    FakeComObject &operator=(const FakeComObject &) = delete;

    /// Puts a function into the table, which gets this object and the arguments.
    template <typename Function> void on(int slot, Function function)
    {
        m_table[static_cast<size_t>(slot)] = reinterpret_cast<Entry>(+function);
    }
    /// Notes a call of this object.
    HRESULT note(const QString &call) { return m_record.note(m_name + QLatin1Char(' ') + call); }
    ComRecord &record() { return m_record; }
    QString name() const { return m_name; }
    /// Keeps an object until this one ends.
    void keep(IUnknown *object);
    template <typename Interface> Interface *as() { return reinterpret_cast<Interface *>(this); }

    /// Makes an answer for further interfaces; null for "unknown".
    std::function<IUnknown *(REFIID)> furtherInterface;
    std::function<void()> atEnd;

private:
    static constexpr size_t kSlots = 64;

    static HRESULT queryInterface(FakeComObject *self, const IID *id, void **object);
    static ULONG addReference(FakeComObject *self) { return ++self->m_references; }
    static ULONG release(FakeComObject *self);
    template <int Slot> static HRESULT unexpected(FakeComObject *self);
    template <int... Slots> void fill(std::integer_sequence<int, Slots...>);
    ~FakeComObject();

    std::array<Entry, kSlots> m_table;
    ComRecord &m_record;
    const QString m_name;
    const IID m_interface;
    ULONG m_references = 1;
    std::vector<IUnknown *> m_kept;
};

} // namespace velmora
