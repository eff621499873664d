#include "updates/ElementChanges.h"

#include "common/Text.h"

namespace updates {
namespace {

namespace procedures = errors::procedures;

/// Several TSTs may share one element: it is changed once, unless another one came in between.
class ElementWalk {
 public:
  bool IsDue(const std::wstring& elementNumber) {
    if (elementNumber.empty() || elementNumber == changedLast_) return false;
    changedLast_ = elementNumber;
    return true;
  }

 private:
  std::wstring changedLast_;
};

}  // namespace

ElementChanges::ElementChanges(hostlib::Library& library, hostlib::ScriptGlobal& global,
                               hostlib::TerminalSession& session, errors::ErrorHandler& errors,
                               common::RunEnd& runEnd, ui::Form& dialog,
                               const settings::Settings& settings, const tst::TSTCollection& tsts,
                               const pnr::PNRInfo& pnr, const pnr::MCOInfo& mco)
    : library_(library),
      global_(global),
      session_(session),
      errors_(errors),
      runEnd_(runEnd),
      dialog_(dialog),
      settings_(settings),
      tsts_(tsts),
      pnr_(pnr),
      mco_(mco) {}

void ElementChanges::UpdatePNR(std::wstring_view tkText) {
  errors_.Run(procedures::kUpdatePNR, [&] {
    dialog_.SetPointer(ui::MousePointer::kHourglass);
    if (pnr_.strTicketingAction != L"OK" && !settings_.blnTKNoUpdate) UpdateTKElement(tkText);
    if (!pnr_.strRMPWCTNumber.empty()) UpdateRMPWCTElement();
    ChangeFVElements();
    ChangeFMElements();
    ChangeFPElements();
  });
}

void ElementChanges::ChangeFVElements() {
  ElementWalk walk;
  for (const tst::TSTInfo& tst : tsts_) {
    if (tst.strFVElementValue != mco_.strAirlineCode && walk.IsDue(tst.strFVElementNumber)) {
      UpdateFVElement(tst.strFVElementNumber, mco_.strAirlineCode);
    }
  }
}

void ElementChanges::ChangeFMElements() {
  ElementWalk walk;
  for (const tst::TSTInfo& tst : tsts_) {
    if (tst.strFMElementValue != mco_.strCommission && walk.IsDue(tst.strFMElementNumber)) {
      UpdateFMElement(tst.strFMElementNumber, mco_.strCommission);
    }
  }
}

void ElementChanges::ChangeFPElements() {
  ElementWalk walk;
  for (const tst::TSTInfo& tst : tsts_) {
    if (!common::Contains(tst.strFPElementValue, L"O/") && walk.IsDue(tst.strFPElementNumber)) {
      UpdateFPElement(tst.strFPElementNumber, tst.strFPElementValue);
    }
  }
}

void ElementChanges::UpdateTKElement(std::wstring_view tkText) {
  std::wstring suffix;
  if (!tkText.empty()) suffix.append(L"/").append(tkText);
  if (common::Contains(pnr_.strTicketingText, L"/Q")) suffix += L"/Q";
  ChangeElement(procedures::kUpdateTK, pnr_.strTKElementNumber, L"OK", suffix);
}

void ElementChanges::UpdateRMPWCTElement() {
  ChangeElement(procedures::kUpdateRMPWCT, pnr_.strRMPWCTNumber, L"PWCT " + pnr_.strRMPWCTAction);
}

void ElementChanges::UpdateFVElement(std::wstring_view elementNumber, std::wstring_view airline) {
  ChangeElement(procedures::kUpdateFV, elementNumber, airline);
}

void ElementChanges::UpdateFMElement(std::wstring_view elementNumber,
                                     std::wstring_view commission) {
  ChangeElement(procedures::kUpdateFM, elementNumber, commission);
}

void ElementChanges::UpdateFPElement(std::wstring_view elementNumber, std::wstring_view fpText) {
  const std::wstring_view agent = pnr_.blnLH ? L"AGT" : L"";
  ChangeElement(procedures::kUpdateFP, elementNumber, common::Joined({L"O/PT/", fpText, agent}));
}

void ElementChanges::ChangeElement(const errors::Procedure& procedure,
                                   std::wstring_view elementNumber, std::wstring_view newValue,
                                   std::wstring_view suffix) {
  errors_.Run(procedure, [&] {
    last_ = {};
    last_.elementNumber = elementNumber;
    last_.newValue = newValue;
    Transact(procedure, suffix);
    // Here the request and the bags have been released.
    if (!last_.pnrFound) runEnd_.EndScript();
  });
}

void ElementChanges::Transact(const errors::Procedure& procedure, std::wstring_view suffix) {
  hostlib::PnrElementChange request(library_);
  hostlib::ParameterBag bag(library_);
  bag.SetValue(L"strKeyElementNr", last_.elementNumber);
  bag.SetValue(L"strKeyNewValue", last_.newValue);
  last_.command = request.Execute(bag).append(suffix);
  last_.response = session_.SendSingle(last_.command);
  const hostlib::ParameterBag result = request.ReadResponse(last_.response);
  last_.pnrFound = global_.FlagIn(result, L"blnKeyPNRFound");
  if (!last_.pnrFound) errors_.ReportRefusal(procedure);
}

}  // namespace updates
