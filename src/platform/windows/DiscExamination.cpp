// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/DiscExamination.h"

#include "platform/windows/ComArray.h"
#include "platform/windows/ComResult.h"
#include "platform/windows/ComString.h"

namespace velmora
{

namespace
{

constexpr qint64 kBlock = 2048; // Bytes.

/// Room for an image that is set up for the disc.
qint64 freeBytes(IFileSystemImage *image)
{
    LONG blocks = 0;
    return stepSucceeded(image->get_FreeMediaBlocks(&blocks), "get_FreeMediaBlocks")
               ? blocks * kBlock
               : 0;
}

/// A disc takes a further session when the drive can write it as it is, the service can read and go
/// on with its file system, and there is room. A disc that is closed is read for its name alone, so
/// that the user knows what would be erased.
void examineContent(IDiscFormat2Data *data, IFileSystemImage *image, bool writable,
                    DiscMedia *media)
{
    if (!importFileSystem(data, image))
        return;
    ComString name;
    if (stepSucceeded(image->get_VolumeName(name.receive()), "get_VolumeName"))
        media->volumeName = name.toString();
    if (!writable)
        return;
    media->freeBytes = freeBytes(image);
    media->appendable = media->freeBytes > 0;
}

/// Whether the disc can be erased, and what room it then has if that is the only way.
void examineErasing(ImapiFactory &factory, IDiscRecorder2 *recorder, IDiscFormat2Data *data,
                    DiscMedia *media)
{
    ComPtr<IDiscFormat2Erase> eraser;
    VARIANT_BOOL supported = VARIANT_FALSE;
    if (!stepSucceeded(factory.create<MsftDiscFormat2Erase>(eraser),
                       "CoCreateInstance MsftDiscFormat2Erase") ||
        !stepSucceeded(eraser->IsCurrentMediaSupported(recorder, &supported),
                       "IsCurrentMediaSupported") ||
        !supported)
        return;
    LONG sectors = 0;
    if (!stepSucceeded(data->get_TotalSectorsOnMedia(&sectors), "get_TotalSectorsOnMedia"))
        return;
    media->erasable = true;
    if (!media->appendable)
        media->freeBytes = sectors * kBlock;
}

} // namespace

bool importFileSystem(IDiscFormat2Data *data, IFileSystemImage *image)
{
    ComArray sessions;
    FsiFileSystems imported = FsiFileSystemNone;
    return stepSucceeded(data->get_MultisessionInterfaces(sessions.receive()),
                         "get_MultisessionInterfaces") &&
           stepSucceeded(image->put_MultisessionInterfaces(sessions.get()),
                         "put_MultisessionInterfaces") &&
           stepSucceeded(image->ImportFileSystem(&imported), "ImportFileSystem");
}

DiscMedia examineDisc(ImapiFactory &factory, IDiscRecorder2 *recorder)
{
    DiscMedia media;
    ComPtr<IDiscFormat2Data> data;
    IMAPI_FORMAT2_DATA_MEDIA_STATE status = IMAPI_FORMAT2_DATA_MEDIA_STATE_UNKNOWN;
    VARIANT_BOOL blank = VARIANT_FALSE;
    if (!stepSucceeded(factory.create<MsftDiscFormat2Data>(data),
                       "CoCreateInstance MsftDiscFormat2Data") ||
        !stepSucceeded(data->put_Recorder(recorder), "put_Recorder") ||
        !stepSucceeded(data->get_CurrentMediaStatus(&status), "get_CurrentMediaStatus") ||
        status == IMAPI_FORMAT2_DATA_MEDIA_STATE_UNKNOWN ||
        !stepSucceeded(data->get_MediaHeuristicallyBlank(&blank), "get_MediaHeuristicallyBlank"))
        return media;
    media.present = true;
    media.blank = blank != VARIANT_FALSE;
    ComPtr<IFileSystemImage> image;
    if (!stepSucceeded(factory.create<MsftFileSystemImage>(image),
                       "CoCreateInstance MsftFileSystemImage"))
        return media;
    if (media.blank) {
        if (stepSucceeded(image->ChooseImageDefaults(recorder), "ChooseImageDefaults"))
            media.freeBytes = freeBytes(image.Get());
        return media;
    }
    const bool writable = (status & IMAPI_FORMAT2_DATA_MEDIA_STATE_UNSUPPORTED_MASK) == 0;
    examineContent(data.Get(), image.Get(), writable, &media);
    examineErasing(factory, recorder, data.Get(), &media);
    return media;
}

} // namespace velmora
