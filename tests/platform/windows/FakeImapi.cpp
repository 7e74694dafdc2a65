// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/FakeImapi.h"

#include "platform/windows/ComArray.h"

#include <QFile>
#include <QFileInfo>

#include <objbase.h>
#include <ocidl.h>
#include <oleauto.h>

namespace velmora
{

namespace
{

// The places of the functions are those of Microsoft's documentation.

constexpr DISPID kUpdate = 0x200;

FakeDisc &disc(FakeComObject *self)
{
    return static_cast<FakeDisc &>(self->record());
}

QString text(BSTR value)
{
    return QString::fromWCharArray(value, static_cast<int>(SysStringLen(value)));
}

BSTR bstr(const QString &value)
{
    return SysAllocStringLen(reinterpret_cast<const OLECHAR *>(value.utf16()),
                             static_cast<UINT>(value.size()));
}

QString nameOf(void *object)
{
    return object ? static_cast<FakeComObject *>(object)->name() : QStringLiteral("null");
}

VARIANT_BOOL boolean(bool value)
{
    return value ? VARIANT_TRUE : VARIANT_FALSE;
}

VARIANT variant(LONG value)
{
    VARIANT made;
    VariantInit(&made);
    made.vt = VT_I4;
    made.lVal = value;
    return made;
}

VARIANT variant(IDispatch *object)
{
    VARIANT made;
    VariantInit(&made);
    made.vt = VT_DISPATCH;
    made.pdispVal = object;
    return made;
}

SAFEARRAY *array(QVector<VARIANT> elements)
{
    SAFEARRAY *made = SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(elements.size()));
    for (LONG i = 0; i < elements.size(); ++i)
        SafeArrayPutElement(made, &i, &elements[i]);
    return made;
}

/// Notes a call; a successful one gives its answer.
template <typename Value>
HRESULT answer(FakeComObject *self, const char *call, Value *to, const Value &value)
{
    const HRESULT result = self->note(QLatin1String(call));
    if (SUCCEEDED(result))
        *to = value;
    return result;
}

/// Sends an event to the connected sink, with its arguments from last to first.
void fire(FakeComObject *self, QVector<VARIANT> arguments)
{
    IDispatch *sink = disc(self).sink;
    if (!sink)
        return;
    DISPPARAMS parameters = {arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    const HRESULT result = sink->Invoke(kUpdate, IID_NULL, LOCALE_NEUTRAL, DISPATCH_METHOD,
                                        &parameters, nullptr, nullptr, nullptr);
    if (FAILED(result))
        self->note(QStringLiteral("event failed: %1").arg(static_cast<quint32>(result), 0, 16));
}

FakeComObject *makePoint(FakeDisc &fake)
{
    auto *point =
        new FakeComObject(fake, QStringLiteral("IConnectionPoint"), __uuidof(IConnectionPoint));
    point->on(
        5, +[](FakeComObject *self, IUnknown *sink, DWORD *cookie) -> HRESULT {
            const HRESULT result = self->note(QStringLiteral("Advise"));
            if (FAILED(result))
                return result;
            *cookie = 7;
            return sink->QueryInterface(IID_IDispatch, reinterpret_cast<void **>(&disc(self).sink));
        });
    point->on(
        6, +[](FakeComObject *self, DWORD cookie) -> HRESULT {
            IDispatch *&sink = disc(self).sink;
            if (cookie != 7 || !sink)
                self->note(QStringLiteral("Unadvise %1").arg(cookie));
            else
                sink->Release();
            sink = nullptr;
            return S_OK;
        });
    return point;
}

/// Lets an object have events.
void addEvents(FakeComObject *source)
{
    source->furtherInterface = [source](REFIID id) -> IUnknown * {
        if (id != __uuidof(IConnectionPointContainer) ||
            FAILED(source->note(QStringLiteral("QueryInterface"))))
            return nullptr;
        auto *container =
            new FakeComObject(source->record(), QStringLiteral("IConnectionPointContainer"),
                              __uuidof(IConnectionPointContainer));
        container->on(
            4, +[](FakeComObject *self, const IID *wanted, IConnectionPoint **point) -> HRESULT {
                const bool data = *wanted == __uuidof(DDiscFormat2DataEvents);
                const HRESULT result = self->note(
                    data ? QStringLiteral("FindConnectionPoint DDiscFormat2DataEvents")
                         : QStringLiteral("FindConnectionPoint DDiscFormat2EraseEvents"));
                if (SUCCEEDED(result))
                    *point = makePoint(disc(self))->as<IConnectionPoint>();
                return result;
            });
        return container->as<IUnknown>();
    };
}

FakeComObject *makeMaster(FakeDisc &fake)
{
    auto *master =
        new FakeComObject(fake, QStringLiteral("MsftDiscMaster2"), __uuidof(IDiscMaster2));
    master->on(
        8, +[](FakeComObject *self, LONG index, BSTR *value) -> HRESULT {
            const HRESULT result = self->note(QStringLiteral("get_Item %1").arg(index));
            if (SUCCEEDED(result))
                *value = bstr(disc(self).drives.at(index));
            return result;
        });
    master->on(
        9, +[](FakeComObject *self, LONG *value) -> HRESULT {
            return answer(self, "get_Count", value, static_cast<LONG>(disc(self).drives.size()));
        });
    master->on(
        10, +[](FakeComObject *self, VARIANT_BOOL *value) -> HRESULT {
            return answer(self, "get_IsSupportedEnvironment", value, boolean(disc(self).supported));
        });
    return master;
}

FakeComObject *makeRecorder(FakeDisc &fake)
{
    auto *recorder =
        new FakeComObject(fake, QStringLiteral("MsftDiscRecorder2"), __uuidof(IDiscRecorder2));
    recorder->on(
        13, +[](FakeComObject *self, BSTR id) -> HRESULT {
            return self->note(QStringLiteral("InitializeDiscRecorder ") + text(id));
        });
    recorder->on(
        16, +[](FakeComObject *self, BSTR *value) -> HRESULT {
            const HRESULT result = self->note(QStringLiteral("get_ProductId"));
            if (SUCCEEDED(result))
                *value = bstr(QStringLiteral("DVDRAM GH24 "));
            return result;
        });
    recorder->on(
        19, +[](FakeComObject *self, SAFEARRAY **value) -> HRESULT {
            const HRESULT result = self->note(QStringLiteral("get_VolumePathNames"));
            if (FAILED(result))
                return result;
            VARIANT path;
            VariantInit(&path);
            path.vt = VT_BSTR;
            path.bstrVal = bstr(QStringLiteral("E:\\"));
            *value = array({path});
            VariantClear(&path);
            return result;
        });
    return recorder;
}

FakeComObject *makeEraser(FakeDisc &fake)
{
    auto *eraser = new FakeComObject(fake, QStringLiteral("MsftDiscFormat2Erase"),
                                     __uuidof(IDiscFormat2Erase));
    addEvents(eraser);
    eraser->on(
        8, +[](FakeComObject *self, IUnknown *, VARIANT_BOOL *value) -> HRESULT {
            return answer(self, "IsCurrentMediaSupported", value, boolean(disc(self).erasable));
        });
    eraser->on(
        12, +[](FakeComObject *self, IUnknown *recorder) -> HRESULT {
            return self->note(QStringLiteral("put_Recorder ") + nameOf(recorder));
        });
    eraser->on(
        14, +[](FakeComObject *self, VARIANT_BOOL full) -> HRESULT {
            return self->note(QStringLiteral("put_FullErase %1").arg(full));
        });
    eraser->on(
        17, +[](FakeComObject *self, BSTR name) -> HRESULT {
            return self->note(QStringLiteral("put_ClientName ") + text(name));
        });
    eraser->on(
        19, +[](FakeComObject *self) -> HRESULT {
            for (const auto &times : qAsConst(disc(self).seconds))
                fire(self,
                     {variant(times.second), variant(times.first), variant(self->as<IDispatch>())});
            return self->note(QStringLiteral("EraseMedia"));
        });
    return eraser;
}

/// The arguments of an event, which answer by the time that is due.
FakeComObject *makeArguments(FakeComObject *data, const QPair<LONG, LONG> &times)
{
    static QPair<LONG, LONG> current;
    current = times;
    auto *arguments =
        new FakeComObject(disc(data), QStringLiteral("arguments"),
                          times.first < 0 ? IID_IDispatch : __uuidof(IDiscFormat2DataEventArgs));
    arguments->on(
        14, +[](FakeComObject *, LONG *value) -> HRESULT {
            *value = current.first;
            return S_OK;
        });
    arguments->on(
        16, +[](FakeComObject *, LONG *value) -> HRESULT {
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
    data->on(
        10, +[](FakeComObject *self, VARIANT_BOOL *value) -> HRESULT {
            return answer(self, "get_MediaHeuristicallyBlank", value, boolean(disc(self).blank));
        });
    data->on(
        11, +[](FakeComObject *self, SAFEARRAY **value) -> HRESULT {
            QVector<VARIANT> types;
            for (const LONG type : qAsConst(disc(self).supportedTypes))
                types.append(variant(type));
            const HRESULT result = self->note(QStringLiteral("get_SupportedMediaTypes"));
            if (SUCCEEDED(result))
                *value = array(types);
            return result;
        });
    data->on(
        18, +[](FakeComObject *self, LONG *value) -> HRESULT {
            return answer(self, "get_CurrentMediaStatus", value, disc(self).status);
        });
    data->on(
        20, +[](FakeComObject *self, LONG *value) -> HRESULT {
            return answer(self, "get_TotalSectorsOnMedia", value, LONG(2295104));
        });
    data->on(
        29, +[](FakeComObject *self, LONG *value) -> HRESULT {
            return answer(self, "get_CurrentPhysicalMediaType", value, disc(self).mediaType);
        });
}

FakeComObject *makeData(FakeDisc &fake)
{
    auto *data =
        new FakeComObject(fake, QStringLiteral("MsftDiscFormat2Data"), __uuidof(IDiscFormat2Data));
    addEvents(data);
    addMediaQuestions(data);
    data->on(
        12, +[](FakeComObject *self, IUnknown *recorder) -> HRESULT {
            self->keep(recorder);
            return self->note(QStringLiteral("put_Recorder ") + nameOf(recorder));
        });
    data->on(
        25, +[](FakeComObject *self, VARIANT_BOOL value) -> HRESULT {
            return self->note(QStringLiteral("put_ForceMediaToBeClosed %1").arg(value));
        });
    data->on(
        30, +[](FakeComObject *self, BSTR name) -> HRESULT {
            return self->note(QStringLiteral("put_ClientName ") + text(name));
        });
    data->on(
        40, +[](FakeComObject *self, SAFEARRAY **value) -> HRESULT {
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
    data->on(
        42,
        +[](FakeComObject *self) -> HRESULT { return self->note(QStringLiteral("CancelWrite")); });
    return data;
}

FakeComObject *makeRoot(FakeDisc &fake)
{
    auto *root =
        new FakeComObject(fake, QStringLiteral("IFsiDirectoryItem"), __uuidof(IFsiDirectoryItem));
    root->on(
        24, +[](FakeComObject *self, BSTR name, IStream *stream) -> HRESULT {
            self->keep(stream);
            return self->note(QStringLiteral("AddFile %1, %2").arg(text(name), nameOf(stream)));
        });
    return root;
}

FakeComObject *makeResult(FakeDisc &fake)
{
    auto *result = new FakeComObject(fake, QStringLiteral("IFileSystemImageResult"),
                                     __uuidof(IFileSystemImageResult));
    result->on(
        7, +[](FakeComObject *self, IStream **value) -> HRESULT {
            const HRESULT answered = self->note(QStringLiteral("get_ImageStream"));
            if (SUCCEEDED(answered))
                *value = (new FakeComObject(disc(self), QStringLiteral("image"), __uuidof(IStream)))
                             ->as<IStream>();
            return answered;
        });
    return result;
}

/// Makes the objects that an image hands out.
template <FakeComObject *(*Make)(FakeDisc &)>
HRESULT handOut(FakeComObject *self, const char *call, void **value)
{
    const HRESULT result = self->note(QLatin1String(call));
    if (SUCCEEDED(result))
        *value = Make(disc(self));
    return result;
}

void addImporting(FakeComObject *image)
{
    image->on(
        44, +[](FakeComObject *self, LONG *fileSystem) -> HRESULT {
            return answer(self, "ImportFileSystem", fileSystem, LONG(4));
        });
    image->on(
        56, +[](FakeComObject *self, SAFEARRAY *sessions) -> HRESULT {
            VARIANT session;
            VariantInit(&session);
            LONG index = 0;
            SafeArrayGetElement(sessions, &index, &session);
            const QString name = nameOf(session.vt == VT_DISPATCH ? session.pdispVal : nullptr);
            VariantClear(&session);
            return self->note(QStringLiteral("put_MultisessionInterfaces ") + name);
        });
}

FakeComObject *makeImage(FakeDisc &fake)
{
    auto *image =
        new FakeComObject(fake, QStringLiteral("MsftFileSystemImage"), __uuidof(IFileSystemImage));
    addImporting(image);
    image->on(
        7, +[](FakeComObject *self, void **value) -> HRESULT {
            return handOut<makeRoot>(self, "get_Root", value);
        });
    image->on(
        10, +[](FakeComObject *self, LONG *value) -> HRESULT {
            return answer(self, "get_FreeMediaBlocks", value, LONG(1000));
        });
    image->on(
        14, +[](FakeComObject *self, BSTR *value) -> HRESULT {
            const HRESULT result = self->note(QStringLiteral("get_VolumeName"));
            if (SUCCEEDED(result))
                *value = bstr(QStringLiteral("Holidays"));
            return result;
        });
    image->on(
        15, +[](FakeComObject *self, BSTR name) -> HRESULT {
            return self->note(QStringLiteral("put_VolumeName ") + text(name));
        });
    image->on(
        34, +[](FakeComObject *self, IUnknown *recorder) -> HRESULT {
            return self->note(QStringLiteral("ChooseImageDefaults ") + nameOf(recorder));
        });
    image->on(
        39, +[](FakeComObject *self, void **value) -> HRESULT {
            return handOut<makeResult>(self, "CreateResultImage", value);
        });
    image->on(
        40, +[](FakeComObject *self, BSTR path, LONG *type) -> HRESULT {
            *type = disc(self).files.contains(text(path).mid(1)) ? 2 : 0;
            return self->note(QStringLiteral("Exists ") + text(path));
        });
    return image;
}

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
    m_disc.streamPath = file;
    const HRESULT result = m_disc.note(QStringLiteral("SHCreateStreamOnFileEx %1 %2")
                                           .arg(QFileInfo(file).fileName())
                                           .arg(mode, 8, 16, QLatin1Char('0')));
    if (FAILED(result))
        return result;
    QFile video(file);
    if (video.open(QIODevice::ReadOnly))
        m_disc.streamContent = video.readAll();
    video.close();
    m_disc.streamNames = countNames(path);
    auto *made = new FakeComObject(m_disc, QStringLiteral("video"), __uuidof(IStream));
    made->atEnd = [file] { QFile::remove(file); };
    *stream = made->as<IStream>();
    return S_OK;
}

} // namespace velmora
