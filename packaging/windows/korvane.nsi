; SPDX-License-Identifier: GPL-3.0-or-later
; The installer for Windows: for one person, without an administrator. scripts/windows calls it with
; VERSION, FOLDER (what is installed), ICONS and OUT.
Unicode true
!include "MUI2.nsh"
!include "FileFunc.nsh"

Name "KORVANE"
OutFile "${OUT}"
InstallDir "$LOCALAPPDATA\Programs\KORVANE"
InstallDirRegKey HKCU "Software\KORVANE" "Folder"
RequestExecutionLevel user
SetCompressor /SOLID lzma
ManifestDPIAware true
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "KORVANE"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Installs KORVANE, steel members to NS 3472"
VIAddVersionKey LegalCopyright "GPL-3.0-or-later"

!define MUI_ICON "${ICONS}/korvane.ico"
!define MUI_UNICON "${ICONS}/korvane.ico"
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!if /FileExists "${FOLDER}/korvane.exe"
  !define DESKTOP
  !define MUI_FINISHPAGE_RUN "$INSTDIR\korvane.exe"
!endif
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\KORVANE"
!define CLASSES "Software\Classes"

!macro TellTheShell
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

Section
  ; What an older version had and this one hasn't would stay.
  IfFileExists "$INSTDIR\korvane-cli.exe" 0 +2
    RMDir /r "$INSTDIR\help"
  SetOutPath "$INSTDIR"
  File /r "${FOLDER}/*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKCU "Software\KORVANE" "Folder" "$INSTDIR"

!ifdef DESKTOP
  CreateShortcut "$SMPROGRAMS\KORVANE.lnk" "$INSTDIR\korvane.exe"
  WriteRegStr HKCU "${CLASSES}\.kvn" "" "Korvane.Project"
  WriteRegStr HKCU "${CLASSES}\.kvn\OpenWithProgids" "Korvane.Project" ""
  WriteRegStr HKCU "${CLASSES}\Korvane.Project" "" "KORVANE project"
  WriteRegStr HKCU "${CLASSES}\Korvane.Project\DefaultIcon" "" "$INSTDIR\korvane.exe,1"
  WriteRegStr HKCU "${CLASSES}\Korvane.Project\shell\open\command" "" '"$INSTDIR\korvane.exe" "%1"'
!endif

  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "KORVANE"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\korvane-cli.exe,0"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  IntFmt $0 "0x%08X" $0
  WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" "$0"
  !insertmacro TellTheShell
SectionEnd

Section "Uninstall"
  ; Only what was installed: a person may have kept files of their own in the folder.
  !include "${LIST}"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\KORVANE.lnk"
  ; Places of windows go with the program; the person's defaults and sections stay.
  Delete "$APPDATA\Korvane_ns\Korvane_ns.ini"
  RMDir "$APPDATA\Korvane_ns"
  DeleteRegKey HKCU "${UNINSTALL}"
  DeleteRegKey HKCU "Software\KORVANE"
  ReadRegStr $0 HKCU "${CLASSES}\.kvn" ""
  StrCmp $0 "Korvane.Project" 0 +2
    DeleteRegKey HKCU "${CLASSES}\.kvn"
  DeleteRegValue HKCU "${CLASSES}\.kvn\OpenWithProgids" "Korvane.Project"
  DeleteRegKey HKCU "${CLASSES}\Korvane.Project"
  !insertmacro TellTheShell
SectionEnd
