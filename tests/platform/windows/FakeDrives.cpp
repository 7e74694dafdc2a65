// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/FakeParts.h"

namespace velmora
{

using namespace FakeParts;

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
