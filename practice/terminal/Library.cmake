# The script library as the practice terminal offers it: every object, its interfaces, and in each
# the operations by slot, with argument types and result. The type library and the C++ classes
# behind it are both written from here; slots between the operations become hidden placeholders.
#
#   object(NAME [KIND])              a class, and its first interface; KIND is noncreatable for what
#                                    only operations give, hidden for what is no script's
#   next_interface()                 the class's next interface
#   operation(SLOT NAME "TYPE name, ..." [RESULT])
#   list_items(SLOT NAME RESULT)     the default member

object(ParameterBag)
operation(7 SetValue "BSTR key, VARIANT* value")
operation(8 GetValue "BSTR key" VARIANT)

object(List noncreatable)
list_items(7 Items VARIANT)

object(ScriptGlobal)
operation(7 GetField "BSTR text, long number, BSTR delimiter" BSTR)
operation(10 HostDateToText "BSTR hostDate" BSTR)
operation(11 TextToHostDate "BSTR date" BSTR)
operation(13 ToText "VARIANT value" BSTR)
operation(16 ToBoolean "VARIANT value" VARIANT_BOOL)
operation(17 Attach "IDispatch* progressForm, IDispatch* application" VARIANT_BOOL)
operation(22 FormatAssociation "BSTR elementNumbers" BSTR)

object(TerminalSession)
operation(9 LoadPNR "")
operation(10 SendCommand "BSTR command" BSTR)
operation(11 SendEntry "BSTR entry" BSTR)
operation(15 SendDisplay "BSTR command" BSTR)
operation(16 SessionText "" BSTR)
operation(33 SendEntryChecked "BSTR entry" VARIANT_BOOL)

object(ScriptErrorReporter)
operation(9 LastErrorText "" BSTR)
operation(10 LastErrorNumber "" long)
operation(11 ReportLastError "")
operation(12 ShowMessage "long number, BSTR title, BSTR text")
operation(18 ShowError "long number, BSTR title, BSTR text, long style")

object(ProfileStore)
operation(8 WriteValue "BSTR path, BSTR section, BSTR key, BSTR value")
operation(9 ReadValue "BSTR path, BSTR section, BSTR key" BSTR)

object(UserSettingsStore)
operation(12 GetSetting "BSTR application, BSTR section, BSTR key, optional VARIANT otherwise" BSTR)
operation(13 SaveSetting "BSTR application, BSTR section, BSTR key, BSTR value")

object(OfficeDisplayReader)
operation(8 ReadResponse "BSTR response" IDispatch*)

object(QueueRequest)
operation(7 BuildCommand "IDispatch* bag" BSTR)
operation(8 ReadResponse "BSTR response, optional VARIANT first, optional VARIANT second" IDispatch*)

object(PnrReader)
operation(19 CountSegments "" short)
operation(24 CountFPElements "" short)
operation(25 CountRMElements "" short)
operation(26 CountTKElements "" short)
operation(27 CountNameElements "" short)
operation(29 GetRecordLocator "" BSTR)
operation(34 CountOPElements "" short)
operation(44 CountFSElements "" short)
operation(46 CountOSIElements "" short)
operation(113 CountMCOElements "" short)
next_interface()
operation(7 GetSegment "IDispatch* bag")
operation(15 GetNameElement "IDispatch* bag")
operation(17 GetHeader "IDispatch* bag")
operation(18 GetRMElement "IDispatch* bag")
operation(19 GetTKElement "IDispatch* bag")
operation(26 GetOPElement "IDispatch* bag")
next_interface()
operation(7 FindElements "IDispatch* bag" IDispatch*)

object(TsmDisplayReader)
operation(7 BuildTQMEntry "IDispatch* bag" BSTR)
operation(8 ParseTQMResponse "BSTR response, IDispatch* bag" IDispatch*)

object(TstListRequest)
operation(7 BuildListCommand "" BSTR)
operation(8 BuildPricingCommand "" BSTR)
operation(9 BuildDisplayCommand "IDispatch* bag" BSTR)
operation(10 ReadResponse "BSTR response" IDispatch*)

object(TstDetailRequest)
operation(7 ReadFare "IDispatch* bag, BSTR response")
operation(8 ReadFareElements "IDispatch* bag, BSTR response")
operation(9 ReadGeneral "IDispatch* bag, BSTR response")
operation(10 ReadNames "IDispatch* bag, BSTR response")

object(TstUpdateRequest)
operation(7 BuildFareEntry "IDispatch* bag" BSTR)
operation(10 BuildValidityEntry "IDispatch* bag" BSTR)
operation(14 BuildTSTEntry "IDispatch* bag" BSTR)

object(PnrElementChange)
operation(7 Execute "IDispatch* bag" BSTR)
next_interface()
operation(8 ReadResponse "BSTR response" IDispatch*)

foreach(kind FO FV FP FM RM OP)
  object(PnrElementBuilder${kind})
  operation(7 Execute "IDispatch* bag" BSTR)
endforeach()

object(PnrElementEntry)
operation(8 ReadResponse "BSTR response" IDispatch*)

object(RemarkDivider)
operation(7 Divide "BSTR text" VARIANT)

object(PrintRequest)
operation(7 Execute "IDispatch* bag" BSTR)
next_interface()
operation(8 ReadResponse "BSTR response" IDispatch*)

object(BackOfficeRequest)
operation(7 Execute "IDispatch* bag" BSTR)

# The trainer's desk: what a test or a demonstration does instead of the terminal's menus. No object
# of a script's.
object(PracticeDesk hidden)
operation(7 LiveObjects "" long)
operation(8 LoadBooking "BSTR booking")
operation(9 PnrText "" BSTR)
operation(10 TranscriptText "" BSTR)
operation(11 RefuseNext "BSTR reason")
operation(12 DropSession "VARIANT_BOOL answerOnly")
operation(13 BehaveWell "")
operation(14 SlowDown "long milliseconds")
operation(15 EntryCount "" long)
operation(16 DieInEntry "long number")
operation(17 RefuseEntry "long number, BSTR reason")
operation(18 AttachedText "" BSTR)
operation(19 HoldEntry "long number, long milliseconds")
operation(20 UsedHeap "" long)
operation(21 ForgetTranscript "")
