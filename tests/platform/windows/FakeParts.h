// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/windows/FakeImapi.h"

#include <QVector>

#include <oleauto.h>

namespace velmora
{

/// What the fake objects of the burning service are made of. The places of their functions are
/// those of Microsoft's documentation.
namespace FakeParts
{

FakeComObject *makeMaster(FakeDisc &fake);
FakeComObject *makeRecorder(FakeDisc &fake);
FakeComObject *makeEraser(FakeDisc &fake);
FakeComObject *makeData(FakeDisc &fake);
FakeComObject *makeImage(FakeDisc &fake);

/// Lets an object have events, which go to FakeDisc::sink.
void addEvents(FakeComObject *source);
/// Sends an event to the connected sink, with its arguments from last to first.
void fire(FakeComObject *source, QVector<VARIANT> arguments);

FakeDisc &disc(FakeComObject *self);
/// The name of a fake object that was passed as an argument.
QString nameOf(void *object);
QString text(BSTR value);
VARIANT_BOOL boolean(bool value);
VARIANT variant(LONG value);
VARIANT variant(IDispatch *object);
SAFEARRAY *array(QVector<VARIANT> elements);

/// Notes a call; a successful one gives its answer.
template <typename Value>
HRESULT answer(FakeComObject *self, const char *call, Value *to, const Value &value)
{
    const HRESULT result = self->note(QLatin1String(call));
    if (SUCCEEDED(result))
        *to = value;
    return result;
}
/// The same with a text as the answer.
HRESULT answerText(FakeComObject *self, const QString &call, BSTR *to, const QString &value);

} // namespace FakeParts

} // namespace velmora
