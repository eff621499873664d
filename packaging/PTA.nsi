; The installer, for one user and without an administrator's rights. ./package gives it:
;   VERSION   the program's version
;   STAGE     the folder with what is installed: x64, x86, common
;   OUTPUT    the installer's own file
;   PUBLISHER who publishes it
; Its switches and exit codes stand in docs/installing.md.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma

!include LogicLib.nsh
!include Sections.nsh
!include FileFunc.nsh
!include MUI2.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\PTA"
!define EXIT_WRONG_SWITCH 3
!define EXIT_IN_USE 4
!define EXIT_OTHER_TERMINAL 5
!define EXIT_NOT_REGISTERED 6

Name "PTA ${VERSION}"
OutFile "${OUTPUT}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\PTA"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
ShowInstDetails nevershow
ShowUninstDetails nevershow
; A file that cannot be written ends the installation; it is not left out in silence.
AllowSkipFiles off

VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "PTA"
VIAddVersionKey "CompanyName" "${PUBLISHER}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "PTA - Prepaid Ticket Advice, installer"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" ""

!define MUI_ICON "${SOURCE}/app/win32/PTA_QX.ico"
!define MUI_UNICON "${SOURCE}/app/win32/PTA_QX.ico"
!define MUI_COMPONENTSPAGE_SMALLDESC
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

Var Width     ; "x64" or "x86"; "auto" while that is not known
Var Practice  ; "yes" or "no"
Var Other     ; the server of an installed script library that is not ours, or ""

!include "${SOURCE}/packaging/common.nsh"

Section "-in use"
  !insertmacro StopWhenInUse ""
SectionEnd

Section "-older version"
  Call RemoveOlderVersion
SectionEnd

SectionGroup /e "PTA" SEC_PTA
  Section "64 bit" SEC_X64
    SetOutPath "$INSTDIR"
    File "${STAGE}/x64/PTA_QX.exe"
  SectionEnd
  Section /o "32 bit" SEC_X86
    SetOutPath "$INSTDIR"
    File "${STAGE}/x86/PTA_QX.exe"
  SectionEnd
SectionGroupEnd

Section /o "Practice terminal" SEC_PRACTICE
  SetOutPath "$INSTDIR"
  ${If} ${SectionIsSelected} ${SEC_X86}
    File "${STAGE}/x86/VantelPractice.exe"
  ${Else}
    File "${STAGE}/x64/VantelPractice.exe"
  ${EndIf}
  SetOutPath "$INSTDIR\pnrs"
  File "${STAGE}/common/pnrs/*"
  SetOutPath "$INSTDIR"
  ClearErrors
  ExecWait '"$INSTDIR\VantelPractice.exe" /regserver' $0
  ; A program that cannot be started leaves no exit code, and some systems say 0 for it.
  ${If} ${Errors}
    StrCpy $0 1
  ${EndIf}
  StrCpy $3 $0
  Call IsRegistered
  ${If} $3 <> 0
  ${OrIf} $0 != "yes"
    SetErrorLevel ${EXIT_NOT_REGISTERED}
    MessageBox MB_ICONEXCLAMATION "The practice terminal could not be registered, so that PTA does not find it." /SD IDOK
  ${EndIf}
  CreateDirectory "$SMPROGRAMS\PTA"
  CreateShortcut "$SMPROGRAMS\PTA\Practice terminal.lnk" "$INSTDIR\VantelPractice.exe"
SectionEnd

Section "-no practice terminal"
  ; It was there before and is not wanted any more.
  ${IfNot} ${SectionIsSelected} ${SEC_PRACTICE}
  ${AndIf} ${FileExists} "$INSTDIR\VantelPractice.exe"
    !insertmacro RemovePracticeTerminal ""
  ${EndIf}
SectionEnd

Section "-rest"
  SetOutPath "$INSTDIR"
  File "${STAGE}/common/PTA_QX.sample.ini"
  ; The settings are the user's from the first installation on.
  ${IfNot} ${FileExists} "$INSTDIR\PTA_QX.ini"
    CopyFiles /SILENT "$INSTDIR\PTA_QX.sample.ini" "$INSTDIR\PTA_QX.ini"
  ${EndIf}
  SetOutPath "$INSTDIR\docs"
  File /r "${STAGE}/common/docs/*"
  SetOutPath "$INSTDIR"
  File "${STAGE}/Installed.lst"
  CreateDirectory "$SMPROGRAMS\PTA"
  CreateShortcut "$SMPROGRAMS\PTA\PTA.lnk" "$INSTDIR\PTA_QX.exe"
  CreateShortcut "$SMPROGRAMS\PTA\Guides.lnk" "$INSTDIR\docs\index.html"
  WriteUninstaller "$INSTDIR\Uninstall.exe"
  CreateShortcut "$SMPROGRAMS\PTA\Uninstall PTA.lnk" "$INSTDIR\Uninstall.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "PTA"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "${PUBLISHER}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\PTA_QX.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
  ${If} ${SectionIsSelected} ${SEC_X86}
    WriteRegStr HKCU "${UNINSTALL_KEY}" "Width" "x86"
  ${Else}
    WriteRegStr HKCU "${UNINSTALL_KEY}" "Width" "x64"
  ${EndIf}
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${SEC_X64} "For a script library in a terminal program of its own, or a 64-bit one."
  !insertmacro MUI_DESCRIPTION_TEXT ${SEC_X86} "For a script library that is loaded into 32-bit programs."
  !insertmacro MUI_DESCRIPTION_TEXT ${SEC_PRACTICE} "For training, where no real terminal program is installed: a terminal without a host, and bookings to practise on."
!insertmacro MUI_FUNCTION_DESCRIPTION_END

; Behind the sections, whose numbers they use.
!include "${SOURCE}/packaging/choice.nsh"
!include "${SOURCE}/packaging/older.nsh"

Section "Uninstall"
  !insertmacro StopWhenInUse "un."
  ${If} ${FileExists} "$INSTDIR\VantelPractice.exe"
    !insertmacro RemovePracticeTerminal "un."
  ${EndIf}
  Call un.RemoveUntouchedSettings
  Delete "$INSTDIR\PTA_QX.sample.ini"
  Delete "$INSTDIR\PTA_QX.exe"
  !insertmacro RemoveListed "un." "docs"
  Delete "$INSTDIR\Installed.lst"
  Delete "$INSTDIR\Uninstall.exe"
  Delete "$SMPROGRAMS\PTA\PTA.lnk"
  Delete "$SMPROGRAMS\PTA\Guides.lnk"
  Delete "$SMPROGRAMS\PTA\Uninstall PTA.lnk"
  RMDir "$SMPROGRAMS\PTA"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  ; Stays when the user has files in it.
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"
SectionEnd
