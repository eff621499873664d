; Takes away what an older version installed, before this one's files come: what this one does not
; have any more, and what it keeps elsewhere. Settings and files of the user's stay.

Function RemoveOlderVersion
  ${If} ${FileExists} "$INSTDIR\VantelPractice.exe"
    Call TakeRegistrationBack
    ${If} $0 == "yes"
      ; One of the same width is written over below.
      Call IsOtherWidth
      ${If} $0 == "yes"
        Call SayStillRegistered
      ${EndIf}
    ${EndIf}
    !insertmacro RemoveListed "" "pnrs"
  ${EndIf}
  !insertmacro RemoveListed "" "docs"
FunctionEnd

; In $0 "yes" when the installed version is not as wide as the one that is chosen.
Function IsOtherWidth
  ReadRegStr $1 HKCU "${UNINSTALL_KEY}" "Width"
  StrCpy $2 "x64"
  ${If} ${SectionIsSelected} ${SEC_X86}
    StrCpy $2 "x86"
  ${EndIf}
  StrCpy $0 "no"
  ${If} $1 != $2
    StrCpy $0 "yes"
  ${EndIf}
FunctionEnd
