; Which width, and whether with the practice terminal: by the switches, by what was installed before,
; by what is on the machine.

Function WrongSwitch
  MessageBox MB_ICONSTOP "/WIDTH is x64, x86 or auto; /PRACTICE is yes or no." /SD IDOK
  SetErrorLevel ${EXIT_WRONG_SWITCH}
  Quit
FunctionEnd

Function ReadSwitches
  ${GetParameters} $R0
  ClearErrors
  ${GetOptions} $R0 "/WIDTH=" $Width
  ${If} ${Errors}
    ReadRegStr $Width HKCU "${UNINSTALL_KEY}" "Width"
    ${If} $Width == ""
      StrCpy $Width "auto"
    ${EndIf}
  ${ElseIf} $Width != "x64"
  ${AndIf} $Width != "x86"
  ${AndIf} $Width != "auto"
    Call WrongSwitch
  ${EndIf}
  ClearErrors
  ${GetOptions} $R0 "/PRACTICE=" $Practice
  ${If} ${Errors}
    StrCpy $Practice "no"
    ${If} ${FileExists} "$INSTDIR\VantelPractice.exe"
      StrCpy $Practice "yes"
    ${EndIf}
  ${ElseIf} $Practice != "yes"
  ${AndIf} $Practice != "no"
    Call WrongSwitch
  ${EndIf}
FunctionEnd

; Both bear the same names, so that the practice terminal would stand in the real one's place.
Function StopBesideOtherTerminal
  MessageBox MB_ICONSTOP "Another terminal program offers its script library on this machine ($Other). The practice terminal would take its place." /SD IDOK
  SetErrorLevel ${EXIT_OTHER_TERMINAL}
  Quit
FunctionEnd

Function .onInit
  Call ReadSwitches
  Call FindLibrary
  StrCpy $Other $0
  ${GetFileName} '$0' $2
  ${If} $2 == "VantelPractice.exe"
  ${OrIf} $2 == 'VantelPractice.exe"'
    StrCpy $Other ""
  ${EndIf}
  ${If} $Width == "auto"
    StrCpy $Width "x64"
    ${If} $1 == "yes"
      StrCpy $Width "x86"
    ${EndIf}
  ${EndIf}
  ${If} $Practice == "yes"
    ${If} $Other != ""
      Call StopBesideOtherTerminal
    ${EndIf}
    !insertmacro SelectSection ${SEC_PRACTICE}
  ${EndIf}
  ${If} $Other != ""
    !insertmacro SetSectionFlag ${SEC_PRACTICE} ${SF_RO}
    SectionSetText ${SEC_PRACTICE} "Practice terminal (another terminal is installed)"
  ${EndIf}
  StrCpy $9 ${SEC_X64}
  ${If} $Width == "x86"
    !insertmacro UnselectSection ${SEC_X64}
    !insertmacro SelectSection ${SEC_X86}
    StrCpy $9 ${SEC_X86}
  ${EndIf}
FunctionEnd

; One of the two widths, never both and never none.
Function .onSelChange
  !insertmacro StartRadioButtons $9
    !insertmacro RadioButton ${SEC_X64}
    !insertmacro RadioButton ${SEC_X86}
  !insertmacro EndRadioButtons
FunctionEnd
