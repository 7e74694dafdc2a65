// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/FakeParts.h"

namespace velmora
{

using namespace FakeParts;

namespace
{

/// The arguments of an event, which answer by the time that is due.
FakeComObject *makeArguments(FakeComObject *data, const QPair<LONG, LONG> &times)
{
    static QPair<LONG, LONG> current;
    current = times;
    auto *arguments =
        new FakeComObject(disc(data), QStringLiteral("arguments"),
                          times.first < 0 ? IID_IDispatch : __uuidof(IDiscFormat2DataEventArgs));
    arguments->on(14, [](FakeComObject *, LONG *value) {
        *value = current.first;
        return S_OK;
    });
    arguments->on(16, [](FakeComObject *, LONG *value) {
        *value = current.second;
        return current.second < 0 ? E_FAIL : S_OK;
    });
    return arguments;
}

HRESULT writeFake(FakeComObject *self, IStream *stream)
{
    for (const auto &times : qAsConst(disc(self).seconds)) {
        FakeComObject *arguments = makeArguments(self, times);
        fire(self, {variant(arguments->as<IDispatch>()), variant(self->as<IDispatch>())});
        arguments->as<IUnknown>()->Release();
    }
    return self->note(QStringLiteral("Write ") + nameOf(stream));
}

void addMediaQuestions(FakeComObject *data)
{
    data->on(10, [](FakeComObject *self, VARIANT_BOOL *value) {
        return answer(self, "get_MediaHeuristicallyBlank", value, boolean(disc(self).blank));
    });
    data->on(11, [](FakeComObject *self, SAFEARRAY **value) {
        QVector<VARIANT> types;
        for (const LONG type : qAsConst(disc(self).supportedTypes))
            types.append(variant(type));
        const HRESULT result = self->note(QStringLiteral("get_SupportedMediaTypes"));
        if (SUCCEEDED(result))
            *value = array(types);
        return result;
    });
    data->on(18, [](FakeComObject *self, LONG *value) {
        return answer(self, "get_CurrentMediaStatus", value, disc(self).status);
    });
    data->on(20, [](FakeComObject *self, LONG *value) {
        return answer(self, "get_TotalSectorsOnMedia", value, LONG(2295104));
    });
    data->on(29, [](FakeComObject *self, LONG *value) {
        return answer(self, "get_CurrentPhysicalMediaType", value, disc(self).mediaType);
    });
}

} // namespace

FakeComObject *FakeParts::makeEraser(FakeDisc &fake)
{
    auto *eraser = new FakeComObject(fake, QStringLiteral("MsftDiscFormat2Erase"),
                                     __uuidof(IDiscFormat2Erase));
    addEvents(eraser);
    eraser->on(8, [](FakeComObject *self, IUnknown *, VARIANT_BOOL *value) {
        return answer(self, "IsCurrentMediaSupported", value, boolean(disc(self).erasable));
    });
    eraser->on(12, [](FakeComObject *self, IUnknown *recorder) {
        return self->note(QStringLiteral("put_Recorder ") + nameOf(recorder));
    });
    eraser->on(14, [](FakeComObject *self, VARIANT_BOOL full) {
        return self->note(QStringLiteral("put_FullErase %1").arg(full));
    });
    eraser->on(17, [](FakeComObject *self, BSTR name) {
        return self->note(QStringLiteral("put_ClientName ") + text(name));
    });
    eraser->on(19, [](FakeComObject *self) {
        for (const auto &times : qAsConst(disc(self).seconds))
            fire(self,
                 {variant(times.second), variant(times.first), variant(self->as<IDispatch>())});
        return self->note(QStringLiteral("EraseMedia"));
    });
    return eraser;
}

FakeComObject *FakeParts::makeData(FakeDisc &fake)
{
    auto *data =
        new FakeComObject(fake, QStringLiteral("MsftDiscFormat2Data"), __uuidof(IDiscFormat2Data));
    addEvents(data);
    addMediaQuestions(data);
    data->on(12, [](FakeComObject *self, IUnknown *recorder) {
        self->keep(recorder);
        return self->note(QStringLiteral("put_Recorder ") + nameOf(recorder));
    });
    data->on(25, [](FakeComObject *self, VARIANT_BOOL value) {
        return self->note(QStringLiteral("put_ForceMediaToBeClosed %1").arg(value));
    });
    data->on(30, [](FakeComObject *self, BSTR name) {
        return self->note(QStringLiteral("put_ClientName ") + text(name));
    });
    data->on(40, [](FakeComObject *self, SAFEARRAY **value) {
        const HRESULT result = self->note(QStringLiteral("get_MultisessionInterfaces"));
        if (FAILED(result))
            return result;
        auto *session =
            new FakeComObject(disc(self), QStringLiteral("IMultisession"), __uuidof(IDispatch));
        *value = array({variant(session->as<IDispatch>())});
        session->as<IUnknown>()->Release();
        return result;
    });
    data->on(41, &writeFake);
    data->on(42, [](FakeComObject *self) { return self->note(QStringLiteral("CancelWrite")); });
    return data;
}

FakeComObject *FakeParts::makeMaster(FakeDisc &fake)
{
    auto *master =
        new FakeComObject(fake, QStringLiteral("MsftDiscMaster2"), __uuidof(IDiscMaster2));
    master->on(8, [](FakeComObject *self, LONG index, BSTR *value) {
        return answerText(self, QStringLiteral("get_Item %1").arg(index), value,
                          disc(self).drives.at(index));
    });
    master->on(9, [](FakeComObject *self, LONG *value) {
        return answer(self, "get_Count", value, static_cast<LONG>(disc(self).drives.size()));
    });
    master->on(10, [](FakeComObject *self, VARIANT_BOOL *value) {
        return answer(self, "get_IsSupportedEnvironment", value, boolean(disc(self).supported));
    });
    return master;
}

FakeComObject *FakeParts::makeRecorder(FakeDisc &fake)
{
    auto *recorder =
        new FakeComObject(fake, QStringLiteral("MsftDiscRecorder2"), __uuidof(IDiscRecorder2));
    recorder->on(13, [](FakeComObject *self, BSTR id) {
        return self->note(QStringLiteral("InitializeDiscRecorder ") + text(id));
    });
    recorder->on(16, [](FakeComObject *self, BSTR *value) {
        return answerText(self, QStringLiteral("get_ProductId"), value,
                          QStringLiteral("DVDRAM GH24 "));
    });
    recorder->on(19, [](FakeComObject *self, SAFEARRAY **value) {
        const HRESULT result = self->note(QStringLiteral("get_VolumePathNames"));
        if (FAILED(result))
            return result;
        VARIANT path;
        VariantInit(&path);
        path.vt = VT_BSTR;
        path.bstrVal = SysAllocString(L"E:\\");
        *value = array({path});
        VariantClear(&path);
        return result;
    });
    return recorder;
}

} // namespace velmora
