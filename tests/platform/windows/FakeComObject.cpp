// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/FakeComObject.h"

namespace velmora
{

FakeComObject::FakeComObject(ComRecord &record, const QString &name, REFIID interfaceId)
    : m_record(record), m_name(name), m_interface(interfaceId)
{
    ++m_record.objects;
    fill(std::make_integer_sequence<int, kSlots>());
    m_table[0] = reinterpret_cast<Entry>(&queryInterface);
    m_table[1] = reinterpret_cast<Entry>(&addReference);
    m_table[2] = reinterpret_cast<Entry>(&release);
}

FakeComObject::~FakeComObject()
{
    for (IUnknown *object : m_kept)
        object->Release();
    if (atEnd)
        atEnd();
    --m_record.objects;
}

void FakeComObject::keep(IUnknown *object)
{
    object->AddRef();
    m_kept.push_back(object);
}

HRESULT FakeComObject::queryInterface(FakeComObject *self, const IID *id, void **object)
{
    *object = nullptr;
    if (*id == self->m_interface || *id == __uuidof(IUnknown)) {
        ++self->m_references;
        *object = self;
    } else if (self->furtherInterface) {
        *object = self->furtherInterface(*id);
    }
    return *object ? S_OK : E_NOINTERFACE;
}

ULONG FakeComObject::release(FakeComObject *self)
{
    const ULONG left = --self->m_references;
    if (left == 0)
        delete self;
    return left;
}

template <int Slot> HRESULT FakeComObject::unexpected(FakeComObject *self)
{
    self->note(QStringLiteral("slot %1").arg(Slot));
    return E_NOTIMPL;
}

template <int... Slots> void FakeComObject::fill(std::integer_sequence<int, Slots...>)
{
    m_table = {reinterpret_cast<Entry>(&unexpected<Slots>)...};
}

} // namespace velmora
