// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/FakeImapi.h"

#include <QDir>

#include <oleauto.h>

#include <vector>

namespace velmora
{

namespace
{

constexpr MEMBERID kUpdate = 0x200;
constexpr SHORT kUpdateOffset = 7 * sizeof(void *);

/// Adds an interface that has "Update" with the given parameters behind those of IDispatch.
HRESULT addInterface(ICreateTypeLib2 *library, ITypeInfo *base, const wchar_t *name, REFIID id,
                     const std::vector<VARTYPE> &parameters)
{
    std::vector<ELEMDESC> elements(parameters.size());
    for (size_t i = 0; i < parameters.size(); ++i)
        elements[i].tdesc.vt = parameters[i];
    FUNCDESC function = {};
    function.memid = kUpdate;
    function.funckind = FUNC_PUREVIRTUAL;
    function.invkind = INVOKE_FUNC;
    function.callconv = CC_STDCALL;
    function.oVft = kUpdateOffset;
    function.cParams = static_cast<SHORT>(parameters.size());
    function.lprgelemdescParam = elements.data();
    function.elemdescFunc.tdesc.vt = VT_HRESULT;
    ComPtr<ICreateTypeInfo> type;
    HREFTYPE reference = 0;
    auto *text = const_cast<LPOLESTR>(name);
    auto *member = const_cast<LPOLESTR>(L"Update");
    const HRESULT made =
        library->CreateTypeInfo(text, TKIND_INTERFACE, type.ReleaseAndGetAddressOf());
    if (FAILED(made))
        return made;
    const HRESULT results[] = {
        type->SetGuid(id),
        type->SetTypeFlags(TYPEFLAG_FDUAL | TYPEFLAG_FOLEAUTOMATION | TYPEFLAG_FDISPATCHABLE),
        type->AddRefTypeInfo(base, &reference),
        type->AddImplType(0, reference),
        type->AddFuncDesc(0, &function),
        type->SetFuncAndParamNames(0, &member, 1),
        type->LayOut(),
    };
    for (const HRESULT result : results) {
        if (FAILED(result))
            return result;
    }
    return S_OK;
}

} // namespace

HRESULT makeEventLibrary(bool withEvents, ITypeLib **library)
{
    ComPtr<ICreateTypeLib2> maker;
    ComPtr<ITypeLib> standard;
    ComPtr<ITypeInfo> dispatch;
    const QString file = QDir::temp().filePath(QStringLiteral("events.tlb"));
    HRESULT result = CreateTypeLib2(SYS_WIN64, reinterpret_cast<const OLECHAR *>(file.utf16()),
                                    maker.ReleaseAndGetAddressOf());
    if (SUCCEEDED(result))
        result = LoadTypeLib(L"stdole2.tlb", standard.ReleaseAndGetAddressOf());
    if (SUCCEEDED(result))
        result = standard->GetTypeInfoOfGuid(IID_IDispatch, dispatch.ReleaseAndGetAddressOf());
    if (SUCCEEDED(result) && withEvents)
        result = addInterface(maker.Get(), dispatch.Get(), L"DDiscFormat2DataEvents",
                              __uuidof(DDiscFormat2DataEvents), {VT_DISPATCH, VT_DISPATCH});
    if (SUCCEEDED(result) && withEvents)
        result = addInterface(maker.Get(), dispatch.Get(), L"DDiscFormat2EraseEvents",
                              __uuidof(DDiscFormat2EraseEvents), {VT_DISPATCH, VT_I4, VT_I4});
    return FAILED(result) ? result
                          : maker->QueryInterface(IID_ITypeLib, reinterpret_cast<void **>(library));
}

} // namespace velmora
