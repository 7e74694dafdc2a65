// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <oaidl.h>
#include <objidl.h>

// The interfaces of the Image Mastering API, version 2, that burning uses, as Microsoft documents
// them, since the headers of MinGW-w64 lack them. The order of the functions is the binary
// interface: those that are never called keep the places of those that are.

enum IMAPI_MEDIA_PHYSICAL_TYPE : int;
enum IMAPI_MEDIA_WRITE_PROTECT_STATE : int;
enum IMAPI_FORMAT2_DATA_WRITE_ACTION : int;
enum IMAPI_FORMAT2_DATA_MEDIA_STATE : int {
    IMAPI_FORMAT2_DATA_MEDIA_STATE_UNKNOWN = 0,
    IMAPI_FORMAT2_DATA_MEDIA_STATE_UNSUPPORTED_MASK = 0xfc00,
};
enum FsiItemType : int { FsiItemNotFound = 0 };
enum FsiFileSystems : int { FsiFileSystemNone = 0 };

struct IBootOptions;
struct IEnumFsiItems;
struct IFsiFileItem;
struct IProgressItems;

struct IDiscMaster2 : public IDispatch {
    virtual HRESULT STDMETHODCALLTYPE get__NewEnum(IEnumVARIANT **value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Item(LONG index, BSTR *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Count(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_IsSupportedEnvironment(VARIANT_BOOL *value) = 0;
};

struct IDiscRecorder2 : public IDispatch {
    virtual HRESULT STDMETHODCALLTYPE EjectMedia() = 0;
    virtual HRESULT STDMETHODCALLTYPE CloseTray() = 0;
    virtual HRESULT STDMETHODCALLTYPE AcquireExclusiveAccess(VARIANT_BOOL force, BSTR name) = 0;
    virtual HRESULT STDMETHODCALLTYPE ReleaseExclusiveAccess() = 0;
    virtual HRESULT STDMETHODCALLTYPE DisableMcn() = 0;
    virtual HRESULT STDMETHODCALLTYPE EnableMcn() = 0;
    virtual HRESULT STDMETHODCALLTYPE InitializeDiscRecorder(BSTR uniqueId) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ActiveDiscRecorder(BSTR *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_VendorId(BSTR *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ProductId(BSTR *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ProductRevision(BSTR *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_VolumeName(BSTR *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_VolumePathNames(SAFEARRAY **value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_DeviceCanLoadMedia(VARIANT_BOOL *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_LegacyDeviceNumber(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_SupportedFeaturePages(SAFEARRAY **value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_CurrentFeaturePages(SAFEARRAY **value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_SupportedProfiles(SAFEARRAY **value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_CurrentProfiles(SAFEARRAY **value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_SupportedModePages(SAFEARRAY **value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ExclusiveAccessOwner(BSTR *value) = 0;
};

struct IDiscFormat2 : public IDispatch {
    virtual HRESULT STDMETHODCALLTYPE IsRecorderSupported(IDiscRecorder2 *recorder,
                                                          VARIANT_BOOL *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE IsCurrentMediaSupported(IDiscRecorder2 *recorder,
                                                              VARIANT_BOOL *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_MediaPhysicallyBlank(VARIANT_BOOL *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_MediaHeuristicallyBlank(VARIANT_BOOL *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_SupportedMediaTypes(SAFEARRAY **value) = 0;
};

struct IDiscFormat2Erase : public IDiscFormat2 {
    virtual HRESULT STDMETHODCALLTYPE put_Recorder(IDiscRecorder2 *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Recorder(IDiscRecorder2 **value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_FullErase(VARIANT_BOOL value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_FullErase(VARIANT_BOOL *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE
    get_CurrentPhysicalMediaType(IMAPI_MEDIA_PHYSICAL_TYPE *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_ClientName(BSTR value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ClientName(BSTR *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE EraseMedia() = 0;
};

struct IDiscFormat2Data : public IDiscFormat2 {
    virtual HRESULT STDMETHODCALLTYPE put_Recorder(IDiscRecorder2 *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Recorder(IDiscRecorder2 **value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_BufferUnderrunFreeDisabled(VARIANT_BOOL value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_BufferUnderrunFreeDisabled(VARIANT_BOOL *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_PostgapAlreadyInImage(VARIANT_BOOL value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_PostgapAlreadyInImage(VARIANT_BOOL *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE
    get_CurrentMediaStatus(IMAPI_FORMAT2_DATA_MEDIA_STATE *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE
    get_WriteProtectStatus(IMAPI_MEDIA_WRITE_PROTECT_STATE *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_TotalSectorsOnMedia(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_FreeSectorsOnMedia(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_NextWritableAddress(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_StartAddressOfPreviousSession(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_LastWrittenAddressOfPreviousSession(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_ForceMediaToBeClosed(VARIANT_BOOL value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ForceMediaToBeClosed(VARIANT_BOOL *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE
    put_DisableConsumerDvdCompatibilityMode(VARIANT_BOOL value) = 0;
    virtual HRESULT STDMETHODCALLTYPE
    get_DisableConsumerDvdCompatibilityMode(VARIANT_BOOL *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE
    get_CurrentPhysicalMediaType(IMAPI_MEDIA_PHYSICAL_TYPE *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_ClientName(BSTR value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ClientName(BSTR *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_RequestedWriteSpeed(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_RequestedRotationTypeIsPureCAV(VARIANT_BOOL *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_CurrentWriteSpeed(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_CurrentRotationTypeIsPureCAV(VARIANT_BOOL *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_SupportedWriteSpeeds(SAFEARRAY **value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_SupportedWriteSpeedDescriptors(SAFEARRAY **value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_ForceOverwrite(VARIANT_BOOL value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ForceOverwrite(VARIANT_BOOL *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_MultisessionInterfaces(SAFEARRAY **value) = 0;
    virtual HRESULT STDMETHODCALLTYPE Write(IStream *data) = 0;
    virtual HRESULT STDMETHODCALLTYPE CancelWrite() = 0;
    virtual HRESULT STDMETHODCALLTYPE SetWriteSpeed(LONG sectorsPerSecond,
                                                    VARIANT_BOOL pureCav) = 0;
};

struct IWriteEngine2EventArgs : public IDispatch {
    virtual HRESULT STDMETHODCALLTYPE get_StartLba(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_SectorCount(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_LastReadLba(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_LastWrittenLba(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_TotalSystemBuffer(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_UsedSystemBuffer(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_FreeSystemBuffer(LONG *value) = 0;
};

struct IDiscFormat2DataEventArgs : public IWriteEngine2EventArgs {
    virtual HRESULT STDMETHODCALLTYPE get_ElapsedTime(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_RemainingTime(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_TotalTime(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_CurrentAction(IMAPI_FORMAT2_DATA_WRITE_ACTION *value) = 0;
};

struct DDiscFormat2DataEvents : public IDispatch {
    virtual HRESULT STDMETHODCALLTYPE Update(IDispatch *object, IDispatch *progress) = 0;
};

struct DDiscFormat2EraseEvents : public IDispatch {
    virtual HRESULT STDMETHODCALLTYPE Update(IDispatch *object, LONG elapsedSeconds,
                                             LONG estimatedTotalSeconds) = 0;
};

struct IFsiItem : public IDispatch {
    virtual HRESULT STDMETHODCALLTYPE get_Name(BSTR *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_FullPath(BSTR *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_CreationTime(DATE *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_CreationTime(DATE value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_LastAccessedTime(DATE *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_LastAccessedTime(DATE value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_LastModifiedTime(DATE *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_LastModifiedTime(DATE value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_IsHidden(VARIANT_BOOL *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_IsHidden(VARIANT_BOOL value) = 0;
    virtual HRESULT STDMETHODCALLTYPE FileSystemName(FsiFileSystems fileSystem, BSTR *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE FileSystemPath(FsiFileSystems fileSystem, BSTR *value) = 0;
};

struct IFsiDirectoryItem : public IFsiItem {
    virtual HRESULT STDMETHODCALLTYPE get__NewEnum(IEnumVARIANT **value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Item(BSTR path, IFsiItem **item) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Count(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_EnumFsiItems(IEnumFsiItems **value) = 0;
    virtual HRESULT STDMETHODCALLTYPE AddDirectory(BSTR path) = 0;
    virtual HRESULT STDMETHODCALLTYPE AddFile(BSTR path, IStream *fileData) = 0;
    virtual HRESULT STDMETHODCALLTYPE AddTree(BSTR folder, VARIANT_BOOL includeBaseFolder) = 0;
    virtual HRESULT STDMETHODCALLTYPE Add(IFsiItem *item) = 0;
    virtual HRESULT STDMETHODCALLTYPE Remove(BSTR path) = 0;
    virtual HRESULT STDMETHODCALLTYPE RemoveTree(BSTR path) = 0;
};

struct IFileSystemImageResult : public IDispatch {
    virtual HRESULT STDMETHODCALLTYPE get_ImageStream(IStream **value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ProgressItems(IProgressItems **value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_TotalBlocks(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_BlockSize(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_DiscId(BSTR *value) = 0;
};

struct IFileSystemImage : public IDispatch {
    virtual HRESULT STDMETHODCALLTYPE get_Root(IFsiDirectoryItem **value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_SessionStartBlock(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_SessionStartBlock(LONG value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_FreeMediaBlocks(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_FreeMediaBlocks(LONG value) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetMaxMediaBlocksFromDevice(IDiscRecorder2 *recorder) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_UsedBlocks(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_VolumeName(BSTR *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_VolumeName(BSTR value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ImportedVolumeName(BSTR *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_BootImageOptions(IBootOptions **value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_BootImageOptions(IBootOptions *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_FileCount(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_DirectoryCount(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_WorkingDirectory(BSTR *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_WorkingDirectory(BSTR value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ChangePoint(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_StrictFileSystemCompliance(VARIANT_BOOL *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_StrictFileSystemCompliance(VARIANT_BOOL value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_UseRestrictedCharacterSet(VARIANT_BOOL *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_UseRestrictedCharacterSet(VARIANT_BOOL value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_FileSystemsToCreate(FsiFileSystems *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_FileSystemsToCreate(FsiFileSystems value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_FileSystemsSupported(FsiFileSystems *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_UDFRevision(LONG value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_UDFRevision(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_UDFRevisionsSupported(SAFEARRAY **value) = 0;
    virtual HRESULT STDMETHODCALLTYPE ChooseImageDefaults(IDiscRecorder2 *recorder) = 0;
    virtual HRESULT STDMETHODCALLTYPE
    ChooseImageDefaultsForMediaType(IMAPI_MEDIA_PHYSICAL_TYPE value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_ISO9660InterchangeLevel(LONG value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ISO9660InterchangeLevel(LONG *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ISO9660InterchangeLevelsSupported(SAFEARRAY **value) = 0;
    virtual HRESULT STDMETHODCALLTYPE CreateResultImage(IFileSystemImageResult **value) = 0;
    virtual HRESULT STDMETHODCALLTYPE Exists(BSTR fullPath, FsiItemType *itemType) = 0;
    virtual HRESULT STDMETHODCALLTYPE CalculateDiscIdentifier(BSTR *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE IdentifyFileSystemsOnDisc(IDiscRecorder2 *recorder,
                                                                FsiFileSystems *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetDefaultFileSystemForImport(FsiFileSystems fileSystems,
                                                                    FsiFileSystems *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE ImportFileSystem(FsiFileSystems *imported) = 0;
    virtual HRESULT STDMETHODCALLTYPE ImportSpecificFileSystem(FsiFileSystems fileSystem) = 0;
    virtual HRESULT STDMETHODCALLTYPE RollbackToChangePoint(LONG changePoint) = 0;
    virtual HRESULT STDMETHODCALLTYPE LockInChangePoint() = 0;
    virtual HRESULT STDMETHODCALLTYPE CreateDirectoryItem(BSTR name, IFsiDirectoryItem **item) = 0;
    virtual HRESULT STDMETHODCALLTYPE CreateFileItem(BSTR name, IFsiFileItem **item) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_VolumeNameUDF(BSTR *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_VolumeNameJoliet(BSTR *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_VolumeNameISO9660(BSTR *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_StageFiles(VARIANT_BOOL *value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_StageFiles(VARIANT_BOOL value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_MultisessionInterfaces(SAFEARRAY **value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_MultisessionInterfaces(SAFEARRAY *value) = 0;
};

// The classes have no declaration but their identifier.
struct MsftDiscMaster2;
struct MsftDiscRecorder2;
struct MsftDiscFormat2Erase;
struct MsftDiscFormat2Data;
struct MsftFileSystemImage;

// clang-format off
__CRT_UUID_DECL(IDiscMaster2, 0x27354130, 0x7f64, 0x5b0f, 0x8f, 0x00, 0x5d, 0x77, 0xaf, 0xbe, 0x26, 0x1e)
__CRT_UUID_DECL(IDiscRecorder2, 0x27354133, 0x7f64, 0x5b0f, 0x8f, 0x00, 0x5d, 0x77, 0xaf, 0xbe, 0x26, 0x1e)
__CRT_UUID_DECL(IDiscFormat2, 0x27354152, 0x8f64, 0x5b0f, 0x8f, 0x00, 0x5d, 0x77, 0xaf, 0xbe, 0x26, 0x1e)
__CRT_UUID_DECL(IDiscFormat2Erase, 0x27354156, 0x8f64, 0x5b0f, 0x8f, 0x00, 0x5d, 0x77, 0xaf, 0xbe, 0x26, 0x1e)
__CRT_UUID_DECL(IDiscFormat2Data, 0x27354153, 0x9f64, 0x5b0f, 0x8f, 0x00, 0x5d, 0x77, 0xaf, 0xbe, 0x26, 0x1e)
__CRT_UUID_DECL(IDiscFormat2DataEventArgs, 0x2735413d, 0x7f64, 0x5b0f, 0x8f, 0x00, 0x5d, 0x77, 0xaf, 0xbe, 0x26, 0x1e)
__CRT_UUID_DECL(DDiscFormat2DataEvents, 0x2735413c, 0x7f64, 0x5b0f, 0x8f, 0x00, 0x5d, 0x77, 0xaf, 0xbe, 0x26, 0x1e)
__CRT_UUID_DECL(DDiscFormat2EraseEvents, 0x2735413a, 0x7f64, 0x5b0f, 0x8f, 0x00, 0x5d, 0x77, 0xaf, 0xbe, 0x26, 0x1e)
__CRT_UUID_DECL(IFsiDirectoryItem, 0x2c941fdc, 0x975b, 0x59be, 0xa9, 0x60, 0x9a, 0x2a, 0x26, 0x28, 0x53, 0xa5)
__CRT_UUID_DECL(IFileSystemImageResult, 0x2c941fd8, 0x975b, 0x59be, 0xa9, 0x60, 0x9a, 0x2a, 0x26, 0x28, 0x53, 0xa5)
__CRT_UUID_DECL(IFileSystemImage, 0x2c941fe1, 0x975b, 0x59be, 0xa9, 0x60, 0x9a, 0x2a, 0x26, 0x28, 0x53, 0xa5)
__CRT_UUID_DECL(MsftDiscMaster2, 0x2735412e, 0x7f64, 0x5b0f, 0x8f, 0x00, 0x5d, 0x77, 0xaf, 0xbe, 0x26, 0x1e)
__CRT_UUID_DECL(MsftDiscRecorder2, 0x2735412d, 0x7f64, 0x5b0f, 0x8f, 0x00, 0x5d, 0x77, 0xaf, 0xbe, 0x26, 0x1e)
__CRT_UUID_DECL(MsftDiscFormat2Erase, 0x2735412b, 0x7f64, 0x5b0f, 0x8f, 0x00, 0x5d, 0x77, 0xaf, 0xbe, 0x26, 0x1e)
__CRT_UUID_DECL(MsftDiscFormat2Data, 0x2735412a, 0x7f64, 0x5b0f, 0x8f, 0x00, 0x5d, 0x77, 0xaf, 0xbe, 0x26, 0x1e)
__CRT_UUID_DECL(MsftFileSystemImage, 0x2c941fc5, 0x975b, 0x59be, 0xa9, 0x60, 0x9a, 0x2a, 0x26, 0x28, 0x53, 0xa5)
// clang-format on

constexpr GUID LIBID_IMAPILib2 = {
    0x2735412f, 0x7f64, 0x5b0f, {0x8f, 0x00, 0x5d, 0x77, 0xaf, 0xbe, 0x26, 0x1e}};
