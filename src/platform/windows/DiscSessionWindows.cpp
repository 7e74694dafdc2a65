// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/DiscSessionWindows.h"

#include "platform/PlatformLog.h"
#include "platform/Shortened.h"
#include "platform/windows/ComArray.h"
#include "platform/windows/ComResult.h"
#include "platform/windows/ComString.h"
#include "platform/windows/DiscExamination.h"
#include "platform/windows/EraseEvents.h"
#include "platform/windows/EventConnection.h"
#include "platform/windows/EventType.h"
#include "platform/windows/WriteEvents.h"

#include <QFileInfo>

namespace velmora
{

namespace
{

// STGM_READ | STGM_SHARE_DENY_NONE | STGM_DELETEONRELEASE
constexpr DWORD kStreamMode = 0x04000040;
constexpr int kVolumeNameLength = 15; // What the service promises to take.

/// A sink for events; null when the system cannot describe them.
template <typename Sink, typename Events>
ComPtr<Sink> makeSink(ImapiFactory &factory, const char *events, const DiscProgress &progress)
{
    ComPtr<Sink> sink;
    ComPtr<ITypeInfo> type = eventType(factory, __uuidof(Events), events);
    // Not by Attach(), which in MinGW adds a reference.
    if (type)
        *sink.GetAddressOf() = new Sink(std::move(type), progress);
    return sink;
}

} // namespace

DiscSessionWindows::DiscSessionWindows(ImapiFactory &factory, std::unique_lock<std::mutex> turn)
    : m_factory(factory), m_turn(std::move(turn))
{
}

QString DiscSessionWindows::fittingTitle(const QString &title)
{
    return shortened(title, kVolumeNameLength, [](const QString &text) { return text.size(); });
}

bool DiscSessionWindows::open(const QString &recorderId)
{
    return m_apartment.isReady() &&
           stepSucceeded(m_factory.create<MsftDiscRecorder2>(m_recorder),
                         "CoCreateInstance MsftDiscRecorder2") &&
           stepSucceeded(m_recorder->InitializeDiscRecorder(ComString(recorderId).get()),
                         "InitializeDiscRecorder");
}

bool DiscSessionWindows::erase(const DiscProgress &progress)
{
    ComPtr<IDiscFormat2Erase> eraser;
    const ComString client(QStringLiteral("Velmora1"));
    if (!stepSucceeded(m_factory.create<MsftDiscFormat2Erase>(eraser),
                       "CoCreateInstance MsftDiscFormat2Erase") ||
        !stepSucceeded(eraser->put_ClientName(client.get()), "put_ClientName 1") ||
        !stepSucceeded(eraser->put_Recorder(m_recorder.Get()), "put_Recorder") ||
        !stepSucceeded(eraser->put_FullErase(VARIANT_FALSE), "put_FullErase"))
        return false;
    const auto sink = makeSink<EraseEvents, DDiscFormat2EraseEvents>(
        m_factory, "DDiscFormat2EraseEvents", progress);
    const EventConnection connection(eraser.Get(), __uuidof(DDiscFormat2EraseEvents), sink.Get());
    return succeeded(eraser->EraseMedia(), "EraseMedia failed, result: '%1'");
}

bool DiscSessionWindows::checkMedia()
{
    IMAPI_FORMAT2_DATA_MEDIA_STATE status = IMAPI_FORMAT2_DATA_MEDIA_STATE_UNKNOWN;
    if (!stepSucceeded(m_factory.create<MsftDiscFormat2Data>(m_data),
                       "CoCreateInstance MsftDiscFormat2Data") ||
        !stepSucceeded(m_data->put_Recorder(m_recorder.Get()), "put_Recorder") ||
        !stepSucceeded(m_data->get_CurrentMediaStatus(&status), "get_CurrentMediaStatus"))
        return false;
    qCInfo(lcPlatform).noquote() << QStringLiteral("Current media status: '%1'.").arg(status);
    const ComString client(QStringLiteral("Velmora2"));
    return stepSucceeded(m_data->put_ClientName(client.get()), "put_ClientName 2") &&
           isMediaTypeSupported();
}

bool DiscSessionWindows::isMediaTypeSupported()
{
    ComArray supported;
    IMAPI_MEDIA_PHYSICAL_TYPE type{};
    if (!stepSucceeded(m_data->get_SupportedMediaTypes(supported.receive()),
                       "get_SupportedMediaTypes") ||
        !stepSucceeded(m_data->get_CurrentPhysicalMediaType(&type), "get_CurrentPhysicalMediaType"))
        return false;
    if (supported.numbers().contains(type))
        return true;
    qCWarning(lcPlatform) << "Invalid media type";
    return false;
}

bool DiscSessionWindows::createImage(const QString &video, const QString &fileName,
                                     const QString &volumeName)
{
    return beginImage(volumeName) && addVideo(video, fileName);
}

bool DiscSessionWindows::beginImage(const QString &volumeName)
{
    VARIANT_BOOL blank = VARIANT_FALSE;
    if (!stepSucceeded(m_factory.create<MsftFileSystemImage>(m_image),
                       "CoCreateInstance MsftFileSystemImage") ||
        !stepSucceeded(m_image->get_Root(m_root.ReleaseAndGetAddressOf()), "get_Root") ||
        !stepSucceeded(m_data->get_MediaHeuristicallyBlank(&blank), "get_MediaHeuristicallyBlank"))
        return false;
    // Without it an image has the size of a CD. On a disc with data the import sets the size.
    const bool prepared =
        blank ? stepSucceeded(m_image->ChooseImageDefaults(m_recorder.Get()), "ChooseImageDefaults")
              : importFileSystem(m_data.Get(), m_image.Get());
    const ComString name(fittingTitle(volumeName));
    return prepared && stepSucceeded(m_image->put_VolumeName(name.get()), "put_VolumeName");
}

bool DiscSessionWindows::addVideo(const QString &video, const QString &fileName)
{
    // The stream's mode lets Windows delete what it has read, so it reads a link: the video keeps
    // its own name and its content, and whatever is deleted is the link.
    if (!m_link.create(video))
        return stepSucceeded(HRESULT_FROM_WIN32(m_link.lastError()), "SHCreateStreamOnFileEx");
    ComPtr<IStream> stream;
    const auto *path = reinterpret_cast<const wchar_t *>(m_link.path().utf16());
    return stepSucceeded(m_factory.openFile(path, kStreamMode, stream.ReleaseAndGetAddressOf()),
                         "SHCreateStreamOnFileEx") &&
           succeeded(m_root->AddFile(ComString(freeName(fileName)).get(), stream.Get()),
                     "AddFile failed, result: '%1'");
}

/// @p name, with a number where the root folder has it already.
QString DiscSessionWindows::freeName(const QString &name)
{
    const QFileInfo info(name);
    const QString ending = info.suffix().isEmpty() ? QString() : QLatin1Char('.') + info.suffix();
    QString free = name;
    for (int i = 2;; ++i) {
        FsiItemType type = FsiItemNotFound;
        const ComString path(QLatin1Char('\\') + free);
        if (FAILED(m_image->Exists(path.get(), &type)) || type == FsiItemNotFound)
            return free;
        free = QStringLiteral("%1 (%2)%3")
                   .arg(name.left(name.size() - ending.size()), QString::number(i), ending);
    }
}

bool DiscSessionWindows::finishImage(bool finalize)
{
    ComPtr<IFileSystemImageResult> result;
    return m_image &&
           stepSucceeded(m_image->CreateResultImage(result.ReleaseAndGetAddressOf()),
                         "CreateResultImage") &&
           stepSucceeded(result->get_ImageStream(m_stream.ReleaseAndGetAddressOf()),
                         "get_ImageStream") &&
           stepSucceeded(m_data->put_ForceMediaToBeClosed(finalize ? VARIANT_TRUE : VARIANT_FALSE),
                         "put_ForceMediaToBeClosed");
}

bool DiscSessionWindows::write(const DiscProgress &progress, const std::atomic_bool &cancelled)
{
    const auto report = [&](int current, int total) {
        progress(current, total);
        // Only while it tells of its progress the service lets itself be stopped.
        if (cancelled)
            m_data->CancelWrite();
    };
    const auto sink =
        makeSink<WriteEvents, DDiscFormat2DataEvents>(m_factory, "DDiscFormat2DataEvents", report);
    const EventConnection connection(m_data.Get(), __uuidof(DDiscFormat2DataEvents), sink.Get());
    qCInfo(lcPlatform) << "Burn writing";
    return succeeded(m_data->Write(m_stream.Get()), "Write failed, result: '%1'");
}

} // namespace velmora
