#include <algorithm>

#include "common/Text.h"
#include "tests/run/WritingRules.h"

// What the agent sees until the dialog stands, and does there.
namespace run {
namespace {

constexpr std::wstring_view kReissueBox =
    LR"(box ok "Some/all PTA changes already made for this TST. \rSelect 'OK' if you still want to use this TST, or 'Cancel' to terminate!" 1 "  PTA Script ")";
constexpr std::wstring_view kNoPaymentBox =
    LR"(box ok "Warning: Form of Payments missing for one or more TST(s). \rSelect 'OK' if you want to continue using the same FP \rfor all TST's, or 'Cancel' to terminate!" 1 "  PTA Script ")";
constexpr std::wstring_view kThirdPaymentBox =
    LR"(box ok "Warning: More than two different Form of Payments exist. \rSelect 'OK' if you want to continue using the FP in the \rfirst two TST's, or 'Cancel' to terminate!" 1 "  PTA Script ")";
constexpr std::wstring_view kAirlineBox =
    LR"(box ok "Warning: The Ticketing Airline varies in the TST's and/or does not match first Airline in the TST(s) selected !" 0 "  PTA Script ")";
constexpr std::wstring_view kCommissionBox =
    LR"(box ok "Warning: The Commission varies in the TST's selected ! Only one commission is valid." 0 "  PTA Script ")";

std::wstring Line(std::wstring_view text) { return std::wstring(text) + L"\n"; }

std::wstring WithoutPrefix(const std::wstring& payment) {
  if (payment.starts_with(L"O/PT/")) return payment.substr(5);
  return payment.starts_with(L"O/") ? payment.substr(2) : payment;
}

std::wstring YesNo(bool value) { return value ? L"Yes\n" : L"No\n"; }

}  // namespace

std::wstring ModelSettings::AsIni() const {
  return L"[ARNAG2100]\nIATANumber=80246878\nCityCode=STO\nPrintPNR=" + YesNo(printPNR) +
         L"OPElement=" + YesNo(addOP) + L"OPText=" + opText + L"\nPanelMode=" + YesNo(panelMode) +
         L"B.O.D.=" + YesNo(sendBOD) + L"IncludeRMinBOD=" + YesNo(includeRMinBOD) +
         L"PassengerSegmentAsso=" + YesNo(passengerSegmentAsso) + L"NoTKUpdate=" +
         YesNo(noTKUpdate) + L"MandatoryElements=AP,TK\nCOUNTRY=" + country + L"\n";
}

std::wstring WritingRules::Read() {
  std::wstring script;
  if (isList_) {
    std::wstring numbers;
    for (const Fare& fare : fares_) {
      numbers += (numbers.empty() ? L"" : L",") + std::to_wstring(fare.index + 1);
    }
    script = L"form frmSelectTST\npick lstTST " + numbers + L"\nclick cmdOK\n";
  }
  script += ReadingBoxes() + DisplayBoxes() + L"form frmPTA\n" + TypedFields() + L"click cmdOK\n";
  const bool asksForOSI = common::Contains(booking_.lines[L"MCO"].front().text, L"FA 117-");
  if (asksForOSI && booking_.lines[L"OS"].empty()) booking_.lines[L"OS"].push_back({L"SK PTA", {}});
  updatesFares_ = At(fares_.back()).pta == agent_.clicksNoTSTUpdate;
  return script;
}

std::wstring WritingRules::ReadingBoxes() {
  std::wstring boxes;
  std::wstring payments = L"CASH";
  bool isMultiple = false;
  bool toldMissing = false;
  bool toldThird = false;
  for (const Fare& fare : fares_) {
    if (At(fare).pta) boxes += Line(kReissueBox);
    const std::wstring payment = WithoutPrefix(booking_.LinkedText(L"FP", At(fare)));
    if (payment.empty()) {
      if (!booking_.lines[L"FP"].empty() && !toldMissing) boxes += Line(kNoPaymentBox);
      toldMissing = toldMissing || !booking_.lines[L"FP"].empty();
    } else if (common::Contains(payments, payment)) {
      continue;
    } else if (!isMultiple) {
      isMultiple = true;
      payments += L" + " + payment;
    } else if (!toldThird) {
      toldThird = true;
      boxes += Line(kThirdPaymentBox);
    }
  }
  return boxes;
}

std::wstring WritingRules::DisplayBoxes() const {
  const auto differs = [this](const std::wstring& code, std::wstring_view from) {
    return std::any_of(fares_.begin(), fares_.end(), [&](const Fare& fare) {
      const std::wstring text = booking_.LinkedText(code, At(fare));
      return !text.empty() && text != from;
    });
  };
  return (differs(L"FV", L"SK") ? Line(kAirlineBox) : L"") +
         (differs(L"FM", L"10") ? Line(kCommissionBox) : L"");
}

std::wstring WritingRules::TypedFields() const {
  std::wstring script;
  const auto type = [&script](const std::wstring& field, const std::wstring& text) {
    if (!text.empty()) script += L"type " + field + L" \"" + text + L"\"\n";
  };
  type(L"txtPWCT", agent_.pwct);
  type(L"txtRMBODInfo", agent_.backOfficeInfo);
  type(L"txtPTA", agent_.total);
  type(L"txtQueueingOfficeID", agent_.office);
  if (!agent_.office.empty()) type(L"txtQueueCat", agent_.queue);
  return script + (agent_.clicksNoTSTUpdate ? L"click chkTSTNoUpdate\n" : L"");
}

}  // namespace run
