#include "tests/faults/RuledBoxes.h"

#include "common/ConstDefintions.h"
#include "errors/Procedures.h"

namespace faults {

using errors::After;
using errors::Procedure;
using namespace errors::procedures;

namespace {

// Reports that leave it to their caller what becomes of the run, and whose caller ends it.
constexpr const Procedure* kEndedByTheirCaller[] = {&kConnect,    &kSendTQT,  &kTQM,
                                                    &kTQMRefused, &kNoMCOFee, &kSelectMCO};

constexpr const Procedure* kOthers[] = {
    &kMain,           &kUpdateRun,    &kSendQETrans,     &kIniFileMissing,
    &kLocateIniFile,  &kReadSettings, &kWriteSettings,   &kFindOffice,
    &kSendPV,         &kTotalFare,    &kAddTSTValues,    &kPTATotalRemark,
    &kMultiplyAmount, &kAddDay,       &kRetrievePNR,     &kMultiplyTSTValues,
    &kPNRInformation, &kTKMissing,    &kNames,           &kRecordLocatorMissing,
    &kPWCT,           &kFareElement,  &kOption,          &kOSI,
    &kMCOInfo,        &kReadTSTList,  &kAirlineNotValid, &kCountMCOElements,
    &kNoActiveTST,    &kSendTQTP,     &kSelectTST,       &kReadTSTDetail,
    &kReadCurrentTST, &kUpdateTST,    &kFormInit,        &kFormDisplay,
    &kOkClicked,      &kUpdatePNR,    &kUpdateTK,        &kVerifyWindowFields,
    &kUpdateFP,       &kUpdateFV,     &kUpdateRMPWCT,    &kUpdateFM,
    &kCreateFO,       &kCreateFV,     &kCreateFP,        &kEnterPNRElements,
    &kCreateFM,       &kCreateRM,     &kCreateOP,        &kDivideRM,
    &kCreateRMStar,   &kPrintPNR,     &kSendBT};

// A list or the host's answer follows the text.
constexpr const Procedure* kContinued[] = {&kMandatoryMissing, &kTQMRefused, &kNoMCOFee};

// The transactions whose refusal by the host is told; a refused TST leaves the others to be done.
constexpr const Procedure* kRefusable[] = {&kUpdateTK,     &kUpdateFP, &kUpdateFV,
                                           &kUpdateRMPWCT, &kUpdateFM, &kEnterPNRElements,
                                           &kPrintPNR,     &kUpdateTST};

struct OwnBox {
  std::wstring_view text;
  int style;
  std::wstring_view title;
  bool endsRun = false;
  bool continued = false;
};

constexpr std::wstring_view kInvalid = L"Invalid Field !";

constexpr OwnBox kOwnBoxes[] = {
    {L"PNR was not Queued correctly ! \r\nPress 'OK' to continue or 'Cancel' to terminate.", 1,
     common::kTitle},
    {L"No MCO's in PNR, script is closing", 0, L"", true},
    {L"No IR", 0, L""},
    {L"The script can not handle NOFARE TST's.\rThe script will terminate!", 0, common::kTitle,
     true},
    {L"Some/all PTA changes already made for this TST. \rSelect 'OK' if you still want to use this "
     L"TST, or 'Cancel' to terminate!",
     1, common::kTitle},
    {L"Warning: Form of Payments missing for one or more TST(s). \rSelect 'OK' if you want to "
     L"continue using the same FP \rfor all TST's, or 'Cancel' to terminate!",
     1, common::kTitle},
    {L"Warning: More than two different Form of Payments exist. \rSelect 'OK' if you want to "
     L"continue using the FP in the \rfirst two TST's, or 'Cancel' to terminate!",
     1, common::kTitle},
    {L"The displayed TST has an incorrect Sales Indicator ", 1, common::kTitle, false, true},
    {L"Warning: The Ticketing Airline varies in the TST's and/or does not match first Airline in "
     L"the TST(s) selected !",
     0, common::kTitle},
    {L"Warning: The Commission varies in the TST's selected ! Only one commission is valid.", 0,
     common::kTitle},
    {L"Selected TST's must belong to the same segment", 64, kInvalid},
    {L"Selected TST's must hav the same FOP", 64, kInvalid},
    {L"Invalid Airline Office ID !", 64, kInvalid},
    {L"Invalid IATA Number, must be 8 digits !", 64, kInvalid},
    {L"Invalid City Code, must be three letters !", 64, kInvalid},
    {L"Invalid Airline Code, must be two letters !", 64, kInvalid},
};

bool ShowsFailure(const Procedure& procedure, const Event& box) {
  if (box.style != procedure.style) return false;
  if (procedure.describes) {
    return box.text.starts_with(std::wstring(procedure.text) + L" Description=");
  }
  return box.text == procedure.text;
}

bool Continues(const Procedure& procedure, const Event& box) {
  return box.style == procedure.style && box.text.starts_with(procedure.text);
}

bool ShowsRefusal(const Procedure& procedure, const Event& box) {
  return box.style == common::kExclamation &&
         box.text == std::wstring(procedure.text).append(common::kRefusalText);
}

std::optional<BoxRule> ReportRule(const Event& box) {
  if (box.title != common::kTitle) return std::nullopt;
  for (const Procedure* procedure : kOthers) {
    if (ShowsFailure(*procedure, box)) {
      return BoxRule{procedure->after != After::kGoesOn};
    }
  }
  for (const Procedure* procedure : kEndedByTheirCaller) {
    if (ShowsFailure(*procedure, box)) return BoxRule{true};
  }
  for (const Procedure* procedure : kContinued) {
    if (Continues(*procedure, box)) return BoxRule{true};
  }
  for (const Procedure* procedure : kRefusable) {
    if (ShowsRefusal(*procedure, box)) return BoxRule{procedure != &kUpdateTST};
  }
  return std::nullopt;
}

std::optional<BoxRule> LastErrorRule(const Event& box) {
  const bool inItsForm = box.style == common::kCritical && box.title == common::kTitle;
  if (!inItsForm || box.text != box.lastError->says) return std::nullopt;
  return BoxRule{box.lastError->byProgram};
}

}  // namespace

std::optional<BoxRule> RuleOf(const Event& box) {
  if (box.lastError) return LastErrorRule(box);
  for (const OwnBox& own : kOwnBoxes) {
    const bool says = own.continued ? box.text.starts_with(own.text) : box.text == own.text;
    if (says && box.style == own.style && box.title == own.title) return BoxRule{own.endsRun};
  }
  return ReportRule(box);
}

}  // namespace faults
