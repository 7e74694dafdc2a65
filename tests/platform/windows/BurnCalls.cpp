// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/BurnCalls.h"

namespace velmora
{

namespace
{

const char kOpen[] = "CoCreateInstance MsftDiscRecorder2\n"
                     "MsftDiscRecorder2 InitializeDiscRecorder drive0\n";
const char kErase[] = "CoCreateInstance MsftDiscFormat2Erase\n"
                      "MsftDiscFormat2Erase put_ClientName Velmora1\n"
                      "MsftDiscFormat2Erase put_Recorder MsftDiscRecorder2\n"
                      "MsftDiscFormat2Erase put_FullErase 0\n"
                      "LoadRegTypeLib\n"
                      "MsftDiscFormat2Erase QueryInterface\n"
                      "IConnectionPointContainer FindConnectionPoint DDiscFormat2EraseEvents\n"
                      "IConnectionPoint Advise\n"
                      "MsftDiscFormat2Erase EraseMedia\n";
const char kCheck[] = "CoCreateInstance MsftDiscFormat2Data\n"
                      "MsftDiscFormat2Data put_Recorder MsftDiscRecorder2\n"
                      "MsftDiscFormat2Data get_CurrentMediaStatus\n"
                      "MsftDiscFormat2Data put_ClientName Velmora2\n"
                      "MsftDiscFormat2Data get_SupportedMediaTypes\n"
                      "MsftDiscFormat2Data get_CurrentPhysicalMediaType\n";
const char kImage[] = "CoCreateInstance MsftFileSystemImage\n"
                      "MsftFileSystemImage get_Root\n"
                      "MsftDiscFormat2Data get_MediaHeuristicallyBlank\n";
const char kBlank[] = "MsftFileSystemImage ChooseImageDefaults MsftDiscRecorder2\n";
const char kImport[] = "MsftDiscFormat2Data get_MultisessionInterfaces\n"
                       "MsftFileSystemImage put_MultisessionInterfaces IMultisession\n"
                       "MsftFileSystemImage ImportFileSystem\n";
const char kFile[] = "MsftFileSystemImage put_VolumeName Sommer 2026\n"
                     "SHCreateStreamOnFileEx holiday.mp4 04000040\n"
                     "MsftFileSystemImage Exists \\film.mp4\n"
                     "IFsiDirectoryItem AddFile film.mp4, video\n";
const char kWrite[] = "MsftFileSystemImage CreateResultImage\n"
                      "IFileSystemImageResult get_ImageStream\n"
                      "MsftDiscFormat2Data put_ForceMediaToBeClosed 0\n"
                      "LoadRegTypeLib\n"
                      "MsftDiscFormat2Data QueryInterface\n"
                      "IConnectionPointContainer FindConnectionPoint DDiscFormat2DataEvents\n"
                      "IConnectionPoint Advise\n"
                      "MsftDiscFormat2Data Write image\n";

QStringList list(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace

QStringList checkCalls()
{
    return list(kOpen) + list(kCheck);
}

QStringList burnCalls(bool erase, bool blank)
{
    return list(kOpen) + (erase ? list(kErase) : QStringList()) + list(kCheck) + list(kImage) +
           list(blank ? kBlank : kImport) + list(kFile) + list(kWrite);
}

} // namespace velmora
