// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/FakeImapi.h"

#include "helpers/Files.h"
#include "platform/windows/FakeParts.h"

#include <QFileInfo>

namespace velmora
{

using namespace FakeParts;

namespace
{

DWORD countNames(const wchar_t *path)
{
    BY_HANDLE_FILE_INFORMATION information = {};
    const HANDLE file = CreateFileW(path, 0, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    GetFileInformationByHandle(file, &information);
    CloseHandle(file);
    return information.nNumberOfLinks;
}

struct ClassMaker {
    const char *name;
    const GUID &id;
    FakeComObject *(*make)(FakeDisc &);
};

} // namespace

HRESULT FakeImapi::createObject(REFCLSID classId, REFIID interfaceId, void **object)
{
    const ClassMaker classes[] = {
        {"MsftDiscMaster2", __uuidof(MsftDiscMaster2), makeMaster},
        {"MsftDiscRecorder2", __uuidof(MsftDiscRecorder2), makeRecorder},
        {"MsftDiscFormat2Erase", __uuidof(MsftDiscFormat2Erase), makeEraser},
        {"MsftDiscFormat2Data", __uuidof(MsftDiscFormat2Data), makeData},
        {"MsftFileSystemImage", __uuidof(MsftFileSystemImage), makeImage},
    };
    for (const ClassMaker &known : classes) {
        if (known.id != classId)
            continue;
        const HRESULT result =
            m_disc.note(QStringLiteral("CoCreateInstance ") + QLatin1String(known.name));
        if (FAILED(result))
            return result;
        auto *made = known.make(m_disc)->as<IUnknown>();
        const HRESULT found = made->QueryInterface(interfaceId, object);
        made->Release();
        return found;
    }
    return REGDB_E_CLASSNOTREG;
}

HRESULT FakeImapi::loadTypeLibrary(ITypeLib **library)
{
    const HRESULT result = m_disc.note(QStringLiteral("LoadRegTypeLib"));
    return FAILED(result) ? result : makeEventLibrary(m_disc.describesEvents, library);
}

HRESULT FakeImapi::openFile(const wchar_t *path, DWORD mode, IStream **stream)
{
    const QString file = QString::fromWCharArray(path);
    const HRESULT result = m_disc.note(QStringLiteral("SHCreateStreamOnFileEx %1 %2")
                                           .arg(QFileInfo(file).fileName())
                                           .arg(mode, 8, 16, QLatin1Char('0')));
    if (FAILED(result))
        return result;
    m_disc.streamContent = readFile(file);
    m_disc.streamNames = countNames(path);
    auto *made = new FakeComObject(m_disc, QStringLiteral("video"), __uuidof(IStream));
    made->atEnd = [file] { QFile::remove(file); };
    *stream = made->as<IStream>();
    return S_OK;
}

} // namespace velmora
