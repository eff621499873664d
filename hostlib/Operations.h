#pragma once

#include <span>
#include <string_view>

namespace hostlib {

/// One operation of a library object as this program uses it. The one place where slot numbers
/// stand; the facades call through it, transcripts take their names from it, and a binding checks
/// an installed library against it.
struct Operation {
  std::wstring_view object;  ///< class name, e.g. L"QueueRequest"
  int interfaceNumber;       ///< from 1
  int slot;
  std::wstring_view name;
  int arguments;                         ///< optional ones included
  std::wstring_view returnedClass = {};  ///< class of the object it gives; empty: no object
};

/// Whether a call's operation, null for one that this program does not use, is this one, wherever
/// it is kept: by object, interface and slot.
inline bool Is(const Operation* called, const Operation& operation) noexcept {
  return called != nullptr && called->object == operation.object &&
         called->interfaceNumber == operation.interfaceNumber && called->slot == operation.slot;
}

namespace operations {

inline constexpr std::wstring_view kBag = L"ParameterBag";
inline constexpr std::wstring_view kList = L"List";

namespace parameter_bag {
inline constexpr Operation kSetValue{kBag, 1, 7, L"SetValue", 2};
/// Gives a List for the keys that hold one.
inline constexpr Operation kGetValue{kBag, 1, 8, L"GetValue", 1, kList};
}  // namespace parameter_bag

namespace script_global {
inline constexpr std::wstring_view kClass = L"ScriptGlobal";
inline constexpr Operation kGetField{kClass, 1, 7, L"GetField", 3};
inline constexpr Operation kHostDateToText{kClass, 1, 10, L"HostDateToText", 1};
inline constexpr Operation kTextToHostDate{kClass, 1, 11, L"TextToHostDate", 1};
inline constexpr Operation kToText{kClass, 1, 13, L"ToText", 1};
inline constexpr Operation kToBoolean{kClass, 1, 16, L"ToBoolean", 1};
inline constexpr Operation kAttach{kClass, 1, 17, L"Attach", 2};
inline constexpr Operation kFormatAssociation{kClass, 1, 22, L"FormatAssociation", 1};
}  // namespace script_global

namespace terminal_session {
inline constexpr std::wstring_view kClass = L"TerminalSession";
inline constexpr Operation kLoadPNR{kClass, 1, 9, L"LoadPNR", 0};
inline constexpr Operation kSendCommand{kClass, 1, 10, L"SendCommand", 1};
inline constexpr Operation kSendEntry{kClass, 1, 11, L"SendEntry", 1};
inline constexpr Operation kSendDisplay{kClass, 1, 15, L"SendDisplay", 1};
inline constexpr Operation kSessionText{kClass, 1, 16, L"SessionText", 0};
inline constexpr Operation kSendEntryChecked{kClass, 1, 33, L"SendEntryChecked", 1};
}  // namespace terminal_session

namespace script_error_reporter {
inline constexpr std::wstring_view kClass = L"ScriptErrorReporter";
inline constexpr Operation kLastErrorText{kClass, 1, 9, L"LastErrorText", 0};
inline constexpr Operation kLastErrorNumber{kClass, 1, 10, L"LastErrorNumber", 0};
inline constexpr Operation kReportLastError{kClass, 1, 11, L"ReportLastError", 0};
inline constexpr Operation kShowMessage{kClass, 1, 12, L"ShowMessage", 3};
inline constexpr Operation kShowError{kClass, 1, 18, L"ShowError", 4};
}  // namespace script_error_reporter

namespace profile_store {
inline constexpr std::wstring_view kClass = L"ProfileStore";
inline constexpr Operation kWriteValue{kClass, 1, 8, L"WriteValue", 4};
inline constexpr Operation kReadValue{kClass, 1, 9, L"ReadValue", 3};
}  // namespace profile_store

namespace user_settings_store {
inline constexpr std::wstring_view kClass = L"UserSettingsStore";
inline constexpr Operation kGetSetting{kClass, 1, 12, L"GetSetting", 4};
inline constexpr Operation kSaveSetting{kClass, 1, 13, L"SaveSetting", 4};
}  // namespace user_settings_store

namespace office_display_reader {
inline constexpr std::wstring_view kClass = L"OfficeDisplayReader";
inline constexpr Operation kReadResponse{kClass, 1, 8, L"ReadResponse", 1, kBag};
}  // namespace office_display_reader

namespace queue_request {
inline constexpr std::wstring_view kClass = L"QueueRequest";
inline constexpr Operation kBuildCommand{kClass, 1, 7, L"BuildCommand", 1};
inline constexpr Operation kReadResponse{kClass, 1, 8, L"ReadResponse", 3, kBag};
}  // namespace queue_request

namespace pnr_reader {
inline constexpr std::wstring_view kClass = L"PnrReader";
inline constexpr Operation kCountSegments{kClass, 1, 19, L"CountSegments", 0};
inline constexpr Operation kCountFPElements{kClass, 1, 24, L"CountFPElements", 0};
inline constexpr Operation kCountRMElements{kClass, 1, 25, L"CountRMElements", 0};
inline constexpr Operation kCountTKElements{kClass, 1, 26, L"CountTKElements", 0};
inline constexpr Operation kCountNameElements{kClass, 1, 27, L"CountNameElements", 0};
inline constexpr Operation kGetRecordLocator{kClass, 1, 29, L"GetRecordLocator", 0};
inline constexpr Operation kCountOPElements{kClass, 1, 34, L"CountOPElements", 0};
inline constexpr Operation kCountFSElements{kClass, 1, 44, L"CountFSElements", 0};
inline constexpr Operation kCountOSIElements{kClass, 1, 46, L"CountOSIElements", 0};
inline constexpr Operation kCountMCOElements{kClass, 1, 113, L"CountMCOElements", 0};
inline constexpr Operation kGetSegment{kClass, 2, 7, L"GetSegment", 1};
inline constexpr Operation kGetNameElement{kClass, 2, 15, L"GetNameElement", 1};
inline constexpr Operation kGetHeader{kClass, 2, 17, L"GetHeader", 1};
inline constexpr Operation kGetRMElement{kClass, 2, 18, L"GetRMElement", 1};
inline constexpr Operation kGetTKElement{kClass, 2, 19, L"GetTKElement", 1};
inline constexpr Operation kGetOPElement{kClass, 2, 26, L"GetOPElement", 1};
inline constexpr Operation kFindElements{kClass, 3, 7, L"FindElements", 1, kBag};
}  // namespace pnr_reader

namespace tsm_display_reader {
inline constexpr std::wstring_view kClass = L"TsmDisplayReader";
inline constexpr Operation kBuildTQMEntry{kClass, 1, 7, L"BuildTQMEntry", 1};
inline constexpr Operation kParseTQMResponse{kClass, 1, 8, L"ParseTQMResponse", 2, kBag};
}  // namespace tsm_display_reader

namespace tst_list_request {
inline constexpr std::wstring_view kClass = L"TstListRequest";
inline constexpr Operation kBuildListCommand{kClass, 1, 7, L"BuildListCommand", 0};
inline constexpr Operation kBuildPricingCommand{kClass, 1, 8, L"BuildPricingCommand", 0};
inline constexpr Operation kBuildDisplayCommand{kClass, 1, 9, L"BuildDisplayCommand", 1};
inline constexpr Operation kReadResponse{kClass, 1, 10, L"ReadResponse", 1, kBag};
}  // namespace tst_list_request

namespace tst_detail_request {
inline constexpr std::wstring_view kClass = L"TstDetailRequest";
inline constexpr Operation kReadFare{kClass, 1, 7, L"ReadFare", 2};
inline constexpr Operation kReadFareElements{kClass, 1, 8, L"ReadFareElements", 2};
inline constexpr Operation kReadGeneral{kClass, 1, 9, L"ReadGeneral", 2};
inline constexpr Operation kReadNames{kClass, 1, 10, L"ReadNames", 2};
}  // namespace tst_detail_request

namespace tst_update_request {
inline constexpr std::wstring_view kClass = L"TstUpdateRequest";
inline constexpr Operation kBuildFareEntry{kClass, 1, 7, L"BuildFareEntry", 1};
inline constexpr Operation kBuildValidityEntry{kClass, 1, 10, L"BuildValidityEntry", 1};
inline constexpr Operation kBuildTSTEntry{kClass, 1, 14, L"BuildTSTEntry", 1};
}  // namespace tst_update_request

namespace pnr_element_change {
inline constexpr std::wstring_view kClass = L"PnrElementChange";
inline constexpr Operation kExecute{kClass, 1, 7, L"Execute", 1};
inline constexpr Operation kReadResponse{kClass, 2, 8, L"ReadResponse", 1, kBag};
}  // namespace pnr_element_change

namespace pnr_element_builder {
inline constexpr std::wstring_view kClassFO = L"PnrElementBuilderFO";
inline constexpr std::wstring_view kClassFV = L"PnrElementBuilderFV";
inline constexpr std::wstring_view kClassFP = L"PnrElementBuilderFP";
inline constexpr std::wstring_view kClassFM = L"PnrElementBuilderFM";
inline constexpr std::wstring_view kClassRM = L"PnrElementBuilderRM";
inline constexpr std::wstring_view kClassOP = L"PnrElementBuilderOP";
inline constexpr Operation kExecuteFO{kClassFO, 1, 7, L"Execute", 1};
inline constexpr Operation kExecuteFV{kClassFV, 1, 7, L"Execute", 1};
inline constexpr Operation kExecuteFP{kClassFP, 1, 7, L"Execute", 1};
inline constexpr Operation kExecuteFM{kClassFM, 1, 7, L"Execute", 1};
inline constexpr Operation kExecuteRM{kClassRM, 1, 7, L"Execute", 1};
inline constexpr Operation kExecuteOP{kClassOP, 1, 7, L"Execute", 1};
}  // namespace pnr_element_builder

namespace pnr_element_entry {
inline constexpr std::wstring_view kClass = L"PnrElementEntry";
inline constexpr Operation kReadResponse{kClass, 1, 8, L"ReadResponse", 1, kBag};
}  // namespace pnr_element_entry

namespace remark_divider {
inline constexpr std::wstring_view kClass = L"RemarkDivider";
inline constexpr Operation kDivide{kClass, 1, 7, L"Divide", 1};
}  // namespace remark_divider

namespace print_request {
inline constexpr std::wstring_view kClass = L"PrintRequest";
inline constexpr Operation kExecute{kClass, 1, 7, L"Execute", 1};
inline constexpr Operation kReadResponse{kClass, 2, 8, L"ReadResponse", 1, kBag};
}  // namespace print_request

namespace back_office_request {
inline constexpr std::wstring_view kClass = L"BackOfficeRequest";
inline constexpr Operation kExecute{kClass, 1, 7, L"Execute", 1};
}  // namespace back_office_request

}  // namespace operations

/// Every operation above.
std::span<const Operation> AllOperations();

/// Null when this program uses no such operation.
const Operation* FindOperation(std::wstring_view object, int interfaceNumber, int slot);

}  // namespace hostlib
