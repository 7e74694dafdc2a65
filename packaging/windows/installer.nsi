; SPDX-License-Identifier: GPL-3.0-or-later
; makensis -DVERSION=x.y.z -DSOURCE=FOLDER -DFILELIST=FILE -DOUTPUT=FILE.exe installer.nsi
; FILELIST holds the Delete and RMDir lines for everything in SOURCE, so that the uninstaller leaves
; files of others alone.
; Installs for the user who runs it, without administrator's rights.
; The program is for 64-bit Windows only, so the installer can be too.
Target amd64-unicode
ManifestDPIAware true
RequestExecutionLevel user
SetCompressor /SOLID lzma

!include MUI2.nsh
!include FileFunc.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Velmora"
!define PROGRAM_KEY "Software\Corvel\Corvel Velmora"
!define SESSION_KEY "Software\Corvel Velmora"
!define BROWSER_KEY "Software\Microsoft\Internet Explorer\Main\FeatureControl\FEATURE_BROWSER_EMULATION"
!define DOCUMENT "Velmora.Slideshow"

Name "Velmora"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Velmora"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Velmora"
VIAddVersionKey "FileDescription" "Velmora setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "CompanyName" "Corvel"
VIAddVersionKey "LegalCopyright" "GNU General Public License, version 3 or later"

!define MUI_ICON "${__FILEDIR__}/../../resources/velmora.ico"
!define MUI_UNICON "${__FILEDIR__}/../../resources/velmora.ico"
!define MUI_FINISHPAGE_RUN "$INSTDIR\velmora.exe"
!define MUI_FINISHPAGE_RUN_PARAMETERS "--inst"
!insertmacro MUI_PAGE_LICENSE "${SOURCE}/licences/Velmora.txt"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "German"
!insertmacro MUI_LANGUAGE "French"
!insertmacro MUI_LANGUAGE "Spanish"
!insertmacro MUI_LANGUAGE "Italian"
!insertmacro MUI_LANGUAGE "Polish"
!insertmacro MUI_LANGUAGE "Russian"
!insertmacro MUI_LANGUAGE "Japanese"
!insertmacro MUI_LANGUAGE "SimpChinese"

Section
  SetOutPath "$INSTDIR"
  File /r "${SOURCE}/*"
  CreateDirectory "$SMPROGRAMS\Velmora"
  CreateShortcut "$SMPROGRAMS\Velmora\Velmora.lnk" "$INSTDIR\velmora.exe"
  CreateShortcut "$SMPROGRAMS\Velmora\Uninstall Velmora.lnk" "$INSTDIR\uninstall.exe"

  ; Slideshow documents are JSON files, whose suffix other programs own: Velmora offers itself in
  ; "Open with" instead of taking the suffix away.
  WriteRegStr HKCU "Software\Classes\${DOCUMENT}" "" "Velmora slideshow"
  WriteRegStr HKCU "Software\Classes\${DOCUMENT}\DefaultIcon" "" "$INSTDIR\velmora.exe,0"
  WriteRegStr HKCU "Software\Classes\${DOCUMENT}\shell\open\command" "" '"$INSTDIR\velmora.exe" "%1"'
  WriteRegStr HKCU "Software\Classes\.json\OpenWithProgids" "${DOCUMENT}" ""
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'

  WriteRegStr HKCU "${PROGRAM_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${PROGRAM_KEY}" "CurrentVersion" "${VERSION}"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Velmora"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\velmora.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "Corvel"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" "$0"
SectionEnd

; Settings, history and videos are the user's and stay.
Section "Uninstall"
  !include "${FILELIST}"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  RMDir /r "$SMPROGRAMS\Velmora"
  DeleteRegKey HKCU "Software\Classes\${DOCUMENT}"
  DeleteRegValue HKCU "Software\Classes\.json\OpenWithProgids" "${DOCUMENT}"
  DeleteRegKey /ifempty HKCU "Software\Classes\.json\OpenWithProgids"
  DeleteRegKey /ifempty HKCU "Software\Classes\.json"
  DeleteRegValue HKCU "${PROGRAM_KEY}" "DisplayVersion"
  DeleteRegValue HKCU "${PROGRAM_KEY}" "CurrentVersion"
  DeleteRegKey /ifempty HKCU "${PROGRAM_KEY}"
  DeleteRegKey /ifempty HKCU "Software\Corvel"
  ; What the program itself leaves there.
  DeleteRegValue HKCU "${BROWSER_KEY}" "velmora.exe"
  DeleteRegKey /ifempty HKCU "${SESSION_KEY}\Sessions"
  DeleteRegKey /ifempty HKCU "${SESSION_KEY}"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
SectionEnd
