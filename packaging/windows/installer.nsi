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
!include LogicLib.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Velmora"
!define PROGRAM_KEY "Software\Corvel\Corvel Velmora"
!define SESSION_KEY "Software\Corvel Velmora"
!define BROWSER_KEY "Software\Microsoft\Internet Explorer\Main\FeatureControl\FEATURE_BROWSER_EMULATION"
!define DOCUMENT "Velmora.Slideshow"
; The program's own data folder.
!define DATA_FOLDER "$APPDATA\Corvel\Corvel Velmora"

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
!define MUI_LANGDLL_ALLLANGUAGES
!define MUI_LANGDLL_REGISTRY_ROOT HKCU
!define MUI_LANGDLL_REGISTRY_KEY "${UNINSTALL_KEY}"
!define MUI_LANGDLL_REGISTRY_VALUENAME "Language"
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
!insertmacro MUI_RESERVEFILE_LANGDLL

; As the program names them.
LangString CODE ${LANG_ENGLISH} "en"
LangString CODE ${LANG_GERMAN} "de"
LangString CODE ${LANG_FRENCH} "fr"
LangString CODE ${LANG_SPANISH} "es"
LangString CODE ${LANG_ITALIAN} "it"
LangString CODE ${LANG_POLISH} "pl"
LangString CODE ${LANG_RUSSIAN} "ru"
LangString CODE ${LANG_JAPANESE} "ja"
LangString CODE ${LANG_SIMPCHINESE} "zh"

LangString CLOSE_FIRST ${LANG_ENGLISH} "Velmora is running. Close it, and then try again."
LangString CLOSE_FIRST ${LANG_GERMAN} "Velmora läuft noch. Schließen Sie das Programm und versuchen Sie es dann noch einmal."
LangString CLOSE_FIRST ${LANG_FRENCH} "Velmora est en cours d'exécution. Fermez-le, puis réessayez."
LangString CLOSE_FIRST ${LANG_SPANISH} "Velmora está en ejecución. Ciérrelo y vuelva a intentarlo."
LangString CLOSE_FIRST ${LANG_ITALIAN} "Velmora è in esecuzione. Chiuderlo e riprovare."
LangString CLOSE_FIRST ${LANG_POLISH} "Program Velmora jest uruchomiony. Zamknij go i spróbuj ponownie."
LangString CLOSE_FIRST ${LANG_RUSSIAN} "Программа Velmora запущена. Закройте её и повторите попытку."
LangString CLOSE_FIRST ${LANG_JAPANESE} "Velmora が実行中です。終了してから、もう一度お試しください。"
LangString CLOSE_FIRST ${LANG_SIMPCHINESE} "Velmora 正在运行。请先关闭它，然后重试。"

; A program that runs cannot be replaced or deleted: its file does not open for writing. Waits until
; the user has closed it, or gives up.
!macro WAIT_UNTIL_CLOSED FOLDER
  ${Do}
    ClearErrors
    ${IfNot} ${FileExists} "${FOLDER}\velmora.exe"
      ${ExitDo}
    ${EndIf}
    FileOpen $0 "${FOLDER}\velmora.exe" a
    ${IfNot} ${Errors}
      FileClose $0
      ${ExitDo}
    ${EndIf}
    ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(CLOSE_FIRST)" /SD IDCANCEL IDCANCEL`
      Abort "$(CLOSE_FIRST)"
    ${EndIf}
  ${Loop}
!macroend

; Silent installations are not asked.
Function .onInit
  !insertmacro MUI_LANGDLL_DISPLAY
FunctionEnd

Function un.onInit
  !insertmacro MUI_UNGETLANGUAGE
FunctionEnd

Section
  ; Files that this version has no more must not stay, wherever the one before was installed.
  ReadRegStr $1 HKCU "${UNINSTALL_KEY}" "InstallLocation"
  ${If} $1 != ""
  ${AndIf} ${FileExists} "$1\uninstall.exe"
    !insertmacro WAIT_UNTIL_CLOSED "$1"
    ; The last argument has it run in its place instead of from a copy, so that its end is waited for.
    ExecWait '"$1\uninstall.exe" /S _?=$1'
    Delete "$1\uninstall.exe"
    RMDir "$1"
  ${EndIf}
  !insertmacro WAIT_UNTIL_CLOSED "$INSTDIR"

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

  ; The program takes over the chosen language when it first runs; later it is set there.
  ${IfNot} ${Silent}
  ${AndIfNot} ${FileExists} "${DATA_FOLDER}\settings.ini"
    CreateDirectory "${DATA_FOLDER}"
    WriteINIStr "${DATA_FOLDER}\settings.ini" "General" "lang" "$(CODE)"
  ${EndIf}

  WriteRegStr HKCU "${PROGRAM_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${PROGRAM_KEY}" "CurrentVersion" "${VERSION}"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Velmora"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\velmora.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "Corvel"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  ; Also without pages, so that the uninstaller does not ask.
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Language" "$LANGUAGE"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" "$0"
SectionEnd

; Settings, history and videos are the user's and stay.
Section "Uninstall"
  !insertmacro WAIT_UNTIL_CLOSED "$INSTDIR"
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
