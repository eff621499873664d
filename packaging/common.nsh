; What the installer and the uninstaller share.

; Ends with EXIT_IN_USE, before anything is changed, when one of the programs runs: its file cannot be
; written then.
!macro StopWhenInUse un
  Push "$INSTDIR\PTA_QX.exe"
  Call ${un}StopWhenFileInUse
  Push "$INSTDIR\VantelPractice.exe"
  Call ${un}StopWhenFileInUse
!macroend

!macro DefineStopWhenFileInUse un
  Function ${un}StopWhenFileInUse
    Exch $0
    Push $1
    ${Do}
      ${IfNot} ${FileExists} "$0"
        ${ExitDo}
      ${EndIf}
      ClearErrors
      FileOpen $1 "$0" a
      ${IfNot} ${Errors}
        FileClose $1
        ${ExitDo}
      ${EndIf}
      MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$0 is in use. Close it and try again." /SD IDCANCEL IDRETRY +3
      SetErrorLevel ${EXIT_IN_USE}
      Quit
    ${Loop}
    Pop $1
    Pop $0
  FunctionEnd
!macroend
!insertmacro DefineStopWhenFileInUse ""
!insertmacro DefineStopWhenFileInUse "un."

; Bookings that the user put beside ours stay.
!macro RemovePracticeTerminal
  ExecWait '"$INSTDIR\VantelPractice.exe" /unregserver'
  Delete "$INSTDIR\VantelPractice.exe"
  !include "${STAGE}/remove-pnrs.nsh"
  RMDir "$INSTDIR\pnrs"
  Delete "$SMPROGRAMS\PTA\Practice terminal.lnk"
  ; What it kept of its practice sessions.
  DeleteRegKey HKCU "Software\VantelPractice"
!macroend

; The settings as we brought them are no file of the user's.
Function un.RemoveUntouchedSettings
  StrCpy $2 ""
  ClearErrors
  FileOpen $0 "$INSTDIR\PTA_QX.ini" r
  FileOpen $1 "$INSTDIR\PTA_QX.sample.ini" r
  ${IfNot} ${Errors}
    ${Do}
      ClearErrors
      FileReadByte $0 $2
      ${If} ${Errors}
        StrCpy $2 "end"
      ${EndIf}
      ClearErrors
      FileReadByte $1 $3
      ${If} ${Errors}
        StrCpy $3 "end"
      ${EndIf}
      ${If} $2 != $3
      ${OrIf} $2 == "end"
        ${ExitDo}
      ${EndIf}
    ${Loop}
  ${EndIf}
  FileClose $0
  FileClose $1
  ${If} $2 == $3
  ${AndIf} $2 == "end"
    Delete "$INSTDIR\PTA_QX.ini"
  ${EndIf}
FunctionEnd
