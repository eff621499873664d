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

; The server of the script library that is registered, in $0, and in $1 whether only 32-bit programs
; can load it.
!macro DefineFindLibrary un
  Function ${un}FindLibrary
    StrCpy $0 ""
    StrCpy $1 "no"
    SetRegView 64
    ReadRegStr $2 HKCR "Vantel.ScriptGlobal\CLSID" ""
    ${If} $2 == ""
      Return
    ${EndIf}
    ReadRegStr $0 HKCR "CLSID\$2\LocalServer32" ""
    ${If} $0 == ""
      ReadRegStr $0 HKCR "CLSID\$2\InprocServer32" ""
    ${EndIf}
    ${If} $0 == ""
      SetRegView 32
      ReadRegStr $0 HKCR "CLSID\$2\LocalServer32" ""
      ${If} $0 == ""
        ReadRegStr $0 HKCR "CLSID\$2\InprocServer32" ""
        ${If} $0 != ""
          StrCpy $1 "yes"
        ${EndIf}
      ${EndIf}
      SetRegView 64
    ${EndIf}
  FunctionEnd
!macroend
!insertmacro DefineFindLibrary ""
!insertmacro DefineFindLibrary "un."

!macro DefineRegistration un
  ; In $0 whether the installed practice terminal is the registered one, "yes" or "no".
  Function ${un}IsRegistered
    Call ${un}FindLibrary
    ${If} $0 == '"$INSTDIR\VantelPractice.exe"'
      StrCpy $0 "yes"
    ${Else}
      StrCpy $0 "no"
    ${EndIf}
  FunctionEnd

  ; Has it take its registration back, which only a program of its width can. In $0 "yes" when it is
  ; registered still.
  Function ${un}TakeRegistrationBack
    ExecWait '"$INSTDIR\VantelPractice.exe" /unregserver'
    Call ${un}IsRegistered
  FunctionEnd

  Function ${un}SayStillRegistered
    SetErrorLevel ${EXIT_NOT_REGISTERED}
    MessageBox MB_ICONEXCLAMATION "The registration of the practice terminal could not be taken back." /SD IDOK
  FunctionEnd
!macroend
!insertmacro DefineRegistration ""
!insertmacro DefineRegistration "un."

; Bookings that the user put beside ours stay.
!macro RemovePracticeTerminal un
  Call ${un}TakeRegistrationBack
  ${If} $0 == "yes"
    Call ${un}SayStillRegistered
  ${EndIf}
  Delete "$INSTDIR\VantelPractice.exe"
  !insertmacro RemoveListed "${un}" "pnrs"
  Delete "$SMPROGRAMS\PTA\Practice terminal.lnk"
  ; What it kept of its practice sessions.
  DeleteRegKey HKCU "Software\VantelPractice"
!macroend

; Removes what the installed version's list names in one of its folders, and no other file; then the
; folder, when nothing else is in it.
!macro RemoveListed un folder
  Push "${folder}\"
  Call ${un}RemoveListedBelow
  RMDir "$INSTDIR\${folder}"
!macroend

!macro DefineRemoveListedBelow un
  Function ${un}RemoveListedBelow
    Exch $0
    StrLen $1 $0
    ClearErrors
    FileOpen $2 "$INSTDIR\Installed.lst" r
    ${IfNot} ${Errors}
      ${Do}
        ClearErrors
        FileRead $2 $3
        ${If} ${Errors}
          ${ExitDo}
        ${EndIf}
        ; Without the line's end.
        StrCpy $3 $3 -2
        StrCpy $4 $3 $1
        ${If} $4 == $0
          Delete "$INSTDIR\$3"
          RMDir "$INSTDIR\$3"
        ${EndIf}
      ${Loop}
      FileClose $2
    ${EndIf}
    Pop $0
  FunctionEnd
!macroend
!insertmacro DefineRemoveListedBelow ""
!insertmacro DefineRemoveListedBelow "un."

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
