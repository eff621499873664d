#include "hostlib/Operations.h"

#include <algorithm>

namespace hostlib {
namespace {

using namespace operations;

// The class whose object a run makes first comes first.
constexpr Operation kAll[] = {
    script_global::kGetField,
    script_global::kHostDateToText,
    script_global::kTextToHostDate,
    script_global::kToText,
    script_global::kToBoolean,
    script_global::kAttach,
    script_global::kFormatAssociation,
    parameter_bag::kSetValue,
    parameter_bag::kGetValue,
    terminal_session::kLoadPNR,
    terminal_session::kSendCommand,
    terminal_session::kSendEntry,
    terminal_session::kSendDisplay,
    terminal_session::kSessionText,
    terminal_session::kSendEntryChecked,
    script_error_reporter::kLastErrorText,
    script_error_reporter::kLastErrorNumber,
    script_error_reporter::kReportLastError,
    script_error_reporter::kShowMessage,
    script_error_reporter::kShowError,
    profile_store::kWriteValue,
    profile_store::kReadValue,
    user_settings_store::kGetSetting,
    user_settings_store::kSaveSetting,
    office_display_reader::kReadResponse,
    queue_request::kBuildCommand,
    queue_request::kReadResponse,
    pnr_reader::kCountSegments,
    pnr_reader::kCountFPElements,
    pnr_reader::kCountRMElements,
    pnr_reader::kCountTKElements,
    pnr_reader::kCountNameElements,
    pnr_reader::kGetRecordLocator,
    pnr_reader::kCountOPElements,
    pnr_reader::kCountFSElements,
    pnr_reader::kCountOSIElements,
    pnr_reader::kCountMCOElements,
    pnr_reader::kGetSegment,
    pnr_reader::kGetNameElement,
    pnr_reader::kGetHeader,
    pnr_reader::kGetRMElement,
    pnr_reader::kGetTKElement,
    pnr_reader::kGetOPElement,
    pnr_reader::kFindElements,
    tsm_display_reader::kBuildTQMEntry,
    tsm_display_reader::kParseTQMResponse,
    tst_list_request::kBuildListCommand,
    tst_list_request::kBuildPricingCommand,
    tst_list_request::kBuildDisplayCommand,
    tst_list_request::kReadResponse,
    tst_detail_request::kReadFare,
    tst_detail_request::kReadFareElements,
    tst_detail_request::kReadGeneral,
    tst_detail_request::kReadNames,
    tst_update_request::kBuildFareEntry,
    tst_update_request::kBuildValidityEntry,
    tst_update_request::kBuildTSTEntry,
    pnr_element_change::kExecute,
    pnr_element_change::kReadResponse,
    pnr_element_builder::kExecuteFO,
    pnr_element_builder::kExecuteFV,
    pnr_element_builder::kExecuteFP,
    pnr_element_builder::kExecuteFM,
    pnr_element_builder::kExecuteRM,
    pnr_element_builder::kExecuteOP,
    pnr_element_entry::kReadResponse,
    remark_divider::kDivide,
    print_request::kExecute,
    print_request::kReadResponse,
    back_office_request::kExecute,
};

}  // namespace

std::span<const Operation> AllOperations() { return kAll; }

const Operation* FindOperation(std::wstring_view object, int interfaceNumber, int slot) {
  const Operation asked{object, interfaceNumber, slot, L"", 0};
  const auto* found = std::find_if(std::begin(kAll), std::end(kAll),
                                   [&](const Operation& one) { return Is(&asked, one); });
  return found == std::end(kAll) ? nullptr : found;
}

}  // namespace hostlib
